#pragma once

#include "Landscape.h"

#include <QPoint>

namespace worldgen {

// Where each wish of the recipe stands, in order.
std::vector<QPoint> placedSites(const Landscape& land, const std::vector<SiteWish>& wishes, quint32 seed);

// Whether the land around a site is what `near` asks for.
bool groundOffers(const Landscape& land, QPoint site, SiteNear near);

} // namespace worldgen
