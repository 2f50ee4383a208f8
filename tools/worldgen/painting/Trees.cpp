#include "Maths.h"
#include "Sprites.h"

namespace worldgen {

namespace {

constexpr Colour bark{58, 44, 30};

QPointF around(QPointF middle, double angle, double radius) {
    return middle + QPointF(cosineOf(angle) * radius, sineOf(angle) * radius);
}

void shadow(QPainter& p, QPointF at, double rx, double ry) {
    p.setBrush(QColor(8, 12, 8, 95));
    p.drawEllipse(at + QPointF(rx * 0.45, ry * 0.35), rx, ry);
}

// A crown of many small tufts, dark below and bright towards the light.
void crown(QPainter& p, QPointF middle, double radius, Colour leaf, Rng& rng) {
    p.setBrush(inked(leaf.times(0.36)));
    p.drawEllipse(middle, radius * 1.06, radius * 0.98);
    for (int ring = 0; ring < 3; ++ring) {
        const int tufts = 9 - 2 * ring;
        for (int k = 0; k < tufts; ++k) {
            const double angle = (k + rng.unit()) * 2 * pi / tufts;
            const QPointF from =
                around(middle - QPointF(0.16, 0.20) * radius * ring, angle, radius * (0.74 - 0.26 * ring));
            const double lit =
                0.5 - 0.5 * ((from.x() - middle.x()) * 0.5 + (from.y() - middle.y()) * 0.8) / radius;
            const double light = (0.58 + 0.28 * ring) * (0.72 + 0.62 * clamp01(lit)) * rng.range(0.9, 1.1);
            p.setBrush(inked(leaf.times(light, light, light * 0.94)));
            p.drawEllipse(from, radius * rng.range(0.26, 0.36), radius * rng.range(0.22, 0.30));
        }
    }
}

void broadleaf(QPainter& p, double s, Colour leaf, Rng& rng) {
    shadow(p, {0, 0.5 * s}, 5.2 * s, 2.5 * s);
    p.setBrush(inked(bark));
    p.drawRect(QRectF(-0.7 * s, -3 * s, 1.4 * s, 3.6 * s));
    crown(p, {0, -5.2 * s}, 4.6 * s, leaf, rng);
}

void jungle(QPainter& p, double s, Colour leaf, Rng& rng) {
    shadow(p, {0, 0.5 * s}, 6 * s, 2.6 * s);
    p.setBrush(inked(bark.times(0.8)));
    p.drawRect(QRectF(-0.6 * s, -6 * s, 1.2 * s, 6.5 * s));
    crown(p, {-1.8 * s, -5.4 * s}, 3.6 * s, leaf.times(0.85), rng);
    crown(p, {1.6 * s, -7.4 * s}, 4.2 * s, leaf.times(1.1), rng);
}

void tier(QPainter& p, QRectF box, Colour colour, Rng& rng) {
    QPolygonF edge{QPointF(box.center().x(), box.top())};
    constexpr int teeth = 6;
    for (int k = 0; k <= teeth; ++k) {
        const double x = box.right() - box.width() * k / teeth;
        edge << QPointF(x, box.bottom() - (k % 2 == 0 ? rng.range(0.2, 0.6) : rng.range(-0.5, 0.1)));
    }
    p.setBrush(inked(colour));
    p.drawPolygon(edge);
}

void conifer(QPainter& p, double s, Colour needles, bool snowy, Rng& rng) {
    shadow(p, {0, 0.2 * s}, 3.8 * s, 1.9 * s);
    p.setBrush(inked(bark));
    p.drawRect(QRectF(-0.6 * s, -1.6 * s, 1.2 * s, 2 * s));
    for (int k = 0; k < 4; ++k) {
        const double wide = (4.3 - 0.95 * k) * s;
        const double top = (-5.2 - 2.9 * k) * s;
        const double bottom = (-0.6 - 2.6 * k) * s;
        tier(p, QRectF(-wide, top, 2 * wide, bottom - top), needles.times(0.50), rng);
        tier(p, QRectF(-wide, top, 1.25 * wide, bottom - top - 0.3 * s), needles.times(1.18, 1.18, 1.05),
             rng);
        if (snowy)
            tier(p, QRectF(-wide * 0.72, top, wide * 0.95, (bottom - top) * 0.60), Colour{176, 190, 200},
                 rng);
    }
}

void palm(QPainter& p, double s, Colour leaf, Rng& rng) {
    shadow(p, {2 * s, 0.4 * s}, 4 * s, 1.6 * s);
    const double lean = rng.range(-2, 2) * s;
    const QPointF top(lean, -9.5 * s);
    QPainterPath trunk;
    trunk.quadTo(QPointF(lean * 0.2, -5 * s), top);
    p.setPen(QPen(inked(bark.times(1.35)), 1.2 * s));
    p.setBrush(Qt::NoBrush);
    p.drawPath(trunk);
    for (int k = 0; k < 9; ++k) {
        const double angle = k * 2 * pi / 9 + rng.range(-0.25, 0.25);
        const QPointF tip = around(top, angle, 4.8 * s) + QPointF(0, 1.9 * s);
        QPainterPath frond(top);
        frond.quadTo(around(top, angle, 2.8 * s) - QPointF(0, 1.1 * s), tip);
        const double light = 0.75 + 0.75 * clamp01(0.5 - 0.5 * (cosineOf(angle) + sineOf(angle)) / 1.4);
        p.setPen(QPen(inked(leaf.times(light)), 1.15 * s, Qt::SolidLine, Qt::RoundCap));
        p.drawPath(frond);
    }
    p.setPen(Qt::NoPen);
}

void scrub(QPainter& p, double s, Colour leaf, Rng& rng) {
    shadow(p, {0, 0.4 * s}, 3.4 * s, 1.5 * s);
    crown(p, {-1.4 * s, -1.4 * s}, 2.0 * s, leaf.times(0.95), rng);
    crown(p, {1.3 * s, -1.7 * s}, 2.3 * s, leaf.times(1.08), rng);
}

void bough(QPainter& p, QPointF from, double angle, double length, int depth) {
    const QPointF to = around(from, angle, length);
    QPen pen = p.pen();
    pen.setWidthF(std::max(0.35, length * 0.17));
    p.setPen(pen);
    p.drawLine(from, to);
    if (depth == 0)
        return;
    bough(p, to, angle - 0.55, length * 0.68, depth - 1);
    bough(p, to, angle + 0.48, length * 0.64, depth - 1);
}

void deadTree(QPainter& p, double s, Rng& rng) {
    shadow(p, {0.6 * s, 0.2 * s}, 2.6 * s, 1.2 * s);
    const double light = rng.range(0.75, 1.25);
    p.setPen(QPen(inked(Colour{70, 62, 56}.times(light)), 1, Qt::SolidLine, Qt::RoundCap));
    bough(p, {0, 0.3 * s}, -pi / 2 + rng.range(-0.2, 0.2), 4.4 * s, 3);
    p.setPen(Qt::NoPen);
}

} // namespace

Sprite paintedTree(TreeStyle style, const Palette& palette, double scale, Rng& rng) {
    const int side = int(11 * scale) + 2;
    SpriteCanvas canvas(2 * side, int(17 * scale) + int(5 * scale) + 4, QPointF(side, int(17 * scale) + 1));
    QPainter& p = canvas.painter();
    const Colour leaf =
        mixed(rng.pick(palette.leaves), rng.pick(palette.leaves), rng.unit()).times(rng.range(1.05, 1.35));
    const Colour needles = palette.needles.times(rng.range(0.9, 1.25));
    switch (style) {
    case TreeStyle::Broadleaf:
        broadleaf(p, scale, leaf, rng);
        break;
    case TreeStyle::Conifer:
        conifer(p, scale, needles, false, rng);
        break;
    case TreeStyle::SnowConifer:
        conifer(p, scale, needles, true, rng);
        break;
    case TreeStyle::Palm:
        palm(p, scale, leaf, rng);
        break;
    case TreeStyle::Scrub:
        scrub(p, scale, leaf, rng);
        break;
    case TreeStyle::Dead:
        deadTree(p, scale, rng);
        break;
    case TreeStyle::Jungle:
        jungle(p, scale, leaf, rng);
        break;
    }
    return canvas.finished();
}

} // namespace worldgen
