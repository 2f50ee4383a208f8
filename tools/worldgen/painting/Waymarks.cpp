#include "Buildings.h"
#include "Maths.h"

namespace worldgen {

namespace {

const QColor inkColour(24, 16, 10, 170);

void shadowUnder(QPainter& p, double rx, double ry) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(8, 6, 4, 95));
    p.drawEllipse(QPointF(rx * 0.35, ry * 0.4), rx, ry);
}

Sprite paintedBarrow(const Palette& palette) {
    SpriteCanvas canvas(46, 28, {23, 21});
    QPainter& p = canvas.painter();
    shadowUnder(p, 18, 5);
    QPainterPath mound(QPointF(-18, 2));
    mound.cubicTo(-14, -17, 12, -19, 18, 2);
    mound.quadTo(0, 7, -18, 2);
    p.setPen(QPen(inkColour, 0.6));
    p.setBrush(inked(mixed(palette.mid, palette.low, 0.4).times(0.95)));
    p.drawPath(mound);
    p.setPen(Qt::NoPen);
    p.setBrush(inked(palette.mid.times(1.3), 120));
    p.drawEllipse(QPointF(-5, -7), 8, 4);
    p.setBrush(QColor(150, 142, 128));
    p.drawRect(QRectF(-5, -4, 2.4, 8));
    p.drawRect(QRectF(2.6, -4, 2.4, 8));
    p.drawRect(QRectF(-6.4, -6.4, 12.8, 2.6));
    p.setBrush(QColor(12, 9, 8));
    p.drawRect(QRectF(-2.6, -3.8, 5.2, 7.6));
    return canvas.finished();
}

Sprite paintedWreck() {
    SpriteCanvas canvas(46, 34, {22, 27});
    QPainter& p = canvas.painter();
    shadowUnder(p, 17, 4);
    p.rotate(-11);
    p.setPen(QPen(inkColour, 0.7));
    p.setBrush(QColor(98, 70, 46));
    QPainterPath hull(QPointF(-17, -6));
    hull.quadTo(QPointF(0, 1), QPointF(16, -7));
    hull.quadTo(QPointF(13, 3), QPointF(6, 4));
    hull.lineTo(-9, 4);
    hull.quadTo(QPointF(-15, 2), QPointF(-17, -6));
    p.drawPath(hull);
    p.setPen(QPen(QColor(52, 36, 24), 1.2, Qt::SolidLine, Qt::RoundCap));
    for (const double x : {-11.0, -6.0, -1.0, 4.0, 9.0})
        p.drawLine(QPointF(x, -3 + std::abs(x) * 0.02), QPointF(x - 1.2, -9.5));
    p.setPen(QPen(QColor(84, 62, 42), 1.6, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(1, -3), QPointF(5, -22));
    p.drawLine(QPointF(-2, -16), QPointF(11, -15));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(196, 184, 156, 210));
    p.drawPolygon(QPolygonF{{-1, -15.4}, {6, -15.2}, {4, -9}, {2, -11}, {0, -7}});
    return canvas.finished();
}

// The ribs of something large.
Sprite paintedBones() {
    SpriteCanvas canvas(50, 28, {25, 22});
    QPainter& p = canvas.painter();
    shadowUnder(p, 19, 4);
    for (int k = 0; k < 6; ++k) {
        const double x = -14 + 6.2 * k;
        const double high = 15 - 1.3 * std::abs(k - 2.2) * std::abs(k - 2.2);
        QPainterPath rib(QPointF(x, 2));
        rib.cubicTo(x - 4, -high * 0.6, x - 1, -high, x + 5, -high);
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(QColor(40, 32, 22, 180), 2.6, Qt::SolidLine, Qt::RoundCap));
        p.drawPath(rib);
        p.setPen(QPen(QColor(216, 204, 174), 1.6, Qt::SolidLine, Qt::RoundCap));
        p.drawPath(rib);
    }
    p.setPen(QPen(inkColour, 0.6));
    p.setBrush(QColor(208, 194, 162));
    p.drawEllipse(QPointF(-19, -1), 4.6, 3.4);
    p.setBrush(QColor(30, 22, 16));
    p.drawEllipse(QPointF(-20.4, -1.6), 1.1, 0.9);
    return canvas.finished();
}

// Steam over a cracked cone.
Sprite paintedVent(Rng& rng) {
    SpriteCanvas canvas(34, 44, {16, 37});
    QPainter& p = canvas.painter();
    shadowUnder(p, 9, 3);
    p.setPen(Qt::NoPen);
    for (int k = 0; k < 9; ++k) {
        const double up = k / 9.0;
        p.setBrush(QColor(214, 210, 204, int(96 - 80 * up)));
        p.drawEllipse(QPointF(rng.range(-2, 2) + 5 * up, -8 - 24 * up), 2.6 + 4 * up, 2.4 + 3 * up);
    }
    p.setPen(QPen(inkColour, 0.6));
    p.setBrush(QColor(96, 84, 76));
    p.drawPolygon(QPolygonF{{-10, 1}, {-3, -9}, {3, -8}, {10, 1.6}, {0, 3.6}});
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(58, 50, 48));
    p.drawPolygon(QPolygonF{{2, -8}, {3, -8}, {10, 1.6}, {1, 3.4}});
    p.setBrush(QColor(236, 138, 58));
    p.drawEllipse(QPointF(0, -8.4), 3, 1.1);
    return canvas.finished();
}

