#pragma once

#include "Landscape.h"

#include <QPoint>

namespace worldgen {

/// Where each wish of the recipe stands, in order.
std::vector<QPoint> placedSites(const Landscape& land, const std::vector<SiteWish>& wishes, quint32 seed);

/// The ground that the name of a site covers in the program, whatever marker stands above it.
QRect nameBox(QPoint site, const SiteWish& wish, int campaign);

} // namespace worldgen
