#include "Ground.h"

#include "Maths.h"

namespace worldgen {

namespace {

constexpr double relief = 34; // how much steeper than its map scale the land is lit

// The patterns that vary slowly enough to be computed once per few pixels.
struct GroundLayers {
    explicit GroundLayers(const Landscape& land);

    Field shoal;  // wobble of the sea's depth bands
    Field swell;  // long streaks on the water
    Field jitter; // frays every border between two ground colours
    Field upland; // where low land takes the colour of the heights
    Field shade;  // darker patches: heath, low woods
    Field meadow; // lighter patches
};

GroundLayers::GroundLayers(const Landscape& land) {
    const Noises& n = land.noises;
    const int w = land.size.width();
    const int h = land.size.height();
    shoal = coarseLayer(w, h, 4, [&](double x, double y) { return 6 * n.b.fbm(x / 40, y / 40, 3); });
    swell = coarseLayer(w, h, 4, [&](double x, double y) { return n.a.fbm(x / 90, y / 22, 4); });
    jitter = coarseLayer(w, h, 2, [&](double x, double y) { return 0.10 * n.d.fbm(x / 17, y / 17, 4); });
    upland = coarseLayer(w, h, 4, [&](double x, double y) { return n.a.fbm(x / 150 + 70, y / 150, 5); });
    shade = coarseLayer(w, h, 4, [&](double x, double y) { return n.b.fbm(x / 85, y / 85 + 50, 4); });
    meadow = coarseLayer(w, h, 4, [&](double x, double y) { return n.c.fbm(x / 60 + 20, y / 44, 4); });
}

Colour waterColour(const Landscape& land, const GroundLayers& layers, int x, int y) {
    const Palette& p = land.palette;
    const double depth = land.toLand.at(x, y) + layers.shoal.sampled(x / 4.0, y / 4.0);
    const double reach = land.sea(x, y) ? 70 : 46;
    const Colour water = mixed(p.shallow, p.deep, 1 - expOf(-std::max(0.0, depth) / reach));
    return mixed(water, water.times(1.14, 1.14, 1.10), 0.5 + 0.9 * layers.swell.sampled(x / 4.0, y / 4.0));
}

Colour soilColour(const Landscape& land, const GroundLayers& layers, int x, int y) {
    const Palette& p = land.palette;
    const double height = land.height.at(x, y);
    const double jitter = layers.jitter.sampled(x / 2.0, y / 2.0);
    const double shade = layers.shade.sampled(x / 4.0, y / 4.0);
    Colour low = mixed(p.dry, p.low, smoothStep(-0.18, 0.14, land.moistureAt(x, y) + jitter));
    low = mixed(low, p.mid, smoothStep(0.08, 0.30, height + jitter));
    low = mixed(low, p.high, smoothStep(0.10, 0.34, layers.upland.sampled(x / 4.0, y / 4.0)) * 0.55);
    low = mixed(low, low.times(0.70, 0.80, 0.78), smoothStep(0.02, 0.30, shade) * 0.8);
    low = mixed(low, low.times(1.22, 1.17, 0.98),
                smoothStep(0.05, 0.35, layers.meadow.sampled(x / 4.0, y / 4.0)) * 0.6);
    const double woods = land.woodsAt(x, y);
    low = mixed(low, low.times(0.66, 0.76, 0.70),
                smoothStep(0.06, 0.20, woods) * (p.snowline > 1.2 ? 0.4 : 0.75));
    const Colour heights = mixed(p.high, p.rock, smoothStep(0.34, 0.55, height + jitter));
    return mixed(low, heights, smoothStep(0.22, 0.42, height + jitter * 0.8));
}

// Brightness of the slope under a light from the north-west; hollows are darker than ridges.
double lightOn(const Landscape& land, int x, int y) {
    const double dx = (land.height.clamped(x - 1, y) - land.height.clamped(x + 1, y)) * relief;
    const double dy = (land.height.clamped(x, y - 1) - land.height.clamped(x, y + 1)) * relief;
    const double lambert = (0.57 - 0.58 * dx - 0.58 * dy) / std::sqrt(dx * dx + dy * dy + 1);
    const double open = land.height.at(x, y) - land.surroundAt(x, y);
    return 0.50 + 0.86 * lambert + std::clamp(open * 1.6, -0.22, 0.20);
}

// What only one theme has: drifts of snow on frozen land, ripples of sand.
Colour themed(const Landscape& land, const GroundLayers& layers, QPoint at, Colour colour) {
    const Noises& n = land.noises;
    const double height = land.height.at(at.x(), at.y());
    if (land.theme == Theme::Frost) {
        const double drift = layers.upland.sampled(at.x() / 4.0, at.y() / 4.0) +
                             0.5 * layers.meadow.sampled(at.x() / 4.0, at.y() / 4.0);
        return mixed(colour, land.palette.snow.times(0.78),
                     smoothStep(0.02, 0.45, drift + 0.5 * height) * 0.42);
    }
    if (land.theme == Theme::Desert) {
        const double dunes = smoothStep(0.02, 0.25, layers.meadow.sampled(at.x() / 4.0, at.y() / 4.0)) *
                             smoothStep(0.30, 0.2, height);
        const double ripple =
            n.d.at((at.x() + 0.6 * at.y()) / 9.0 + 1.6 * n.b.at(at.x() / 60.0, at.y() / 60.0), at.y() / 70.0);
        return colour.times(1 + 0.16 * dunes * ripple);
    }
    return colour;
}

Colour landColour(const Landscape& land, const GroundLayers& layers, int x, int y) {
    const Palette& p = land.palette;
    Colour colour = soilColour(land, layers, x, y);
    const double slope = land.slope(x, y, 2);
    const double jitter = layers.jitter.sampled(x / 2.0, y / 2.0);
    colour = mixed(colour, p.rock, smoothStep(0.035, 0.085, slope) * 0.8);
    const double snow = land.height.at(x, y) + jitter * 1.2 - slope * 1.5;
    // In milder country the peaks alone wear it: scraps on the ground between them would shine.
    const double lies = land.theme == Theme::Frost ? 1 : 0.25;
    colour = mixed(colour, p.snow.times(0.80), lies * smoothStep(p.snowline - 0.16, p.snowline + 0.06, snow));
    colour = themed(land, layers, {x, y}, colour);
    const double shore = land.toWater.at(x, y) + jitter * 50 + 60 * std::max(0.0, slope - 0.02);
    colour = mixed(p.beach, colour, smoothStep(2, 12, shore));
    const double light = lightOn(land, x, y);
    return colour.times(light, light * 0.985 + 0.005, light * 0.95 + 0.03);
}

// Running sums over a picture, so that the mean of any square costs four look-ups.
class Sums {
  public:
    explicit Sums(const QImage& picture);

