#include "Landscape.h"

#include "Maths.h"

#include <QPointF>

namespace worldgen {

namespace {

// Half-resolution terrain brought to full resolution, with crags and ripples too fine for the erosion.
Field detailedHeight(const Landscape& land) {
    const Noises& n = land.noises;
    const Field soft = blurred(land.cells, 1);
    const int width = land.size.width();
    const int height = land.size.height();
    const Field warpX =
        coarseLayer(width, height, 4, [&](double x, double y) { return n.b.fbm(x / 70, y / 70, 3); });
    const Field warpY =
        coarseLayer(width, height, 4, [&](double x, double y) { return n.c.fbm(x / 70, y / 70, 3); });
    Field result(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            double h = soft.sampled(double(x) / cellSide, double(y) / cellSide);
            const double crags = smoothStep(0.20, 0.46, h);
            const double ripples = smoothStep(0, 0.25, h);
            if (crags > 0) {
                const double u = x / 80.0 + 0.45 * warpX.sampled(x / 4.0, y / 4.0);
                const double v = y / 80.0 + 0.45 * warpY.sampled(x / 4.0, y / 4.0);
                h += 0.085 * (n.d.ridged(u, v, 5) - 0.45) * crags;
            }
            if (ripples > 0)
                h += 0.006 * n.c.fbm(x / 26.0, y / 26.0, 3) * ripples;
            result.at(x, y) = float(h);
        }
    return result;
}

void measureShores(Landscape& land) {
    Field dry(land.size.width(), land.size.height());
    Field wet(land.size.width(), land.size.height());
    for (int y = 0; y < dry.height(); ++y)
        for (int x = 0; x < dry.width(); ++x) {
            const bool water = land.height.at(x, y) <= 0 ||
                               land.lakes.sampled(double(x) / cellSide, double(y) / cellSide) > 0.45;
            dry.at(x, y) = water ? 1 : 0;
            wet.at(x, y) = water ? 0 : 1;
        }
    land.toLand = distances(std::move(dry));
    land.toWater = distances(std::move(wet));
}

Field riverDistances(const Landscape& land) {
    Field away(land.cells.width(), land.cells.height(), 1);
    for (const River& river : land.rivers)
        for (const QPointF& p : river.points) {
            const int x = int(p.x()) / cellSide;
            const int y = int(p.y()) / cellSide;
            if (x >= 0 && y >= 0 && x < away.width() && y < away.height())
                away.at(x, y) = 0;
        }
    return distances(std::move(away));
}

} // namespace

Landscape::Landscape(const RegionRecipe& recipe)
    : size(recipe.size), theme(recipe.theme), landform(recipe.landform),
      palette(paletteOf(recipe.theme, recipe.campaign)), noises(recipe.seed),
      cells(raisedLand(recipe, noises)) {
    erode(cells, recipe.seed);
    drainage = drained(cells, noises.d);
    lakes = blurred(settledLakes(cells, drainage, recipe), 2);
    rivers = tracedRivers(*this);
    toRiver = riverDistances(*this);
    surround = blurred(blurred(cells, 10), 10);
    height = detailedHeight(*this);
    measureShores(*this);
    const int w = size.width();
    const int h = size.height();
    moisture = coarseLayer(w, h, patchSide, [&](double x, double y) {
        const double shore = std::min<double>(toWater.clamped(int(x), int(y)), riverDistance(x, y) + 6);
        return palette.moisture + (landform == Landform::Fens ? 0.16 : 0) +
               0.5 * noises.b.fbm(x / 330, y / 330, 4) + 0.25 * expOf(-shore / 60) -
               0.25 * height.clamped(int(x), int(y));
    });
    woods = coarseLayer(w, h, patchSide, [&](double x, double y) {
        return palette.moisture + 0.55 * noises.b.fbm(x / 330, y / 330, 4) +
               0.55 * noises.a.fbm(x / 120 + 40, y / 120, 3);
    });
}

double Landscape::slope(int x, int y, int reach) const {
    return lengthOf(height.clamped(x + reach, y) - height.clamped(x - reach, y),
                    height.clamped(x, y + reach) - height.clamped(x, y - reach));
}

void Landscape::plant(QPoint middle, double radius, double amount) {
    for (int y = 0; y < woods.height(); ++y)
        for (int x = 0; x < woods.width(); ++x) {
            const double away = lengthOf(x * patchSide - middle.x(), y * patchSide - middle.y());
            woods.at(x, y) += float(amount * smoothStep(radius, radius * 0.45, away));
        }
}

bool Landscape::highGround(int x, int y) const {
    const double h = height.clamped(x, y);
    return h > std::min(0.33, palette.snowline - 0.2);
}

} // namespace worldgen
