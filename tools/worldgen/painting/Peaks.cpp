#include "Maths.h"
#include "Sprites.h"

namespace worldgen {

namespace {

constexpr int kFine = 3;              // samples per pixel
constexpr double kSpan = 1.25;        // the model reaches this far to each side, in half-widths
constexpr double kForeshorten = 0.42; // depth on the ground against width

/// Height of a mountain over its own ground, x and depth in -kSpan..kSpan, 1 at the summit.
class PeakModel {
  public:
    PeakModel(PeakStyle style, Rng& rng);
    double heightAt(double x, double depth) const;
    /// How deep inside a glowing crater the point lies, 0..1.
    double glowAt(double x, double depth) const;

  private:
    struct Cone {
        double x, depth, height, reach;
    };
    PeakStyle style_;
    Noise noise_;
    std::vector<Cone> cones_;
};

PeakModel::PeakModel(PeakStyle style, Rng& rng) : style_(style), noise_(rng.next()) {
    cones_.push_back({rng.range(-0.12, 0.12), 0, 1, 1});
    const int shoulders = rng.whole(1, 3);
    for (int k = 0; k < shoulders; ++k)
        cones_.push_back(
            {rng.range(-0.62, 0.62), rng.range(-0.35, 0.45), rng.range(0.34, 0.66), rng.range(0.4, 0.6)});
}

double PeakModel::heightAt(double x, double depth) const {
    const double warp = 0.16 * noise_.fbm(x * 1.7 + 3, depth * 1.7, 3);
    double height = 0;
    for (const Cone& cone : cones_) {
        const double away = lengthOf(x + warp - cone.x, depth - warp - cone.depth) / cone.reach;
        height = std::max(height, cone.height *
                                      powOf(std::max(0.0, 1 - away), style_ == PeakStyle::Mesa ? 0.8 : 1.12));
    }
    const double crests = noise_.ridged(x * 1.5 + 9, depth * 1.5 + 4, 4);
    height *= 0.62 + 0.58 * crests;
    if (style_ == PeakStyle::Mesa) { // a flat top above steps
        height = std::min(height * 1.5, 0.56 + 0.05 * noise_.at(x * 3, depth * 3));
        height =
            0.55 * height +
            0.45 * (std::floor(height * 5) + smoothStep(0.55, 0.95, height * 5 - std::floor(height * 5))) / 5;
    } else if (style_ == PeakStyle::Volcanic) {
        const double rim = lengthOf(x - cones_[0].x, depth);
        height = std::min(height, 0.80) - 0.5 * smoothStep(0.20, 0.04, rim);
    }
    return std::max(0.0, height);
}

double PeakModel::glowAt(double x, double depth) const {
    return style_ == PeakStyle::Volcanic ? smoothStep(0.2, 0.06, lengthOf(x - cones_[0].x, depth)) : 0;
}

/// The model seen from the south: columns are filled from the front to the back, each point hiding what lies
/// behind.
class PeakRaster {
  public:
    PeakRaster(const Palette& palette, double scale, double snow, Rng& rng);
    Sprite sprite() const;

  private:
    void paintColumn(int column);
    QRgb colourAt(double x, double depth, double height) const;

