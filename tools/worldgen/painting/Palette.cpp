#include "Palette.h"

namespace worldgen {

namespace {

Colour hex(QRgb rgb) {
    return colourOf(rgb);
}

Palette temperate() {
    Palette p{hex(0x122A38), hex(0x2F6870), hex(0x8D7A52), hex(0x4F6235), hex(0x65703C),
              hex(0x84743F), hex(0x6B6040), hex(0x5A5148), hex(0xD9D6CF)};
    p.leaves = {hex(0x33492A), hex(0x27402F), hex(0x46582C)};
    p.needles = hex(0x22392E);
    p.field = hex(0x86793E);
    p.moisture = 0.02;
    p.snowline = 0.86;
    return p;
}

Palette desert() {
    Palette p{hex(0x1B3A4A), hex(0x3F7F80), hex(0x8F7446), hex(0x776438), hex(0x806638),
              hex(0x8B6836), hex(0x765634), hex(0x664834), hex(0xCDB48C)};
    p.leaves = {hex(0x556032), hex(0x48552B), hex(0x66683A)};
    p.needles = hex(0x4A552C);
    p.field = hex(0x7C7A3A);
    p.moisture = -0.22;
    p.snowline = 1.5;
    p.lowland = TreeStyle::Palm;
    p.upland = TreeStyle::Scrub;
    return p;
}

Palette frost() {
    Palette p{hex(0x10202F), hex(0x3A5F73), hex(0x60666A), hex(0x53646A), hex(0x627078),
              hex(0x6C767C), hex(0x7A848A), hex(0x585E68), hex(0xC8D2DC)};
    p.leaves = {hex(0x4A4A3A), hex(0x3C4A42), hex(0x584C3C)};
    p.needles = hex(0x22403C);
    p.field = hex(0x6E6A52);
    p.moisture = 0.06;
    p.snowline = 0.46;
    p.lowland = TreeStyle::SnowConifer;
    p.upland = TreeStyle::SnowConifer;
    return p;
}

Palette ash() {
    Palette p{hex(0x14222A), hex(0x33575A), hex(0x5A5048), hex(0x454E38), hex(0x565244),
              hex(0x685848), hex(0x64544A), hex(0x4C4240), hex(0x8C867E)};
    p.leaves = {hex(0x1F3B2C), hex(0x2B4426), hex(0x1B3433)};
    p.needles = hex(0x1D322A);
    p.field = hex(0x5E5634);
    p.moisture = 0.06;
    p.snowline = 1.5;
    p.lowland = TreeStyle::Jungle;
    p.upland = TreeStyle::Dead;
    return p;
}

// How a campaign's season colours the ground and the leaves.
struct Season {
    Colour ground; // factors for red, green, blue
    std::array<QRgb, 3> leaves;
    double leafShare; // how far the leaves turn towards \c leaves
};

Season seasonOf(int campaign) {
    switch (campaign) {
    case 2: // autumn
        return {{1.10, 0.97, 0.84}, {qRgb(138, 74, 34), qRgb(150, 104, 40), qRgb(104, 50, 34)}, 0.62};
    case 3: // high summer
        return {{1.06, 1.02, 0.88}, {qRgb(84, 96, 40), qRgb(66, 86, 40), qRgb(104, 100, 48)}, 0.35};
    case 4: // first cold
        return {{0.97, 0.99, 1.02}, {qRgb(88, 84, 56), qRgb(52, 72, 62), qRgb(104, 84, 52)}, 0.40};
    default: // spring
        return {{0.98, 1.03, 0.97}, {qRgb(52, 82, 40), qRgb(40, 70, 42), qRgb(74, 92, 46)}, 0.30};
    }
}

} // namespace

Palette paletteOf(Theme theme, int campaign) {
    Palette p = theme == Theme::Temperate ? temperate()
                : theme == Theme::Desert  ? desert()
                : theme == Theme::Frost   ? frost()
                                          : ash();
    const Season season = seasonOf(campaign);
    for (Colour* ground : {&p.beach, &p.low, &p.mid, &p.dry, &p.high, &p.field})
        *ground = ground->times(season.ground.r, season.ground.g, season.ground.b);
    const double share = season.leafShare * (theme == Theme::Temperate ? 1.0 : 0.35);
    for (std::size_t k = 0; k < p.leaves.size(); ++k)
        p.leaves[k] = mixed(p.leaves[k], colourOf(season.leaves[k]), share);
    return p;
}

} // namespace worldgen
