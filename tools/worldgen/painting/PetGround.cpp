#include "PetGround.h"

#include "Maths.h"

#include <array>

namespace worldgen {

namespace {

constexpr double horizon = 74;

constexpr std::array grounds{
    PetGround{u"meadow",
              {118, 156, 186},
              {226, 214, 170},
              {96, 122, 84},
              {112, 134, 62},
              Undergrowth::Blades,
              0,
              0},
    PetGround{u"steppe",
              {150, 112, 96},
              {246, 192, 112},
              {150, 104, 66},
              {172, 136, 66},
              Undergrowth::Blades,
              0,
              0},
    PetGround{u"wood", {62, 92, 82}, {150, 172, 122}, {44, 74, 52}, {66, 88, 46}, Undergrowth::Blades, 0, 0},
    PetGround{u"crags",
              {112, 136, 166},
              {222, 202, 172},
              {118, 108, 104},
              {112, 106, 84},
              Undergrowth::Stones,
              0,
              0},
    PetGround{u"fen", {110, 120, 112}, {196, 190, 146}, {80, 94, 74}, {92, 98, 60}, Undergrowth::Reeds, 1, 0},
    PetGround{
        u"water", {96, 138, 164}, {214, 208, 170}, {84, 112, 96}, {70, 122, 134}, Undergrowth::Reeds, 1, 0},
    PetGround{
        u"river", {150, 140, 116}, {240, 208, 140}, {124, 118, 70}, {104, 118, 84}, Undergrowth::Reeds, 1, 0},
    PetGround{u"desert",
              {126, 136, 160},
              {248, 208, 146},
              {190, 134, 86},
              {206, 160, 98},
              Undergrowth::Stones,
              0,
              0},
    PetGround{
        u"snow", {70, 92, 130}, {176, 186, 206}, {110, 128, 154}, {192, 206, 222}, Undergrowth::None, 0, 0},
    PetGround{
        u"ice", {58, 96, 130}, {150, 186, 200}, {120, 156, 180}, {158, 196, 214}, Undergrowth::None, 1, 0},
    PetGround{u"ash", {64, 48, 50}, {200, 96, 56}, {62, 48, 48}, {84, 72, 68}, Undergrowth::Stones, 0, 0},
    PetGround{u"cave", {38, 42, 56}, {92, 96, 108}, {46, 48, 58}, {72, 72, 78}, Undergrowth::Stones, 0, 1},
    PetGround{
        u"bricks", {124, 70, 52}, {166, 100, 70}, {140, 80, 58}, {140, 82, 60}, Undergrowth::None, 0, 1},
};

// Bricks in courses, or rock where the walls are not of bricks.
double wallLight(const PetGround& ground, const Noise& noise, double u, double v) {
    const double rough = 0.92 + 0.25 * noise.fbm(u / 16, v / 16, 4);
    if (ground.name != QStringView(u"bricks"))
        return rough * lerp(1.25, 0.55, smoothStep(10, 90, lengthOf(u - 80, v - 60)));
    const int course = int(v / 11);
    const double along = u + (course % 2) * 11;
    const bool mortar = v - course * 11 < 1.6 || along - int(along / 22) * 22 < 1.6;
    return mortar ? 0.5 : rough * (0.9 + 0.14 * noise.at(course * 3.7, int(along / 22) * 5.3 + 0.5));
}

// Long level streaks where there is water, patches of grass or sand elsewhere.
Colour floorAt(const PetGround& ground, const Noise& noise, double u, double v) {
    const double depth = lerp(1.12, 0.66, smoothStep(horizon, 120, v));
    if (ground.wet) {
        const double ripple = noise.fbm(u / 26, v / 1.7, 3) + 0.4 * noise.at(u / 60, v / 5);
        return mixed(ground.floor, ground.haze, 0.25 + 0.5 * ripple).times(depth);
    }
    const double patches = noise.fbm(u / 7, v / 3, 3) + 0.6 * noise.at(u / 22, v / 9);
    return ground.floor.times((0.86 + 0.22 * patches) * depth);
}

} // namespace

const PetGround* petGroundNamed(QStringView name) {
    const auto* found = std::find_if(grounds.begin(), grounds.end(),
                                     [&](const PetGround& known) { return known.name == name; });
    return found == grounds.end() ? nullptr : found;
}

QImage paintedBackdrop(const PetGround& ground, QSize size, int fine, Rng& rng) {
    const Noise noise(rng.next());
    QImage image(size * fine, QImage::Format_RGB32);
    std::vector<std::array<double, 2>> skyline; // both lines of hills
    for (int x = 0; x < image.width(); ++x) {
        const double u = double(x) / fine;
        skyline.push_back(
            {54 + 15 * noise.fbm(u / 44 + 7, 3.5, 4), 66 + 11 * noise.fbm(u / 30 + 19, 8.5, 4)});
    }
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double v = double(y) / fine;
        for (int x = 0; x < image.width(); ++x) {
            const double u = double(x) / fine;
            const auto [farHills, nearHills] = skyline[std::size_t(x)];
            const double cloud = v < 80 ? noise.fbm(u / 46, v / 15, 4) : 0;
            Colour colour = mixed(ground.sky, ground.haze, smoothStep(8, horizon, v + 26 * cloud));
            colour =
                mixed(colour, mixed(ground.hills, ground.haze, 0.55), smoothStep(farHills, farHills + 1, v));
            colour = mixed(colour, mixed(ground.hills, ground.haze, 0.15),
                           smoothStep(nearHills, nearHills + 1, v));
            if (ground.walled)
                colour = ground.haze.times(wallLight(ground, noise, u, v));
            if (ground.name != QStringView(u"bricks"))
                colour = mixed(colour, floorAt(ground, noise, u, v),
                               smoothStep(horizon, horizon + 3, v + 2 * noise.at(u / 9, 1.5)));
            const double corner = lengthOf(u / 80 - 1, v / 60 - 1);
            line[x] = rgbOf(colour.times(1.0 - 0.40 * smoothStep(0.7, 1.45, corner)));
        }
    }
    return image;
}

void paintUndergrowth(QPainter& painter, const PetGround& ground, QSize size, Rng& rng) {
    if (ground.undergrowth == Undergrowth::None)
        return;
    const bool reeds = ground.undergrowth == Undergrowth::Reeds;
    for (int k = 0; k < (reeds ? 12 : 46); ++k) {
        const QPointF foot(rng.range(0, size.width()), rng.range(petFeet + 1, size.height() - 2));
        const Colour shade = (ground.wet ? ground.hills : ground.floor).times(rng.range(0.5, 1.1));
        if (ground.undergrowth == Undergrowth::Stones) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(inked(shade.times(0.8), 200));
            const double wide = rng.range(0.8, 3.2);
            painter.drawEllipse(foot, wide, wide * 0.55);
            continue;
        }
        for (int blade = -2; blade <= 2; ++blade) {
            painter.setPen(QPen(inked(shade), reeds ? 1.1 : 0.7, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(foot,
                             foot + QPointF(blade * rng.range(0.6, 1.4), -rng.range(2, reeds ? 15 : 6)));
        }
    }
}

} // namespace worldgen
