#pragma once

#include "base/IndexedTable.h"
#include "world/MapLocation.h"

#include <QString>

#include <string>
#include <vector>

namespace orvinel {

struct EliteSkill {
    QString Name;        // written by setName only
    bool Exists = false; // the name is not empty
    QString Attribute;   // written by setAttribute only
    QString Type;
    int Upkeep = 0;     // -32768..32767; shown when not 0
    int Adrenaline = 0; // 0..255; shown when above 0
    int Energy = 0;     // 0..255; shown when above 0
    QString CastTime;   // as written, perhaps with "/"; shown when its leading number is above 0
    int Recharge = 0;   // -32768..32767; shown from 1 up
    QString Description;
    QString Picture; // full path of the JPEG, whether or not it exists; empty: none
    int Profession = 0;
    int Campaign = 0;             // whose list defined the skill
    std::vector<bool> Captured;   // by character number, 0..highest
    List1<MapLocation> Locations; // written by addLocation only
    QString ListText;             // "Name [Abbr]": how every list shows the skill; kept by the loader
    std::string FoldedName;
    std::string FoldedAttribute;
    std::string FoldedBosses; // of all locations, each ended by '\n'

    void setName(const QString& name);
    void setAttribute(const QString& attribute);
    // Returns the location's index.
    int addLocation(MapLocation&& location);
    // Also for characters that the skill knows nothing of.
    bool capturedBy(int character) const {
        const auto c = static_cast<size_t>(character);
        return character >= 0 && c < Captured.size() && Captured[c];
    }

    bool operator==(const EliteSkill&) const = default;
};

} // namespace orvinel
