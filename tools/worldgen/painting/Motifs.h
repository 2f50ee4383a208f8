#pragma once

#include "Noise.h"

#include <QPainterPath>
#include <QString>

namespace worldgen {

constexpr double kMotifReach = 25;

/// The silhouette that stands for a type of skill, kMotifReach to each side of the origin. Types with many
/// skills have several; the numbers choose. The first word that is known decides: "Sword attack" shows a
/// sword.
QPainterPath motifFor(const QString& kind, Rng& rng);

} // namespace worldgen
