#pragma once

#include "base/IndexedTable.h"
#include "world/Zone.h"

#include <QString>

#include <unordered_map>

namespace orvinel {

struct Region {
    QString RegionName;
    QString RegionPicture;                         // full path of the JPEG; empty: no picture
    List1<Zone> RegionZones;                       // written by addZone only
    std::unordered_map<int, int> ZoneByIdentifier; // index of the first zone with an identifier

    void addZone(Zone zone);

    bool operator==(const Region&) const = default;
};

struct Campaign {
    QString CampaignName; // empty: there is no folder of this number
    IndexedTable<Region> Regions;

    bool operator==(const Campaign&) const = default;
};

} // namespace orvinel
