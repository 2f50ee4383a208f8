#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/IndexedTable.h"
#include "base/Listing.h"
#include "layers/Pet.h"
#include "world/HitIndex.h"
#include "world/MapLocation.h"
#include "world/Marker.h"
#include "world/modZones.h"

#include <QString>

#include <vector>

namespace orvinel {

struct Content;

void LoadPets(Content& state, const Disk& disk, Complaints* complaints = nullptr);
// A location of a number within the table that no line named belongs to a pet without a name.
void LoadPetLocations(Content& state, const Disk& disk, Complaints* complaints = nullptr);

struct PetChoice {
    Place place;
};

// Entries of lstPets in ID order; the item data is the ID.
std::vector<ListEntry> petEntries(const Content& state, const PetChoice& choice);
// Entries of lstPetLocations: "Zone - Region - Campaign"; the item data is the location's index. `id` exists.
std::vector<ListEntry> petLocationEntries(const Content& state, int id, const PetChoice& choice);

std::vector<Marker> petMarkers(const Content& state, ListedItems listed, const MapShown& shown);
// id = the pet's ID, part = the location's index.
std::vector<HitArea> petHitAreas(const Content& state, ListedItems listed, const MapShown& shown);

} // namespace orvinel
