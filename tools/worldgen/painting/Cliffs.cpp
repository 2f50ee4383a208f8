#include "Ground.h"

#include "Maths.h"

namespace worldgen {

namespace {

// Height in pixels of the cliff above a shore that looks south; 0: a beach.
int cliffAt(const Landscape& land, int x, int y) {
    const double rise = land.height.clamped(x, y - 16) + land.height.clamped(x, y - 34);
    const double steep = rise + 0.16 * land.noises.c.fbm(x / 70.0, y / 70.0, 3);
    return int(13 * smoothStep(0.20, 0.34, steep) + 2 * land.noises.a.at(x / 7.0, y / 40.0));
}

void paintCliffFace(QImage& picture, const Landscape& land, QPoint foot, int tall) {
    const Colour rock = mixed(land.palette.rock, land.palette.high, 0.3);
    for (int k = 0; k < tall && foot.y() - k > 0; ++k) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(foot.y() - k));
        const double grain = land.noises.d.at(foot.x() / 2.6, (foot.y() - k) / 16.0);
        const double light = (0.42 + 0.5 * k / tall) * (1 + 0.45 * grain);
        tint(line[foot.x()], rock.times(light), 0.92);
    }
    if (foot.y() - tall > 0) {
        auto* edge = reinterpret_cast<QRgb*>(picture.scanLine(foot.y() - tall));
        tint(edge[foot.x()], rock.times(1.55), 0.55);
    }
}

} // namespace

void paintCliffs(QImage& picture, const Landscape& land) {
    for (int x = 0; x < picture.width(); ++x)
        for (int y = 40; y < picture.height(); ++y) {
            if (land.water(x, y - 1) || !land.water(x, y) || !land.sea(x, y))
                continue;
            const int tall = cliffAt(land, x, y);
            if (tall > 3)
                paintCliffFace(picture, land, {x, y - 1}, tall);
        }
}

void paintCracks(QImage& picture, const Landscape& land) {
    if (land.theme != Theme::Ash)
        return;
    const Noises& n = land.noises;
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const double height = land.height.at(x, y);
            if (height < 0.17 || land.toWater.at(x, y) < 30)
                continue;
            const double where = smoothStep(0.10, 0.32, n.a.fbm(x / 140.0 + 9, y / 140.0, 2)) *
                                 smoothStep(0.17, 0.26, height) *
                                 smoothStep(0.24, 0.31, land.surroundAt(x, y)); // by a range
            if (where <= 0)
                continue;
            const double crack = 1 - std::fabs(n.c.fbm(x / 52.0, y / 40.0, 3));
            tint(line[x], Colour{26, 18, 16}, smoothStep(0.90, 0.97, crack) * where * 0.75);
            tint(line[x], Colour{238, 112, 36}, smoothStep(0.972, 0.990, crack) * where);
        }
    }
}

} // namespace worldgen
