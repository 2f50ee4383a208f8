#include "Maths.h"
#include "Sprites.h"

namespace worldgen {

namespace {

constexpr int fineness = 3;          // samples per pixel
constexpr double span = 1.25;        // the model reaches this far to each side, in half-widths
constexpr double foreshorten = 0.42; // depth on the ground against width
constexpr double depthStep = 0.024;
constexpr int depthSteps = int(2 * span / depthStep) + 1;

// Height of a mountain over its own ground, x and depth in -span..span, 1 at the summit.
class PeakModel {
  public:
    PeakModel(PeakStyle style, Rng& rng);
    double heightAt(double x, double depth) const;
    // How deep inside a glowing crater, or in the lava that runs from it, the point lies: 0..1.
    double glowAt(double x, double depth) const;

  private:
    struct Cone {
        double x, depth, height, reach;
    };
    double body(double x, double depth) const;
    double mesa(double x, double depth, double height) const;

    PeakStyle style_;
    Noise noise_;
    std::vector<Cone> cones_;
    double lavaTurn_;
};

PeakModel::PeakModel(PeakStyle style, Rng& rng) : style_(style), noise_(rng.next()) {
    cones_.push_back({rng.range(-0.12, 0.12), 0, 1, 1});
    const int shoulders = style == PeakStyle::Volcanic ? 0 : rng.whole(1, 3);
    for (int k = 0; k < shoulders; ++k) {
        const double x = rng.range(-0.62, 0.62);
        const double depth = rng.range(-0.35, 0.45);
        const double height = rng.range(0.34, 0.66);
        cones_.push_back({x, depth, height, rng.range(0.4, 0.6)});
    }
    lavaTurn_ = rng.range(-0.35, 0.35);
}

// The mountain's mass without its crests.
double PeakModel::body(double x, double depth) const {
    const double warp = 0.16 * noise_.fbm(x * 1.7 + 3, depth * 1.7, 3);
    const double bulge = style_ == PeakStyle::Mesa ? 0.7 : style_ == PeakStyle::Hill ? 0.9 : 1.12;
    double height = 0;
    for (const Cone& cone : cones_) {
        const double away = lengthOf(x + warp - cone.x, depth - warp - cone.depth) / cone.reach;
        if (away < 1)
            height = std::max(height, cone.height * powOf(1 - away, bulge));
    }
    return height;
}

// Cut off flat, with steps on the way up.
double PeakModel::mesa(double x, double depth, double height) const {
    height = std::min(height * 1.7, 0.60 + 0.02 * noise_.at(x * 2, depth * 2));
    const double steps = height * 4.2;
    const double whole = std::floor(steps);
    return 0.4 * height + 0.6 * (whole + smoothStep(0.5, 1.0, steps - whole)) / 4.2;
}

double PeakModel::heightAt(double x, double depth) const {
    const double mass = body(x, depth);
    if (mass <= 0)
        return 0;
    if (style_ == PeakStyle::Hill)
        return mass * (0.85 + 0.2 * noise_.at(x * 2, depth * 2));
    const double crests = noise_.ridged(x * 1.5 + 9, depth * 1.5 + 4, 4);
    if (style_ == PeakStyle::Mesa)
        return mesa(x, depth, mass * (0.85 + 0.25 * crests));
    double height = mass * (0.62 + 0.58 * crests);
    if (style_ == PeakStyle::Volcanic)
        height = std::min(height, 0.74) - 0.5 * smoothStep(0.24, 0.08, lengthOf(x - cones_[0].x, depth));
    return std::max(0.0, height);
}

double PeakModel::glowAt(double x, double depth) const {
    if (style_ != PeakStyle::Volcanic)
        return 0;
    const double cx = x - cones_[0].x;
    const double crater = smoothStep(0.22, 0.08, lengthOf(cx, depth));
    const double bend = cx - lavaTurn_ * depth - 0.07 * noise_.at(depth * 5, 2.5);
    const double stream = smoothStep(0.05, 0.02, std::fabs(bend)) * smoothStep(0.05, 0.15, depth) *
                          smoothStep(0.85, 0.35, depth);
    return std::max(crater, stream);
}

// The model seen from the south: columns are filled from the front to the back, each point hiding what lies
// behind.
class PeakRaster {
  public:
    PeakRaster(const Palette& palette, const PeakShape& shape, Rng& rng);
    Sprite sprite() const;

  private:
    double acrossOf(int column) const { return (column - fine_.width() / 2.0) / half_; }
    static double depthOf(int step) { return span - step * depthStep; }
    void paintColumn(int column);
    void inkSkyline(int column, int top);
    double lightAt(int column, int step) const;
    Colour rockAt(double x, double height, double light) const;
    QRgb colourAt(int column, int step) const;

