#pragma once

#include "Colour.h"
#include "RegionPainter.h"

#include <array>

namespace worldgen {

enum class TreeStyle { Broadleaf, Conifer, SnowConifer, Palm, Scrub, Dead, Jungle };

// The colours of a region: those of its theme, shifted to the season of its campaign.
struct Palette {
    Colour deep, shallow, beach, low, mid, dry, high, rock, snow;
    std::array<Colour, 3> leaves{}; // a tree's colour lies between any two of them
    Colour needles{};
    Colour field{}; // of a ploughed one
    double moisture = 0;
    double snowline = 1; // height above which snow lies; above 1.2: none
    TreeStyle lowland = TreeStyle::Broadleaf;
    TreeStyle upland = TreeStyle::Conifer;
};

Palette paletteOf(Theme theme, int campaign);

} // namespace worldgen
