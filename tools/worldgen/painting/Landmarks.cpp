#include "Buildings.h"
#include "Maths.h"

namespace worldgen {

namespace {

constexpr Colour bareStone{124, 120, 112};

void shadowUnder(QPainter& p, double rx, double ry) {
    p.setBrush(QColor(8, 6, 4, 95));
    p.drawEllipse(QPointF(rx * 0.4, ry * 0.4), rx, ry);
}

void column(QPainter& p, QPointF foot, double height, bool broken) {
    p.setBrush(inked(bareStone.times(1.25)));
    p.drawRect(QRectF(foot.x() - 0.9, foot.y() - height, 0.9, height));
    p.setBrush(inked(bareStone.times(0.62)));
    p.drawRect(QRectF(foot.x(), foot.y() - height, 0.9, height));
    p.setBrush(inked(bareStone.times(1.4)));
    if (!broken)
        p.drawRect(QRectF(foot.x() - 1.4, foot.y() - height - 0.8, 2.8, 0.9));
}

} // namespace

Sprite paintedTent(Rng& rng) {
    constexpr std::array<Colour, 3> cloths{Colour{168, 148, 108}, Colour{142, 72, 52}, Colour{86, 104, 112}};
    const Colour cloth = rng.pick(cloths);
    SpriteCanvas canvas(18, 18, {8, 13});
    QPainter& p = canvas.painter();
    shadowUnder(p, 5, 2);
    p.setPen(QPen(QColor(24, 16, 10, 150), 0.45));
    p.setBrush(inked(cloth.times(1.1)));
    p.drawPolygon(QPolygonF{{-5, 0.4}, {0.6, 1.4}, {0, -7}});
    p.setBrush(inked(cloth.times(0.6)));
    p.drawPolygon(QPolygonF{{0.6, 1.4}, {4.6, -0.2}, {0, -7}});
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(26, 18, 12, 210));
    p.drawPolygon(QPolygonF{{-2.4, 0.9}, {-0.6, 1.2}, {-0.6, -3}});
    return canvas.finished();
}

Sprite paintedBanner(Rng& rng) {
    constexpr std::array<Colour, 3> cloths{Colour{152, 44, 36}, Colour{44, 78, 120}, Colour{168, 128, 48}};
    const Colour cloth = rng.pick(cloths);
    SpriteCanvas canvas(18, 24, {4, 21});
    QPainter& p = canvas.painter();
    shadowUnder(p, 1.6, 0.8);
    p.setPen(QPen(QColor(46, 34, 22), 0.9));
    p.drawLine(QPointF(0, 0.5), QPointF(0, -17));
    p.setPen(QPen(QColor(24, 16, 10, 150), 0.4));
    p.setBrush(inked(cloth));
    p.drawPolygon(QPolygonF{{0.3, -16.6}, {8.4, -15.2}, {6.4, -12.8}, {8, -10.4}, {0.3, -9.8}});
    p.setPen(Qt::NoPen);
    p.setBrush(inked(cloth.times(0.65)));
    p.drawPolygon(QPolygonF{{3, -16.1}, {5, -15.8}, {4.6, -10.2}, {3, -10}});
    return canvas.finished();
}

Sprite paintedStandingStone(double scale, Rng& rng) {
    SpriteCanvas canvas(14, 20, {6, 16});
    QPainter& p = canvas.painter();
    const double lean = rng.range(-0.8, 0.8);
    const double high = rng.range(6.5, 9.5) * scale;
    const double wide = rng.range(1.5, 2.0) * scale;
    const Colour stone = bareStone.times(rng.range(0.85, 1.1));
    shadowUnder(p, 2.8 * scale, 1.3 * scale);
    p.setBrush(inked(stone.times(0.58)));
    p.drawPolygon(
        QPolygonF{{-wide, 0.2}, {wide, 0.6}, {wide * 0.8 + lean, -high * 0.92}, {-wide * 0.6 + lean, -high}});
    p.setBrush(inked(stone.times(1.22)));
    p.drawPolygon(QPolygonF{
        {-wide, 0.2}, {wide * 0.25, 0.4}, {wide * 0.1 + lean, -high * 0.97}, {-wide * 0.6 + lean, -high}});
    p.setBrush(QColor(70, 84, 50, 150));
    p.drawEllipse(QPointF(-wide * 0.4, -1), wide * 0.5, 0.8);
    return canvas.finished();
}

Sprite paintedRuin(Rng& rng) {
    SpriteCanvas canvas(34, 24, {16, 17});
    QPainter& p = canvas.painter();
    shadowUnder(p, 11, 3.6);
    p.setBrush(inked(bareStone.times(0.8)));
    p.drawPolygon(QPolygonF{{-11, 0.5}, {0, 4}, {11, 0.5}, {0, -3}});
    for (int k = 0; k < 4; ++k)
        column(p, QPointF(-8 + 3.6 * k, -0.6 - 0.85 * k + 0.6), rng.range(3, 9), rng.chance(0.5));
    for (int k = 0; k < 3; ++k)
        column(p, QPointF(-2 + 3.8 * k, 3 - 0.9 * k), rng.range(1.5, 8.5), rng.chance(0.6));
    for (int k = 0; k < 7; ++k) {
        const QPointF at(rng.range(-12, 12), rng.range(-2, 5));
        p.setBrush(inked(bareStone.times(rng.range(0.6, 1.3))));
        p.drawEllipse(at, rng.range(0.7, 1.4), rng.range(0.5, 0.9));
    }
    return canvas.finished();
}

