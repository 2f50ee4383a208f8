#pragma once

#include <QRect>
#include <QString>

namespace orvinel {

// A named place of a region.
struct Zone {
    int ZoneID = 0; // -32768..32767
    QString ZoneName;
    int ZoneType = 0;   // 1 explorable area, 2 outpost, 3 mission, 4 town, 5 challenge, 6 dungeon entrance
    int MarkerFlag = 0; // 0: an explorable area shows only its name, centred on the point
    int X = 0;          // pixels of the region picture
    int Y = 0;

    bool nameOnly() const { return MarkerFlag == 0 && ZoneType == 1; }

    bool operator==(const Zone&) const = default;
};

} // namespace orvinel
