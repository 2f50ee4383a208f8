#pragma once

#include "world/MapLocation.h"

namespace orvinel {

class frmMap;
struct ProgramState;

// A point of a region; x and y: pixels of its picture.
struct RegionPoint {
    int campaign = -1;
    int region = -1;
    int x = 0;
    int y = 0;

    static RegionPoint of(const MapLocation& at) { return {at.Campaign, at.Region, at.X, at.Y}; }
};

// Has the map show the point in its middle, on the region it belongs to, with all markers drawn anew. The
// panel's choice stays. A region without a picture gives the empty map.
void showOnMap(frmMap& map, const ProgramState& state, const RegionPoint& point);

} // namespace orvinel