Sprite paintedCave(const Palette& palette, Rng& rng) {
    Sprite cave = paintedPeak(palette, {PeakStyle::Alpine, 1.15, 0, {}}, rng);
    SpriteCanvas canvas(30, 30, {15, 25});
    QPainter& p = canvas.painter();
    QPainterPath mouth(QPointF(-9.5, 3));
    mouth.cubicTo(-11, -9, -5, -17, 0.5, -17);
    mouth.cubicTo(7, -16, 10.5, -8, 9, 3);
    const Colour rock = palette.rock;
    p.setPen(QPen(inked(rock.times(0.5)), 4.6, Qt::SolidLine, Qt::RoundCap));
    p.drawPath(mouth);
    p.setPen(QPen(inked(rock.times(1.55)), 1.8, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(QColor(10, 7, 8));
    p.drawPath(mouth);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(214, 120, 44, 60));
    p.drawEllipse(QPointF(0, 1), 6.5, 6);
    p.setBrush(QColor(232, 150, 60, 90));
    p.drawEllipse(QPointF(0, 2), 3.5, 3.4);
    const Sprite door = canvas.finished();
    QPainter onto(&cave.image);
    onto.drawImage((cave.anchor + QPointF(0, 7) - door.anchor).toPoint(), door.image);
    return cave;
}

Sprite paintedWindmill(Rng& rng) {
    SpriteCanvas canvas(28, 32, {14, 26});
    QPainter& p = canvas.painter();
    shadowUnder(p, 4.4, 2);
    p.setPen(QPen(QColor(24, 16, 10, 150), 0.45));
    p.setBrush(QColor(168, 152, 122));
    p.drawPolygon(QPolygonF{{-3.4, 0.4}, {0.6, 1}, {0.6, -11}, {-2.2, -11}});
    p.setBrush(QColor(104, 92, 74));
    p.drawPolygon(QPolygonF{{0.6, 1}, {3.6, 0.2}, {2.2, -11}, {0.6, -11}});
    p.setBrush(QColor(112, 58, 42));
    p.drawPolygon(QPolygonF{{-2.8, -10.6}, {2.8, -10.6}, {0, -14.6}});
    const double turn = rng.range(0.2, 1.2);
    for (int k = 0; k < 4; ++k) {
        const double angle = turn + k * pi / 2;
        const QPointF tip(cosineOf(angle) * 9, sineOf(angle) * 9);
        const QPointF side(-sineOf(angle) * 1.9, cosineOf(angle) * 1.9);
        p.setPen(QPen(QColor(52, 40, 28), 0.6));
        p.setBrush(QColor(206, 192, 160, 200));
        p.drawPolygon(QPolygonF{QPointF(-0.4, -11) + tip * 0.25, QPointF(-0.4, -11) + tip,
                                QPointF(-0.4, -11) + tip + side, QPointF(-0.4, -11) + tip * 0.25 + side});
    }
    return canvas.finished();
}

Sprite paintedObelisk(Rng& rng) {
    SpriteCanvas canvas(16, 30, {7, 26});
    QPainter& p = canvas.painter();
    const Colour stone = bareStone.times(rng.range(0.95, 1.15));
    shadowUnder(p, 4, 1.8);
    p.setBrush(inked(stone.times(0.8)));
    p.drawPolygon(QPolygonF{{-4, 0.6}, {0.5, 1.8}, {4.4, 0.6}, {0.4, -1}});
    p.setBrush(inked(stone.times(1.25)));
    p.drawPolygon(QPolygonF{{-2, 0}, {0.4, 0.8}, {0.3, -20}, {-1.1, -17.6}});
    p.setBrush(inked(stone.times(0.58)));
    p.drawPolygon(QPolygonF{{0.4, 0.8}, {2.6, 0}, {1.5, -17.6}, {0.3, -20}});
    return canvas.finished();
}

Sprite paintedShrine(BuildingStyle style, Rng& rng) {
    if (style == BuildingStyle::Pagoda || style == BuildingStyle::Adobe)
        return paintedTower(style, 1.35, rng);
    SpriteCanvas canvas(30, 28, {14, 21});
    QPainter& p = canvas.painter();
    shadowUnder(p, 9, 3.4);
    p.setBrush(inked(bareStone.times(0.85)));
    p.drawPolygon(QPolygonF{{-9, 0}, {-1, 3}, {9, 0}, {1, -3}});
    for (const QPointF foot : {QPointF(-6, -0.6), QPointF(0, -2.2), QPointF(6, -0.6), QPointF(0, 1.6)})
        column(p, foot, 8, false);
    p.setPen(QPen(QColor(24, 16, 10, 150), 0.45));
    p.setBrush(inked(Colour{132, 96, 66}.times(1.15)));
    p.drawPolygon(QPolygonF{{-8, -8.4}, {0.4, -5.8}, {0, -14}});
    p.setBrush(inked(Colour{132, 96, 66}.times(0.62)));
    p.drawPolygon(QPolygonF{{0.4, -5.8}, {8, -8.4}, {0, -14}});
    return canvas.finished();
}

} // namespace worldgen