    const Palette& palette_;
    PeakModel model_;
    Noise grain_;
    double half_; // half-width in fine pixels
    double tall_; // summit in fine pixels
    double snow_;
    int ground_; // row of the model's middle line
    QImage fine_;
};

PeakRaster::PeakRaster(const Palette& palette, double scale, double snow, Rng& rng)
    : palette_(palette), model_(palette.peaks, rng), grain_(rng.next()), half_(25 * scale * kFine),
      tall_(rng.range(34, 42) * scale * kFine * (palette.peaks == PeakStyle::Mesa ? 1.15 : 1)), snow_(snow) {
    const int width = int(2 * kSpan * half_ / kFine + 2) * kFine;
    const int above = int((tall_ * 1.2 + half_ * kForeshorten) / kFine + 2) * kFine;
    const int below = int(half_ * kForeshorten * kSpan / kFine + 2) * kFine;
    ground_ = above;
    fine_ = QImage(width, above + below, QImage::Format_ARGB32_Premultiplied);
    fine_.fill(Qt::transparent);
    for (int column = 0; column < width; ++column)
        paintColumn(column);
}

QRgb PeakRaster::colourAt(double x, double depth, double height) const {
    constexpr double e = 0.035;
    const double dx = (model_.heightAt(x + e, depth) - height) / e * 0.9;
    const double dy = (model_.heightAt(x, depth + e) - height) / e * 0.9;
    const double lambert = (0.50 + 0.66 * dx + 0.40 * dy) / std::sqrt(dx * dx + dy * dy + 1);
    const double light =
        0.40 + 0.95 * clamp01(lambert + 0.12) + 0.08 * grain_.fbm(x * 9, depth * 9 + height * 7, 2);
    Colour rock =
        mixed(palette_.rock, palette_.high, 0.35 * smoothStep(-0.2, 0.3, grain_.at(x * 4, height * 6)));
    if (palette_.peaks == PeakStyle::Mesa)
        rock =
            mixed(rock, palette_.dry, 0.45 * smoothStep(-0.1, 0.25, grain_.at(3.5, height * 14 + 0.4 * x)));
    const double white =
        height + 0.10 * grain_.fbm(x * 6, depth * 6, 3) - 0.05 * std::max(0.0, 0.3 - lambert);
    const double cover = snow_ <= 0 ? 0 : smoothStep(1 - snow_ - 0.05, 1 - snow_ + 0.05, white);
    Colour colour = rock.times(light * 1.12, light * 1.10, light * 1.04 + 0.02);
    const double bright = 0.42 + 0.62 * clamp01(lambert + 0.15);
    colour = mixed(colour, palette_.snow.times(bright * 0.97, bright, bright * 1.02 + 0.04), cover);
    colour = mixed(colour, Colour{214, 92, 30}, model_.glowAt(x, depth) * 0.85);
    const double alpha = smoothStep(0.02, 0.17, height + 0.03 * grain_.at(x * 8, depth * 8));
    return qPremultiply(qRgba(byteOf(colour.r), byteOf(colour.g), byteOf(colour.b), byteOf(alpha * 255)));
}

void PeakRaster::paintColumn(int column) {
    const double x = (column - fine_.width() / 2.0) / half_;
    int highest = fine_.height(); // topmost row filled so far
    double lastHeight = 0;
    for (double depth = kSpan; depth >= -kSpan; depth -= 0.022) {
        const double height = model_.heightAt(x, depth);
        const int row = std::max(0, int(ground_ + depth * half_ * kForeshorten - height * tall_));
        if (row < highest && height > 0.02) {
            const QRgb colour = colourAt(x, depth, height);
            for (int y = row; y < std::min(highest, row + int(tall_)); ++y)
                reinterpret_cast<QRgb*>(fine_.scanLine(y))[column] = colour;
            lastHeight = height;
        }
        highest = std::min(highest, row);
    }
    // A line of ink along the skyline lifts the mountain from what stands behind it.
    for (int y = highest; lastHeight > 0.12 && y < std::min(highest + 3, fine_.height()); ++y) {
        QRgb& pixel = reinterpret_cast<QRgb*>(fine_.scanLine(y))[column];
        pixel = qRgba(qRed(pixel) * 2 / 5, qGreen(pixel) * 2 / 5, qBlue(pixel) * 2 / 5, qAlpha(pixel));
    }
}

Sprite PeakRaster::sprite() const {
    return {shrunk(fine_, kFine), QPointF(fine_.width() / 2.0 / kFine, double(ground_) / kFine)};
}

} // namespace

Sprite paintedPeak(const Palette& palette, double scale, double snow, Rng& rng) {
    return PeakRaster(palette, scale, snow, rng).sprite();
}

} // namespace worldgen
