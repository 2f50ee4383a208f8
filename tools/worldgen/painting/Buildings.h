#pragma once

#include "Sprites.h"

namespace worldgen {

enum class BuildingStyle { Timber, Pagoda, Adobe, Longhouse };

BuildingStyle buildingStyleOf(int campaign);

// A dwelling about 9 pixels wide at `scale` 1; two to three times that for halls and temples.
Sprite paintedHouse(BuildingStyle style, double scale, Rng& rng);
Sprite paintedTower(BuildingStyle style, double scale, Rng& rng);
// A stretch of wall or palisade from the origin to `to`.
Sprite paintedWall(QPointF to, bool timber);
Sprite paintedTent(Rng& rng);
Sprite paintedBanner(Rng& rng);
Sprite paintedStandingStone(double scale, Rng& rng);
Sprite paintedRuin(Rng& rng);
// A crag with a dark mouth, open to the south.
Sprite paintedCave(const Palette& palette, Rng& rng);
Sprite paintedWindmill(Rng& rng);
Sprite paintedObelisk(Rng& rng);
Sprite paintedBamboo(Rng& rng);
// One of the landmarks that is a single thing: all but Stones, Palms and None.
Sprite paintedLandmark(Landmark landmark, BuildingStyle style, const Palette& palette, Rng& rng);
Sprite paintedShrine(BuildingStyle style, Rng& rng);

} // namespace worldgen
