#pragma once

#include "RegionPainter.h"

#include <QPainter>

namespace worldgen {

// Paints the signs of a skill around the origin, back to front, about 26 units to each side. `cloth` is the
// profession's colour, which some signs wear.
void paintSigns(QPainter& painter, const std::vector<PlacedSign>& signs, QRgb cloth);

} // namespace worldgen
