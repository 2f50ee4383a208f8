#pragma once

#include "Field.h"
#include "Noise.h"
#include "Palette.h"
#include "RegionPainter.h"

#include <vector>

namespace worldgen {

// The noises of one region; which one serves which purpose only keeps patterns from repeating each other.
struct Noises {
    explicit Noises(quint32 seed)
        : a(seed * 8ULL + 1), b(seed * 8ULL + 2), c(seed * 8ULL + 3), d(seed * 8ULL + 4) {}
    Noise a, b, c, d;
};

// Terrain is computed at half the picture's resolution.
constexpr int cellSide = 2;

// Where water runs; indices are cells of the terrain grid, row by row.
struct Drainage {
    Field filled;              // height with every hollow filled to its brim
    std::vector<int> downhill; // the next cell on the way to the sea; -1: none
    std::vector<float> flow;   // cells drained through this one, itself included
    std::vector<int> order;    // all cells, each after the one it drains to
};

// A river from its spring to the sea or to a larger river, in picture pixels.
struct River {
    std::vector<QPointF> points;
    std::vector<double> widths; // one per point
};

struct Landscape {
    explicit Landscape(const RegionRecipe& recipe);

    QSize size;
    Theme theme;
    Landform landform;
    Palette palette;
    Noises noises;
    Field cells; // eroded height per terrain cell
    Drainage drainage;
    Field lakes;    // 0..1 cover per terrain cell, soft at the shore
    Field height;   // per pixel, sea level 0
    Field toLand;   // pixels from water to land, 0 on land
    Field toWater;  // pixels from land to sea or lake, 0 on water
    Field toRiver;  // cells to the nearest drawn river
    Field surround; // height of the wider neighbourhood per terrain cell
    Field moisture; // coarse layer, patchSide pixels a cell
    Field woods;    // coarse layer, patchSide pixels a cell: trees where > 0.16
    std::vector<River> rivers;

    static constexpr int patchSide = 4;

    bool inside(int x, int y) const { return x >= 0 && y >= 0 && x < size.width() && y < size.height(); }
    bool water(int x, int y) const { return toWater.clamped(x, y) == 0; }
    bool sea(int x, int y) const { return height.clamped(x, y) <= 0; }
    double slope(int x, int y, int reach) const;
    double moistureAt(double x, double y) const { return moisture.sampled(x / patchSide, y / patchSide); }
    double woodsAt(double x, double y) const { return woods.sampled(x / patchSide, y / patchSide); }
    double surroundAt(double x, double y) const { return surround.sampled(x / cellSide, y / cellSide); }
    double riverDistance(double x, double y) const {
        return toRiver.sampled(x / cellSide, y / cellSide) * cellSide;
    }
    // Lets woods grow (or, below 0, go) within `radius` pixels.
    void plant(QPoint middle, double radius, double amount);
    // Ground that is white or under a mountain's glyph.
    bool highGround(int x, int y) const;
};

Field raisedLand(const RegionRecipe& recipe, const Noises& noises);
void erode(Field& height, quint32 seed);
// `wobble` makes rivers wind where the land is flat.
Drainage drained(const Field& height, const Noise& wobble);
// Fills all hollows but the few largest, so that the map shows lakes and not puddles; returns the lakes'
// cells as 1.
Field settledLakes(Field& height, const Drainage& drainage, const RegionRecipe& recipe);
std::vector<River> tracedRivers(const Landscape& land);

} // namespace worldgen
