#pragma once

#include "app/Complaints.h"
#include "app/Disk.h"
#include "app/IndexedTable.h"
#include "app/Listing.h"
#include "layers/HitIndex.h"
#include "layers/MapLocation.h"
#include "layers/Marker.h"
#include "world/modZones.h"

#include <QString>

#include <string>
#include <vector>

namespace orvinel {

struct ProgramState;

struct EliteSkill {
    QString Name;
    bool Exists = false; // the name is not empty
    QString Attribute;
    QString Type;
    int Upkeep = 0;     // -32768..32767; shown when not 0
    int Adrenaline = 0; // 0..255; shown when above 0
    int Energy = 0;     // 0..255; shown when above 0
    QString CastTime;   // as written, perhaps with "/"; shown when its leading number is above 0
    int Recharge = 0;   // -32768..32767; shown from 1 up
    QString Description;
    QString Picture; // full path of the JPEG, whether or not it exists; empty: none
    int Profession = 0;
    int Campaign = 0;           // whose list defined the skill
    std::vector<bool> Captured; // by character number, 0..highest
    List1<MapLocation> Locations;

    bool operator==(const EliteSkill&) const = default;
};

void LoadEliteSkills(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);
void LoadEliteLocations(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);

} // namespace orvinel
