#pragma once

#include "Colour.h"
#include "Noise.h"

#include <QImage>
#include <QPainter>
#include <QString>

namespace worldgen {

// Where the animal's feet stand, from the top.
inline constexpr double petFeet = 98;

enum class Undergrowth { None, Blades, Reeds, Stones };

// The ground an animal stands on, and the light above it.
struct PetGround {
    QStringView name;
    Colour sky, haze, hills, floor;
    Undergrowth undergrowth;
    bool wet;    // water before and behind the feet
    bool walled; // no sky: a cave or a wall of bricks
};

const PetGround* petGroundNamed(QStringView name);

// Sky with slow clouds, two lines of hills in the haze, open ground; `size` is drawn `fine` times larger.
QImage paintedBackdrop(const PetGround& ground, QSize size, int fine, Rng& rng);

// What grows or lies before the animal's feet.
void paintUndergrowth(QPainter& painter, const PetGround& ground, QSize size, Rng& rng);

} // namespace worldgen
