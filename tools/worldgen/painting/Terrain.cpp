#include "Landscape.h"
#include "Maths.h"

#include <QPointF>

namespace worldgen {

namespace {

enum class Shore { OneSide, Corner, Gulf, Island, Isles, Inland };

// How strongly each kind of country shows in a region; 1 is a region of mountains.
struct Build {
    double mountains, breadth, hills, rise;
};

Build buildOf(Landform landform) {
    switch (landform) {
    case Landform::Hills:
        return {0.62, 0.8, 2.6, 1};
    case Landform::Plain:
        return {0.46, 0.6, 1, 0.85};
    case Landform::Fens:
        return {0.30, 0.6, 0.6, 0.5};
    case Landform::Isles:
        return {0.66, 0.8, 1.2, 0.9};
    case Landform::Mountains:
        break;
    }
    return {1, 1, 1, 1};
}

// Raises the land of one region. Positions are in units of about 1600 pixels, so that a larger picture shows
// more land and not larger hills.
class LandMaker {
  public:
    LandMaker(const RegionRecipe& recipe, const Noises& noises);
    double heightAt(double x, double y) const;

  private:
    double landShare(double u, double v) const;
    double edge(double u, double v, int side) const;
    double spineDistance(double u, double v) const;
    void growSpine(Rng& rng, QPointF from, double angle, int joints);

