#include "Ground.h"

#include "Maths.h"

namespace worldgen {

namespace {

// How much the land rises behind a shore that looks south.
double riseBehind(const Landscape& land, int x, int y) {
    return land.height.clamped(x, y - 16) + land.height.clamped(x, y - 34);
}

// Height in pixels of the cliff above such a shore; 0: a beach. Where the land rises for a few steps only
// there is none: it would lie on the beach like a log.
int cliffAt(const Landscape& land, int x, int y) {
    constexpr int beside = 13;
    const double rise =
        std::min({riseBehind(land, x - beside, y), riseBehind(land, x, y), riseBehind(land, x + beside, y)});
    const double steep = rise + 0.16 * land.noises.c.fbm(x / 70.0, y / 70.0, 3);
    return int(13 * smoothStep(0.18, 0.32, steep) + 2 * land.noises.a.at(x / 7.0, y / 40.0));
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

// 1 between the peaks, fading on the way down from them; 0 in the open country.
Field nearPeaks(const Landscape& land) {
    constexpr float peakHeight = 0.40F;
    constexpr double foot = 36; // pixels
    Field away = land.cells;
    for (int cell = 0; cell < away.count(); ++cell)
        away[cell] = away[cell] > peakHeight ? 0 : 1;
    away = distances(std::move(away));
    for (int cell = 0; cell < away.count(); ++cell)
        away[cell] = float(smoothStep(foot, foot / 3, away[cell] * cellSide));
    return away;
}

// 0 on roads and in villages and a little around them, 1 elsewhere.
Field offTaken(const Landscape& land, const QImage& taken) {
    Field share(land.cells.width(), land.cells.height());
    for (int y = 0; y < share.height(); ++y)
        for (int x = 0; x < share.width(); ++x)
            share.at(x, y) = taken.constScanLine(y * cellSide)[x * cellSide] > 0 ? 1 : 0;
    share = blurred(share, 4);
    for (int cell = 0; cell < share.count(); ++cell)
        share[cell] = float(smoothStep(0.3, 0.02, share[cell]));
    return share;
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

void paintCracks(QImage& picture, const Landscape& land, const QImage& taken) {
    if (land.theme != Theme::Ash)
        return;
    const Noises& n = land.noises;
    const Field peaks = nearPeaks(land);
    const Field open = offTaken(land, taken);
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const double u = double(x) / cellSide;
            const double v = double(y) / cellSide;
            if (peaks.sampled(u, v) <= 0 || land.toWater.at(x, y) < 30)
                continue;
            const double share = smoothStep(0.10, 0.32, n.a.fbm(x / 140.0 + 9, y / 140.0, 2)) *
                                 peaks.sampled(u, v) * open.sampled(u, v) *
                                 smoothStep(8, 22, land.riverDistance(x, y));
            const double where = smoothStep(0.35, 0.75, share); // no dull ends
            if (where <= 0)
                continue;
            const double crack = 1 - std::fabs(n.c.fbm(x / 52.0, y / 40.0, 3));
            tint(line[x], Colour{26, 18, 16}, smoothStep(0.90, 0.97, crack) * where * 0.75);
            tint(line[x], Colour{238, 112, 36}, smoothStep(0.972, 0.990, crack) * where);
        }
    }
}

} // namespace worldgen