    struct Square {
        Colour mean;
        double unrest;
    };
    // Of the pixels x0 <= x < x1, y0 <= y < y1.
    Square square(int x0, int y0, int x1, int y1) const;

  private:
    struct Entry {
        quint32 r = 0, g = 0, b = 0;
        quint64 squares = 0;
    };
    const Entry& at(int x, int y) const { return entries_[std::size_t(y) * columns_ + std::size_t(x)]; }

    std::size_t columns_;
    std::vector<Entry> entries_;
};

quint32 greyOf(QRgb p) {
    return quint32(qRed(p) * 77 + qGreen(p) * 151 + qBlue(p) * 28) >> 8;
}

Sums::Sums(const QImage& picture)
    : columns_(std::size_t(picture.width()) + 1), entries_(columns_ * (std::size_t(picture.height()) + 1)) {
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        Entry row;
        for (int x = 0; x < picture.width(); ++x) {
            const quint32 grey = greyOf(line[x]);
            row.r += quint32(qRed(line[x]));
            row.g += quint32(qGreen(line[x]));
            row.b += quint32(qBlue(line[x]));
            row.squares += grey * grey;
            const Entry& above = at(x + 1, y);
            entries_[std::size_t(y + 1) * columns_ + std::size_t(x) + 1] = {
                row.r + above.r, row.g + above.g, row.b + above.b, row.squares + above.squares};
        }
    }
}

Sums::Square Sums::square(int x0, int y0, int x1, int y1) const {
    const Entry &a = at(x0, y0), &b = at(x1, y0), &c = at(x0, y1), &d = at(x1, y1);
    const double count = double(x1 - x0) * (y1 - y0);
    const Colour mean{(d.r - b.r - c.r + a.r) / count, (d.g - b.g - c.g + a.g) / count,
                      (d.b - b.b - c.b + a.b) / count};
    const double grey = mean.r * 77 / 256 + mean.g * 151 / 256 + mean.b * 28 / 256;
    return {mean, double(d.squares - b.squares - c.squares + a.squares) / count - grey * grey};
}

} // namespace

QImage paintedGround(const Landscape& land) {
    const GroundLayers layers(land);
    QImage picture(land.size, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            line[x] =
                rgbOf(land.water(x, y) ? waterColour(land, layers, x, y) : landColour(land, layers, x, y));
    }
    return brushed(picture, 3, 0.8);
}

QImage brushed(const QImage& picture, int radius, double strength) {
    const Sums sums(picture);
    QImage result(picture.size(), QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        auto* to = reinterpret_cast<QRgb*>(result.scanLine(y));
        const int top = std::max(0, y - radius);
        const int bottom = std::min(picture.height(), y + radius + 1);
        for (int x = 0; x < picture.width(); ++x) {
            const int left = std::max(0, x - radius);
            const int right = std::min(picture.width(), x + radius + 1);
            Sums::Square best = sums.square(left, top, x + 1, y + 1);
            for (const Sums::Square& other :
                 {sums.square(x, top, right, y + 1), sums.square(left, y, x + 1, bottom),
                  sums.square(x, y, right, bottom)})
                if (other.unrest < best.unrest)
                    best = other;
            to[x] = rgbOf(mixed(colourOf(from[x]), best.mean, strength));
        }
    }
    return result;
}

} // namespace worldgen
