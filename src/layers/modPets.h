#pragma once

#include "app/Complaints.h"
#include "app/Disk.h"
#include "app/IndexedTable.h"
#include "layers/MapLocation.h"

#include <QString>

namespace orvinel {

struct ProgramState;

struct Pet {
    QString Name;
    QString Picture; // full path of the JPEG; empty: none
    List1<MapLocation> Locations;

    bool operator==(const Pet&) const = default;
};

void LoadPets(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);
void LoadPetLocations(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);

} // namespace orvinel
