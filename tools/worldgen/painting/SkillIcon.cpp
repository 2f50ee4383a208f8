#include "RegionPainter.h"

#include "Colour.h"
#include "Maths.h"
#include "Noise.h"
#include "Signs.h"
#include "Sprites.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

namespace worldgen {

namespace {

constexpr int iconSide = 64;
constexpr int fineSide = iconSide * 3;

// The profession's colour, turned, faded and darkened.
struct Shade {
    double turn;
    double saturation;
    double value;
};

// One for each attribute, the last for skills without: the attributes of a profession are told apart by
// shade and pattern, and yet belong together.
constexpr std::array<Shade, 6> shades{
    Shade{0, 1, 0.92},      Shade{0.07, 1.05, 0.52}, Shade{-0.08, 0.75, 0.82},
    Shade{0.02, 0.55, 0.5}, Shade{-0.03, 1.2, 0.68}, Shade{0.5, 0.45, 0.55},
};

Colour shaded(Colour colour, const Shade& shade) {
    float h = 0, s = 0, v = 0;
    QColor(rgbOf(colour)).getHsvF(&h, &s, &v);
    const double hue = (h < 0 ? 0.1 : double(h)) + shade.turn + 1;
    return colourOf(QColor::fromHsvF(float(hue - std::floor(hue)),
                                     float(clamp01(double(s) * shade.saturation)),
                                     float(clamp01(double(v) * shade.value)))
                        .rgb());
}

// Brightness of the ground at a point, -1..1 to each side.
class Pattern {
  public:
    Pattern(int number, Rng& rng) : noise_(rng.next()), number_(number), turn_(rng.range(0, 6)) {}

    double at(double u, double v) const {
        const double warp = noise_.fbm(u * 1.6 + turn_, v * 1.6, 4);
        switch (number_) {
        case 0: // rays
            return rays(u, v) + 0.5 * warp;
        case 1: // dusk over a dark land
            return smoothStep(0.36, 0.26, v - 0.14 * noise_.fbm(u * 2 + turn_, 3.5, 4)) * (0.9 + 0.6 * v) -
                   0.7;
        case 2: // ripples
            return 0.8 * sineOf(15 * lengthOf(u, v + 0.25) + 3 * warp);
        case 3: // woven bands
            return (sineOf(13 * (u + v)) > 0 ? 0.45 : -0.35) + (sineOf(13 * (u - v)) > 0 ? 0.2 : -0.2) +
                   0.4 * warp;
        case 4: // smoke
            return 2.0 * noise_.fbm(u * 2 + warp, v * 2 - warp + turn_, 4);
        default: // night with stars
            return noise_.at(u * 19 + turn_, v * 19) > 0.52 ? 1.6 : -0.35 + 0.5 * warp;
        }
    }

  private:
    // Sixteen beams from the middle: the octants are folded upon each other, so that no angle is needed.
    static double rays(double u, double v) {
        const double x = std::abs(u);
        const double y = std::abs(v);
        const double slope = std::min(x, y) / std::max({x, y, 0.001});
        return slope < 0.2 || slope > 0.67 ? 0.5 : -0.4;
    }

    Noise noise_;
    int number_;
    double turn_;
};

void paintGround(QImage& image, Colour colour, const Pattern& pattern) {
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const double u = x * 2.0 / fineSide - 1;
            const double v = y * 2.0 / fineSide - 1;
            const double light =
                (0.80 - 0.46 * smoothStep(0.3, 1.35, lengthOf(u, v))) * (0.80 + 0.30 * pattern.at(u, v));
            line[x] = rgbOf(colour.times(std::max(0.10, light)));
        }
    }
}

void paintGlow(QPainter& painter, Colour colour) {
    QRadialGradient glow(QPointF(), 28);
    glow.setColorAt(0, inked(mixed(colour, Colour{255, 250, 230}, 0.6), 120));
    glow.setColorAt(1, inked(colour, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(QPointF(), 28, 28);
}

void paintRim(QPainter& painter, Colour colour) {
    const QRectF whole(-32, -32, 64, 64);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(20, 14, 8), 6));
    painter.drawRect(whole);
    QLinearGradient gold(-32, -32, 32, 32);
    gold.setColorAt(0, QColor(240, 212, 150));
    gold.setColorAt(0.5, QColor(150, 114, 60));
    gold.setColorAt(1, QColor(92, 64, 32));
    painter.setPen(QPen(QBrush(gold), 2));
    painter.drawRect(whole.adjusted(2.5, 2.5, -2.5, -2.5));
    painter.setPen(QPen(QColor(14, 10, 6, 200), 1));
    painter.drawRect(whole.adjusted(4.2, 4.2, -4.2, -4.2));
    painter.setPen(Qt::NoPen);
    painter.setBrush(inked(mixed(colour, Colour{255, 255, 255}, 0.25)));
    for (const QPointF corner :
         {QPointF(-28.4, -28.4), QPointF(28.4, -28.4), QPointF(-28.4, 28.4), QPointF(28.4, 28.4)})
        painter.drawEllipse(corner, 1.9, 1.9);
}

} // namespace

QImage paintSkillIcon(const SkillPicture& skill) {
    Rng rng(skill.seed * 3ULL + 1);
    const Colour colour = colourOf(skill.professionColour);
    const int kind = std::clamp(skill.attribute, 0, int(shades.size()) - 1);
    const Colour ground = shaded(colour, shades[std::size_t(kind)]);
    QImage fine(fineSide, fineSide, QImage::Format_RGB32);
    paintGround(fine, ground, Pattern(kind, rng));
    QPainter painter(&fine);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(fineSide) / iconSide, double(fineSide) / iconSide);
    painter.translate(iconSide / 2, iconSide / 2);
    paintGlow(painter, ground);
    painter.save();
    painter.scale(0.94, 0.94);
    paintSigns(painter, skill.signs, skill.professionColour);
    painter.restore();
    paintRim(painter, colour);
    painter.end();
    return shrunk(fine.convertToFormat(QImage::Format_ARGB32_Premultiplied), 3)
        .convertToFormat(QImage::Format_RGB32);
}

} // namespace worldgen
