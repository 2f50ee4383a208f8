#pragma once

#include "Scene.h"

namespace worldgen {

struct Settlement {
    QPoint at;
    int campaign;
    const SiteWish& wish;
};

// Half the width and half the height of the ground that a settlement needs.
QSizeF settlementRoom(SiteRole role);

// Fields around a place where people live; nothing elsewhere.
void ploughFields(QImage& picture, const Landscape& land, QPoint at, SiteRole role, Rng& rng);

// Puts the buildings or the landmark of a site into the scene. The middle stays low: a marker stands there.
void settle(Scene& scene, const Landscape& land, const Settlement& place, Rng& rng);

} // namespace worldgen