    const Palette& palette_;
    PeakShape shape_;
    PeakModel model_;
    Noise grain_;
    double half_; // half-width in fine pixels
    double tall_; // summit in fine pixels
    int ground_;  // row of the model's middle line
    Field heights_;
    QImage fine_;
};

double tallness(PeakStyle style) {
    switch (style) {
    case PeakStyle::Hill:
        return 0.30;
    case PeakStyle::Mesa:
        return 0.95;
    case PeakStyle::Volcanic:
        return 1.05;
    case PeakStyle::Alpine:
        break;
    }
    return 1;
}

PeakRaster::PeakRaster(const Palette& palette, const PeakShape& shape, Rng& rng)
    : palette_(palette), shape_(shape), model_(shape.style, rng), grain_(rng.next()),
      half_(25 * shape.scale * fineness),
      tall_(rng.range(34, 42) * shape.scale * fineness * tallness(shape.style)) {
    const int width = int(2 * span * half_ / fineness + 2) * fineness;
    const int above = int((tall_ * 1.2 + half_ * foreshorten) / fineness + 2) * fineness;
    const int below = int(half_ * foreshorten * span / fineness + 2) * fineness;
    ground_ = above;
    fine_ = QImage(width, above + below, QImage::Format_ARGB32_Premultiplied);
    fine_.fill(Qt::transparent);
    heights_ = Field(width, depthSteps);
    for (int step = 0; step < depthSteps; ++step)
        for (int column = 0; column < width; ++column)
            heights_.at(column, step) = float(model_.heightAt(acrossOf(column), depthOf(step)));
    for (int column = 0; column < width; ++column)
        paintColumn(column);
}

// Lambert's cosine, unclamped.
double PeakRaster::lightAt(int column, int step) const {
    const double steep = shape_.style == PeakStyle::Hill ? 0.55 : 0.9;
    const double e = 2 / half_;
    const double dx =
        (heights_.clamped(column + 2, step) - heights_.clamped(column - 2, step)) / (2 * e) * steep;
    const double dy =
        (heights_.clamped(column, step - 1) - heights_.clamped(column, step + 1)) / (2 * depthStep) * steep;
    return (0.50 + 0.66 * dx + 0.40 * dy) / std::sqrt(dx * dx + dy * dy + 1);
}

Colour PeakRaster::rockAt(double x, double height, double light) const {
    if (shape_.style == PeakStyle::Hill)
        return shape_.ground.times(0.44 + 0.66 * light);
    Colour rock =
        mixed(palette_.rock, palette_.high, 0.35 * smoothStep(-0.2, 0.3, grain_.at(x * 4, height * 6)));
    if (shape_.style == PeakStyle::Mesa)
        rock = mixed(rock, palette_.dry.times(1.15),
                     0.5 * smoothStep(-0.1, 0.25, grain_.at(3.5, height * 12 + 0.3 * x)));
    return rock.times(light * 1.12, light * 1.10, light * 1.04 + 0.02);
}

QRgb PeakRaster::colourAt(int column, int step) const {
    const double x = acrossOf(column);
    const double depth = depthOf(step);
    const double height = heights_.at(column, step);
    const double lambert = lightAt(column, step);
    const double light =
        0.40 + 0.95 * clamp01(lambert + 0.12) + 0.08 * grain_.fbm(x * 9, depth * 9 + height * 7, 2);
    Colour colour = rockAt(x, height, light);
    if (shape_.snow > 0) {
        const double white =
            height + 0.10 * grain_.fbm(x * 6, depth * 6, 3) - 0.05 * std::max(0.0, 0.3 - lambert);
        const double bright = 0.44 + 0.68 * clamp01(lambert + 0.15);
        colour = mixed(colour, palette_.snow.times(bright, bright, bright * 0.98 + 0.05),
                       smoothStep(1 - shape_.snow - 0.05, 1 - shape_.snow + 0.05, white));
    }
    colour = mixed(colour, Colour{226, 98, 30}, model_.glowAt(x, depth) * 0.85);
    const double foot = shape_.style == PeakStyle::Hill ? 0.45 : 0.17;
    const double alpha = smoothStep(0.02, foot, height + 0.03 * grain_.at(x * 8, depth * 8));
    return qPremultiply(qRgba(byteOf(colour.r), byteOf(colour.g), byteOf(colour.b), byteOf(alpha * 255)));
}

void PeakRaster::paintColumn(int column) {
    int top = fine_.height(); // topmost row filled so far
    double topHeight = 0;
    for (int step = 0; step < depthSteps; ++step) {
        const double height = heights_.at(column, step);
        const int row = std::max(0, int(ground_ + depthOf(step) * half_ * foreshorten - height * tall_));
        if (row < top && height > 0.02) {
            const QRgb colour = colourAt(column, step);
            for (int y = row; y < std::min(top, row + int(tall_)); ++y)
                reinterpret_cast<QRgb*>(fine_.scanLine(y))[column] = colour;
            topHeight = height;
        }
        top = std::min(top, row);
    }
    if (topHeight > 0.12 && shape_.style != PeakStyle::Hill)
        inkSkyline(column, top);
}

// A line of ink along the skyline lifts the mountain from what stands behind it.
void PeakRaster::inkSkyline(int column, int top) {
    for (int y = top; y < std::min(top + 3, fine_.height()); ++y) {
        QRgb& pixel = reinterpret_cast<QRgb*>(fine_.scanLine(y))[column];
        pixel = qRgba(qRed(pixel) * 2 / 5, qGreen(pixel) * 2 / 5, qBlue(pixel) * 2 / 5, qAlpha(pixel));
    }
}

Sprite PeakRaster::sprite() const {
    return {shrunk(fine_, fineness), QPointF(fine_.width() / 2.0 / fineness, double(ground_) / fineness)};
}

} // namespace

Sprite paintedPeak(const Palette& palette, const PeakShape& shape, Rng& rng) {
    return PeakRaster(palette, shape, rng).sprite();
}

} // namespace worldgen
