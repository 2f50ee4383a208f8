#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/IndexedTable.h"
#include "base/Listing.h"
#include "world/HitIndex.h"
#include "world/MapLocation.h"
#include "world/Marker.h"
#include "world/modZones.h"

#include <QString>

#include <vector>

namespace orvinel {

struct ProgramState;

struct Pet {
    QString Name;
    QString Picture; // full path of the JPEG, whether or not it exists; empty: none
    List1<MapLocation> Locations;

    bool operator==(const Pet&) const = default;
};

void LoadPets(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);
// A location of a number within the table that no line named belongs to a pet without a name.
void LoadPetLocations(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);

struct PetChoice {
    Place place;
};

// Entries of lstPets in ID order; the item data is the ID.
std::vector<ListEntry> petEntries(const ProgramState& state, const PetChoice& choice);
// Entries of lstPetLocations: "Zone - Region - Campaign"; the item data is the location's index. `id` exists.
std::vector<ListEntry> petLocationEntries(const ProgramState& state, int id, const PetChoice& choice);

std::vector<Marker> petMarkers(const ProgramState& state, ListedItems listed, const MapShown& shown);
// id = the pet's ID, part = the location's index.
std::vector<HitArea> petHitAreas(const ProgramState& state, ListedItems listed, const MapShown& shown);

} // namespace orvinel
