#pragma once

#include "base/Colour.h"
#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/IndexedTable.h"
#include "base/Listing.h"
#include "layers/EliteSkill.h"
#include "world/HitIndex.h"
#include "world/MapLocation.h"
#include "world/Marker.h"
#include "world/modZones.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace orvinel {

struct Content;

// What the panel asks of the skills; a default asks nothing.
struct EliteChoice {
    Place place{};
    int profession = 0; // 0: all
    int secondary = 0;  // 0: none; widens the choice of a profession, alone it does nothing
    int character = 0;  // 0: all; matters with uncapturedOnly
    bool uncapturedOnly = false;
    std::optional<QString> attribute{};
    QString bossText{}; // both as they stand in the fields
    QString nameText{};
};

// Entries of lstElite, in its alphabetical order; the item data is the skill's ID.
std::vector<ListEntry> eliteEntries(const Content& state, const EliteChoice& choice);

// Entries of lstLocations for the skill `id`, which exists: "Zone - Region - Campaign" of the locations that
// the choice's place and boss text let through, in file order; the item data is the location's index.
std::vector<ListEntry> eliteLocationEntries(const Content& state, int id, const EliteChoice& choice);

// The boxes of the listed skills' bosses, then those of the bosses without a skill, which `bossText` (as it
// stands in the field) does not concern.
std::vector<Marker> eliteMarkers(const Content& state, ListedItems elite, const MapShown& shown,
                                 const QString& bossText);

// id = the skill's ID, part = the location's index. The listed skills come first, then the skills of the
// listed green items; pass no greens to look through the listed skills only. A skill with ID 0 is found only
// through greens: it is a boss without a skill.
std::vector<HitArea> eliteHitAreas(const Content& state, ListedItems elite, ListedItems greens,
                                   const MapShown& shown);

// A boss under the mouse.
struct EliteHit {
    int id = 0;       // the skill's
    int location = 0; // 1..its number of locations
};

struct EliteTooltip {
    struct Green {
        QString name;
        QString stats; // "- " before each line, CR LF between

        bool operator==(const Green&) const = default;
    };
    bool skillShown = false; // name to cast time, and the band, are seen only then
    QString name;
    QString picture; // full path; empty: none
    QString type;
    QString attribute;
    QString campaign;
    QString description;
    std::optional<QString> upkeep; // a cost without a text is not seen
    std::optional<QString> adrenaline;
    std::optional<QString> energy;
    std::optional<QString> recharge;
    std::optional<QString> castTime;
    bool castTimeHasSlash = false; // a fraction: it takes a smaller font
    QString boss;
    QString zone;
    QString note;              // lines end with CR LF; empty: none
    std::vector<Green> greens; // empty: no such part
    Colour band = 0;
};

// `hit` names a location that exists. `skillListed`: the layer is switched on and the skill is in the list;
// `greensShown`: the layer of the green items is switched on.
EliteTooltip eliteTooltip(const Content& state, EliteHit hit, const MapShown& shown, bool skillListed,
                          bool greensShown);

} // namespace orvinel
