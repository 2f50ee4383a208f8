#include "Buildings.h"

#include "Maths.h"

namespace worldgen {

namespace {

struct Materials {
    Colour wall, roof;
};

Materials materialsOf(BuildingStyle style, Rng& rng) {
    constexpr std::array<Colour, 3> tiles{Colour{134, 62, 44}, Colour{112, 54, 42}, Colour{100, 74, 50}};
    constexpr std::array<Colour, 3> glazed{Colour{40, 88, 84}, Colour{52, 72, 58}, Colour{110, 60, 40}};
    constexpr std::array<Colour, 3> clay{Colour{166, 128, 84}, Colour{150, 108, 70}, Colour{178, 146, 104}};
    constexpr std::array<Colour, 3> turf{Colour{78, 74, 48}, Colour{70, 58, 46}, Colour{86, 78, 66}};
    switch (style) {
    case BuildingStyle::Pagoda:
        return {{150, 128, 98}, rng.pick(glazed)};
    case BuildingStyle::Adobe:
        return {rng.pick(clay), Colour{120, 84, 56}};
    case BuildingStyle::Longhouse:
        return {{104, 84, 62}, rng.pick(turf)};
    case BuildingStyle::Timber:
        break;
    }
    return {{158, 140, 108}, rng.pick(tiles)};
}

void face(QPainter& p, const QPolygonF& outline, Colour colour) {
    p.setPen(QPen(QColor(24, 16, 10, 150), 0.45, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(inked(colour));
    p.drawPolygon(outline);
    p.setPen(Qt::NoPen);
}

void castShadow(QPainter& p, double rx, double ry) {
    p.setBrush(QColor(8, 6, 4, 95));
    p.drawEllipse(QPointF(rx * 0.45, ry * 0.45), rx, ry);
}

// Long side to the south-west, gable to the south-east.
void gabled(QPainter& p, const Materials& m, double roofSweep) {
    castShadow(p, 5, 2.2);
    face(p, {{-4, -0.4}, {1.5, 1}, {1.5, -2}, {-4, -3}}, m.wall.times(0.98));
    face(p, {{1.5, 1}, {4, -0.2}, {4, -3}, {2.75, -5.4}, {1.5, -2}}, m.wall.times(0.66));
    face(p, {{-4.6, -2.7}, {1.4, -1.5}, {2.75, -5.6 - roofSweep}, {-2.9, -6.5}}, m.roof.times(1.15));
    face(p, {{1.4, -1.5}, {2.75, -5.6 - roofSweep}, {3.2, -5.2}, {4.5, -2.8}, {4.1, -2.9}, {2.75, -5}},
         m.roof.times(0.6));
    p.setBrush(QColor(30, 20, 12, 190));
    p.drawRect(QRectF(-2.2, -1.8, 0.9, 1.3));
    p.drawRect(QRectF(-0.2, -1.4, 0.9, 1.3));
    p.setPen(QPen(QColor(255, 226, 180, 60), 0.5));
    p.drawLine(QPointF(-2.9, -6.4), QPointF(2.6, -5.5 - roofSweep));
    p.setPen(Qt::NoPen);
}

void pagodaRoof(QPainter& p, double wide, double y, Colour roof) {
    QPainterPath sweep(QPointF(-wide - 1, y - 0.6));
    sweep.quadTo(QPointF(-wide * 0.55, y - 0.6), QPointF(-wide * 0.35, y - 2.6));
    sweep.lineTo(wide * 0.35, y - 2.6);
    sweep.quadTo(QPointF(wide * 0.55, y - 0.6), QPointF(wide + 1, y - 0.6));
    sweep.quadTo(QPointF(0, y + 1.0), QPointF(-wide - 1, y - 0.6));
    p.setPen(QPen(QColor(16, 14, 10, 150), 0.45));
    p.setBrush(inked(roof));
    p.drawPath(sweep);
    p.setPen(QPen(inked(roof.times(1.6), 150), 0.5));
    p.drawLine(QPointF(-wide * 0.35, y - 2.5), QPointF(wide * 0.3, y - 2.5));
    p.setPen(Qt::NoPen);
}

void pagoda(QPainter& p, const Materials& m, int storeys) {
    castShadow(p, 4.8, 2.2);
    double y = 0.8;
    for (int k = 0; k < storeys; ++k) {
        const double wide = 3.6 - 0.8 * k;
        face(p, {{-wide, y}, {wide, y}, {wide, y - 2.6}, {-wide, y - 2.6}}, m.wall.times(0.95 - 0.06 * k));
        p.setBrush(QColor(110, 34, 24));
        p.drawRect(QRectF(-wide, y - 2.6, 0.7, 2.6));
        p.drawRect(QRectF(wide - 0.7, y - 2.6, 0.7, 2.6));
        pagodaRoof(p, wide + 0.6, y - 2.4, m.roof.times(1.1));
        y -= 4.4;
    }
}

void adobe(QPainter& p, const Materials& m, bool domed) {
    castShadow(p, 4.4, 2);
    face(p, {{-3.6, -0.2}, {0.8, 1}, {0.8, -3}, {-3.6, -4}}, m.wall.times(1.08));
    face(p, {{0.8, 1}, {3.6, -0.2}, {3.6, -4}, {0.8, -3}}, m.wall.times(0.62));
    face(p, {{-3.6, -4}, {0.8, -3}, {3.6, -4}, {-0.8, -5}}, m.wall.times(1.25));
    if (domed) {
        p.setBrush(inked(m.wall.times(0.8)));
        p.drawPie(QRectF(-2.4, -7, 4.8, 6), 0, 180 * 16);
        p.setBrush(inked(m.wall.times(1.3)));
        p.drawEllipse(QPointF(-0.8, -5.6), 1.1, 0.8);
    }
    p.setBrush(QColor(40, 24, 14, 200));
    p.drawRect(QRectF(-2.2, -2, 1, 1.8));
}

void longhouse(QPainter& p, const Materials& m) {
    castShadow(p, 6, 2.2);
    face(p, {{-5.4, -0.6}, {2.2, 1}, {2.2, -0.6}, {-5.4, -2.2}}, m.wall.times(0.9));
    face(p, {{2.2, 1}, {4.6, 0}, {4.6, -1.4}, {3.5, -5.2}, {2.2, -0.6}}, m.wall.times(0.62));
    face(p, {{-6, -1.6}, {2.0, 0.1}, {3.5, -5.6}, {-3.6, -6.4}}, m.roof.times(1.12));
    p.setPen(QPen(inked(m.wall.times(1.1)), 0.6));
    p.drawLine(QPointF(3.5, -5.4), QPointF(2.9, -7));
    p.drawLine(QPointF(3.3, -5.4), QPointF(4.1, -6.9));
    p.setPen(Qt::NoPen);
}

SpriteCanvas buildingCanvas(double scale) {
    const int side = int(9 * scale) + 2;
    return SpriteCanvas(2 * side, int(18 * scale) + 4, QPointF(side, int(14 * scale) + 1));
}

void battlements(QPainter& p, double left, double right, double y, Colour stone) {
    for (double x = left; x < right - 0.4; x += 1.6)
        face(p, {{x, y}, {x + 0.9, y}, {x + 0.9, y - 1.1}, {x, y - 1.1}}, stone);
}

} // namespace

BuildingStyle buildingStyleOf(int campaign) {
    switch (campaign) {
    case 2:
        return BuildingStyle::Pagoda;
    case 3:
        return BuildingStyle::Adobe;
    case 4:
        return BuildingStyle::Longhouse;
    default:
        return BuildingStyle::Timber;
    }
}

Sprite paintedHouse(BuildingStyle style, double scale, Rng& rng) {
    SpriteCanvas canvas = buildingCanvas(scale);
    QPainter& p = canvas.painter();
    p.scale(scale, scale);
    const Materials m = materialsOf(style, rng);
    switch (style) {
    case BuildingStyle::Timber:
        gabled(p, m, 0);
        break;
    case BuildingStyle::Pagoda:
        pagoda(p, m, scale > 1.3 ? 2 : 1);
        break;
    case BuildingStyle::Adobe:
        adobe(p, m, rng.chance(0.35));
        break;
    case BuildingStyle::Longhouse:
        longhouse(p, m);
        break;
    }
    return canvas.finished();
}

Sprite paintedTower(BuildingStyle style, double scale, Rng& rng) {
    SpriteCanvas canvas = buildingCanvas(scale);
    QPainter& p = canvas.painter();
    p.scale(scale, scale);
    const Materials m = materialsOf(style, rng);
    if (style == BuildingStyle::Pagoda) {
        pagoda(p, m, 3);
        return canvas.finished();
    }
    const Colour stone = style == BuildingStyle::Timber ? Colour{128, 122, 112} : m.wall;
    castShadow(p, 3.4, 1.8);
    face(p, {{-2.2, 0.4}, {0.2, 1}, {0.2, -9}, {-2.2, -9}}, stone.times(1.1));
    face(p, {{0.2, 1}, {2.2, 0.4}, {2.2, -9}, {0.2, -9}}, stone.times(0.6));
    if (style == BuildingStyle::Adobe) {
        battlements(p, -2.6, 2.6, -8.8, stone);
    } else {
        face(p, {{-2.9, -8.6}, {0.2, -8.2}, {0.1, -13.4}}, m.roof.times(1.2));
        face(p, {{0.2, -8.2}, {2.9, -8.6}, {0.1, -13.4}}, m.roof.times(0.62));
    }
    p.setBrush(QColor(24, 16, 10, 200));
    p.drawRect(QRectF(-1.3, -6.6, 0.7, 1.5));
    return canvas.finished();
}

Sprite paintedWall(QPointF to, bool timber) {
    const int width = int(std::fabs(to.x())) + 8;
    const int height = int(std::fabs(to.y())) + 16;
    SpriteCanvas canvas(2 * width, 2 * height, QPointF(width, height));
    QPainter& p = canvas.painter();
    const Colour body = timber ? Colour{112, 86, 56} : Colour{126, 120, 110};
    const double high = timber ? 5.0 : 5.2;
    const bool facingLight = to.x() * to.y() <= 0;
    face(p, {{0, 0}, to, to - QPointF(0, high), {0, -high}}, body.times(facingLight ? 0.72 : 0.98));
    p.setPen(QPen(inked(body.times(1.35)), timber ? 0.5 : 1.0));
    p.drawLine(QPointF(0, -high), to - QPointF(0, high));
    const double length = lengthOf(to.x(), to.y());
    for (double at = 0; at <= length; at += timber ? 1.3 : 2.2) {
        const QPointF foot = to * (at / std::max(1.0, length));
        p.setPen(QPen(inked(body.times(timber ? 0.55 : 1.2)), timber ? 0.5 : 1.1));
        p.drawLine(foot - QPointF(0, timber ? 0 : high - 0.2), foot - QPointF(0, high + 1));
    }
    return canvas.finished();
}

} // namespace worldgen
