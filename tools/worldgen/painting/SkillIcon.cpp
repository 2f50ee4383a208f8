#include "../RegionPainter.h"

#include "Colour.h"
#include "Maths.h"
#include "Motifs.h"
#include "Sprites.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

namespace worldgen {

namespace {

constexpr int kSide = 64;
constexpr int kFineSide = kSide * 3;

/// Another hue of about the same strength.
Colour neighbouring(Colour colour, double turn) {
    const QColor c(rgbOf(colour));
    float h = 0, s = 0, v = 0;
    c.getHsvF(&h, &s, &v);
    const double hue = h < 0 ? 0.1 : double(h) + turn;
    return colourOf(QColor::fromHsvF(float(hue - std::floor(hue)), s, v).rgb());
}

/// The cloth behind the emblem: the profession's colour, brightest in the middle, in one of four patterns.
void paintCloth(QImage& image, Colour colour, Rng& rng) {
    const Noise noise(rng.next());
    const int pattern = rng.whole(0, 3);
    const double turn = rng.range(0, 2);
    const double freedom = rng.range(0.7, 1.3);
    const Colour other = neighbouring(colour, rng.range(-0.09, 0.09));
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const double u = x * 2.0 / kFineSide - 1;
            const double v = y * 2.0 / kFineSide - 1;
            const double r = lengthOf(u, v);
            const double warp = noise.fbm(u * 1.6 + turn, v * 1.6, 4) * freedom;
            double wave = 0;
            if (pattern == 0)
                wave = sineOf(14 * (r + 0.35 * warp));
            else if (pattern == 1)
                wave = sineOf(9 * (u * cosineOf(turn) + v * sineOf(turn) + 0.5 * warp));
            else if (pattern == 2)
                wave = noise.ridged(u * 1.4 + 3, v * 1.4 + turn, 4) * 2 - 1;
            else
                wave = 2.2 * noise.fbm(u * 2 + warp, v * 2 - warp, 4);
            const double light = (0.78 - 0.50 * smoothStep(0.25, 1.3, r)) * (0.72 + 0.22 * wave);
            line[x] = rgbOf(mixed(colour, other, 0.5 + 0.5 * warp).times(std::max(0.08, light)));
        }
    }
}

void paintGlow(QPainter& painter, Colour colour) {
    QRadialGradient glow(QPointF(), 30);
    glow.setColorAt(0, inked(mixed(colour, Colour{255, 250, 230}, 0.65), 150));
    glow.setColorAt(1, inked(colour, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(QPointF(), 30, 30);
}

void paintEmblem(QPainter& painter, const QPainterPath& motif, Colour colour) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(12, 8, 6, 110), 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(motif.translated(1, 1.6));
    painter.setPen(QPen(QColor(18, 12, 8, 235), 3.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(motif);
    const Colour bright = mixed(Colour{255, 246, 218}, colour, 0.10);
    const Colour deep = mixed(Colour{196, 150, 84}, colour, 0.35);
    QLinearGradient fill(-16, -22, 16, 24);
    fill.setColorAt(0, inked(bright));
    fill.setColorAt(0.5, inked(mixed(bright, deep, 0.4)));
    fill.setColorAt(1, inked(deep));
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawPath(motif);
    painter.save(); // light along the upper left edges
    painter.setClipPath(motif);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 250, 130), 1.6));
    painter.drawPath(motif.translated(0.9, 0.9));
    painter.setPen(QPen(QColor(70, 40, 16, 120), 1.6));
    painter.drawPath(motif.translated(-0.9, -0.9));
    painter.restore();
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

QImage paintSkillIcon(quint32 seed, QRgb professionColour, const QString& kind) {
    Rng rng(seed * 3ULL + 1);
    const Colour colour = colourOf(professionColour);
    QImage fine(kFineSide, kFineSide, QImage::Format_RGB32);
    paintCloth(fine, colour, rng);
    QPainter painter(&fine);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(kFineSide) / kSide, double(kFineSide) / kSide);
    painter.translate(kSide / 2, kSide / 2);
    paintGlow(painter, colour);
    painter.save();
    painter.rotate(rng.range(-7, 7));
    const double size = rng.range(0.84, 0.92);
    painter.scale(rng.chance(0.5) ? size : -size, size);
    paintEmblem(painter, motifFor(kind, rng), colour);
    painter.restore();
    paintRim(painter, colour);
    painter.end();
    return shrunk(fine.convertToFormat(QImage::Format_ARGB32_Premultiplied), 3)
        .convertToFormat(QImage::Format_RGB32);
}

} // namespace worldgen
