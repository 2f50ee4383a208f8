#pragma once

#include "Landscape.h"

#include <QImage>

namespace worldgen {

// Land and open water in their colours, lit from the north-west, as broad brush strokes.
QImage paintedGround(const Landscape& land);

// Each pixel takes the mean of the calmest of the four squares that touch it: noise becomes strokes, edges
// stay.
QImage brushed(const QImage& picture, int radius, double strength);

// Foam lines along the coast, wave strokes, and rivers on their way to the sea.
void paintCoast(QImage& picture, const Landscape& land);
void paintRivers(QImage& picture, const Landscape& land);

// Cliffs where steep land meets the sea, and glowing cracks in and at the foot of the ranges of ash country,
// away from where `taken` is white.
void paintCliffs(QImage& picture, const Landscape& land);
void paintCracks(QImage& picture, const Landscape& land, const QImage& taken);

// A ship or two as the campaign builds them, and a serpent or a whale, where the sea is wide; nothing inside
// `taken`.
void paintSeafarers(QImage& picture, const Landscape& land, int campaign, const std::vector<QRect>& taken);

} // namespace worldgen