Sprite paintedIce(Rng& rng) {
    SpriteCanvas canvas(40, 36, {20, 29});
    QPainter& p = canvas.painter();
    shadowUnder(p, 13, 4);
    for (const double x : {-9.0, 8.0, -2.0, 3.0}) {
        const double high = rng.range(11, 22);
        p.setPen(QPen(QColor(30, 50, 66, 150), 0.5));
        p.setBrush(QColor(196, 222, 234));
        p.drawPolygon(QPolygonF{{x - 4, 1}, {x - 1, -high}, {x + 1, 2}});
        p.setBrush(QColor(112, 158, 190));
        p.drawPolygon(QPolygonF{{x + 1, 2}, {x - 1, -high}, {x + 4.6, 0.6}});
    }
    return canvas.finished();
}

Sprite paintedLanterns() {
    SpriteCanvas canvas(36, 38, {17, 32});
    QPainter& p = canvas.painter();
    shadowUnder(p, 8, 2.4);
    p.setPen(QPen(QColor(66, 40, 26), 1.8, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(-9, 1), QPointF(-9, -20));
    p.drawLine(QPointF(9, 1), QPointF(9, -20));
    p.setPen(QPen(QColor(142, 44, 32), 2.6, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(-13, -21), QPointF(13, -21));
    p.setPen(QPen(QColor(122, 36, 28), 1.6));
    p.drawLine(QPointF(-10, -16), QPointF(10, -16));
    for (const double x : {-5.0, 0.0, 5.0}) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 176, 70, 70));
        p.drawEllipse(QPointF(x, -10), 5, 6);
        p.setPen(QPen(inkColour, 0.4));
        p.setBrush(QColor(240, 120, 46));
        p.drawEllipse(QPointF(x, -10), 2.1, 3);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 226, 150));
        p.drawEllipse(QPointF(x, -10.2), 0.9, 1.8);
    }
    return canvas.finished();
}

} // namespace

Sprite paintedBamboo(Rng& rng) {
    SpriteCanvas canvas(18, 26, {8, 23});
    QPainter& p = canvas.painter();
    shadowUnder(p, 4, 1.6);
    for (int stem = -1; stem <= 1; ++stem) {
        const double foot = stem * 2.4;
        const double high = rng.range(12, 19);
        const double lean = rng.range(-2.2, 2.2);
        const Colour green = Colour{92, 118, 52}.times(rng.range(0.75, 1.15));
        p.setPen(QPen(inked(green), 1.1, Qt::SolidLine, Qt::FlatCap));
        p.drawLine(QPointF(foot, 0.6), QPointF(foot + lean, -high));
        p.setPen(QPen(inked(green.times(0.5)), 0.9));
        for (double at = 3; at < high; at += 3.4)
            p.drawLine(QPointF(foot + lean * at / high - 0.6, -at),
                       QPointF(foot + lean * at / high + 0.6, -at));
        p.setPen(QPen(inked(green.times(0.82, 0.9, 0.7)), 0.9, Qt::SolidLine, Qt::RoundCap));
        for (int leaf = 0; leaf < 7; ++leaf) {
            const QPointF at(foot + lean, -high + rng.range(0, 6));
            p.drawLine(at, at + QPointF(rng.range(-4, 4), rng.range(-2, 2.4)));
        }
    }
    return canvas.finished();
}

Sprite paintedLandmark(Landmark landmark, BuildingStyle style, const Palette& palette, Rng& rng) {
    switch (landmark) {
    case Landmark::Windmill:
        return paintedWindmill(rng);
    case Landmark::Obelisk:
        return paintedObelisk(rng);
    case Landmark::Barrow:
        return paintedBarrow(palette);
    case Landmark::Tree:
        return paintedTree(palette.lowland == TreeStyle::SnowConifer ? palette.lowland : TreeStyle::Broadleaf,
                           palette, 2.5, rng);
    case Landmark::Wreck:
        return paintedWreck();
    case Landmark::Tower:
        return paintedTower(style, 1.6, rng);
    case Landmark::Bones:
        return paintedBones();
    case Landmark::Vent:
        return paintedVent(rng);
    case Landmark::Ice:
        return paintedIce(rng);
    case Landmark::Lantern:
        return paintedLanterns();
    case Landmark::Bamboo:
        return paintedBamboo(rng);
    default:
        return paintedRuin(rng);
    }
}

} // namespace worldgen
