#pragma once

#include "WorldSource.h"

namespace worldgen {

// What a look at one region found, without painting it.
struct RegionFinding {
    QString region;
    double emptyShare = 0; // of the land, farther than emptyReach pixels from every zone and marker
    QStringList problems;  // zones whose ground is not what they ask for, names on the frame
};

inline constexpr int emptyReach = 200;
inline constexpr double mostEmpty = 0.20;

// Raises the land of all regions, places everything on it, and measures, region by region in their order.
std::vector<RegionFinding> surveyWorld(const WorldSource& source);

} // namespace worldgen