    const Noises& n_;
    Build build_;
    double width_;
    double depth_;
    Shore shore_;
    int side_;
    int secondSide_;
    double gulfAt_;
    double breadth_; // of the mountains
    std::vector<std::pair<QPointF, QPointF>> spine_;
};

double unitOf(QSize size) {
    return 0.5 * size.width() + 800;
}

LandMaker::LandMaker(const RegionRecipe& recipe, const Noises& noises)
    : n_(noises), build_(buildOf(recipe.landform)), width_(recipe.size.width() / unitOf(recipe.size)),
      depth_(recipe.size.height() / unitOf(recipe.size)) {
    Rng rng(recipe.seed * 5ULL + 3);
    constexpr std::array shores{Shore::OneSide, Shore::OneSide, Shore::Corner, Shore::Corner,
                                Shore::Gulf,    Shore::Gulf,    Shore::Island, Shore::Inland};
    shore_ = rng.pick(shores);
    if (recipe.landform == Landform::Isles)
        shore_ = Shore::Isles;
    side_ = rng.whole(0, 3);
    secondSide_ = (side_ < 2 ? 2 : 0) + rng.whole(0, 1);
    gulfAt_ = rng.range(0.35, 0.65);
    breadth_ = rng.range(0.052, 0.080) * build_.breadth;
    const double angle = rng.range(-0.5, 0.5) + (rng.chance(0.5) ? 0.75 : -0.75);
    const double reach = 0.36 * width_;
    const QPointF middle(width_ * rng.range(0.42, 0.58), depth_ * rng.range(0.40, 0.58));
    growSpine(rng, middle - QPointF(reach * cosineOf(angle), reach * 0.8 * sineOf(angle)), angle, 8);
    if (rng.chance(0.35))
        growSpine(rng, middle, angle + (rng.chance(0.5) ? 1.2 : -1.2), 4);
}

void LandMaker::growSpine(Rng& rng, QPointF from, double angle, int joints) {
    double turn = 0;
    for (int k = 1; k < joints; ++k) {
        turn = turn * 0.6 + rng.range(-0.5, 0.5);
        const double step = 0.105 * width_;
        const QPointF to = from + QPointF(step * cosineOf(angle + turn), step * 0.85 * sineOf(angle + turn));
        spine_.emplace_back(from, to);
        from = to;
    }
}

double LandMaker::spineDistance(double u, double v) const {
    double nearest = 81;
    for (const auto& [a, b] : spine_) {
        const QPointF d = b - a;
        const double along = (u - a.x()) * d.x() + (v - a.y()) * d.y();
        const double t = clamp01(along / (d.x() * d.x() + d.y() * d.y()));
        const double ex = u - a.x() - t * d.x();
        const double ey = v - a.y() - t * d.y();
        nearest = std::min(nearest, ex * ex + ey * ey);
    }
    return std::sqrt(nearest);
}

// 0 on the given side of the picture, 1 on the opposite one.
double LandMaker::edge(double u, double v, int side) const {
    switch (side) {
    case 0:
        return u / width_;
    case 1:
        return 1 - u / width_;
    case 2:
        return v / depth_;
    default:
        return 1 - v / depth_;
    }
}

double LandMaker::landShare(double u, double v) const {
    const double first = edge(u, v, side_);
    const double second = edge(u, v, secondSide_);
    switch (shore_) {
    case Shore::OneSide:
        return smoothStep(0.08, 0.30, first);
    case Shore::Corner:
        return smoothStep(0.08, 0.27, first) * smoothStep(0.06, 0.25, second);
    case Shore::Gulf: {
        const double across = std::fabs(second - gulfAt_) * (side_ < 2 ? depth_ : width_);
        return smoothStep(0.02, 0.20, first) *
               smoothStep(0, 0.17, across + 0.55 * std::max(0.0, first - 0.25));
    }
    case Shore::Island: {
        const double du = 2 * u / width_ - 1;
        const double dv = 2 * v / depth_ - 1;
        return smoothStep(1.04, 0.66,
                          std::sqrt(std::sqrt(du * du * du * du + dv * dv * dv * dv)) +
                              0.20 * n_.c.fbm(u * 2.2 + 40, v * 2.2, 3));
    }
    case Shore::Isles: {
        double share = smoothStep(-0.04, 0.20, n_.c.fbm(u * 2.7 + 60, v * 2.7, 3));
        for (int side = 0; side < 4; ++side)
            share *= smoothStep(0.02, 0.14, edge(u, v, side));
        return share;
    }
    case Shore::Inland:
        break;
    }
    return smoothStep(-0.12, 0.05, first);
}

double LandMaker::heightAt(double x, double y) const {
    const double warpX = 0.09 * n_.b.fbm(x * 3 + 5, y * 3, 4);
    const double warpY = 0.09 * n_.b.fbm(x * 3 - 8, y * 3 + 2, 4);
    const double u = x + warpX;
    const double v = y + warpY;
    const double land = landShare(u, v);
    const double inland = smoothStep(0.5, 0.9, land);
    double height = 0.30 * land + 0.16 * n_.a.fbm(u * 3.1, v * 3.1, 5) - 0.095;
    height += 0.075 * n_.d.fbm(u * 8.5 + 3, v * 8.5, 6, 0.55) * (1 - 0.6 * inland);
    height += 0.20 * smoothStep(0.30, 0.55, n_.b.fbm(x * 6 + 31, y * 6, 3)) * (1 - land);
    const double away =
        spineDistance(u + 0.03 * n_.c.fbm(x * 9, y * 9, 3), v + 0.03 * n_.c.fbm(x * 9 + 4, y * 9, 3)) /
        breadth_;
    const double mountain = expOf(-away * away) * smoothStep(0.25, 0.85, land);
    const double hills = smoothStep(0.1, 0.4, n_.c.fbm(u * 2.3 + 9, v * 2.3, 3) + 0.15) * 0.5 * land;
    const double crests = n_.d.ridged(u * 5.2, v * 5.2, 6);
    height += mountain * build_.mountains * (0.16 + 0.62 * crests) + hills * build_.hills * 0.18 * crests;
    if (height > 0)
        height *= lerp(build_.rise, 1, smoothStep(0.15, 0.5, height));
    return height + 0.02 * n_.a.fbm(x * 22, y * 22, 4);
}

} // namespace

Field raisedLand(const RegionRecipe& recipe, const Noises& noises) {
    const LandMaker maker(recipe, noises);
    const double unit = unitOf(recipe.size) / cellSide;
    Field height(recipe.size.width() / cellSide, recipe.size.height() / cellSide);
    for (int y = 0; y < height.height(); ++y)
        for (int x = 0; x < height.width(); ++x)
            height.at(x, y) = float(maker.heightAt(x / unit, y / unit));
    return height;
}

} // namespace worldgen
