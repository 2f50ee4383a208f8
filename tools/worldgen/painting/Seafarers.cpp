#include "Ground.h"

#include "Maths.h"
#include "Sprites.h"

#include <array>

namespace worldgen {

namespace {

constexpr QColor inkColour(30, 20, 12, 210);

// How the people of a campaign build their ships.
struct Shipyard {
    Colour hull, sail, pennant;
    bool junk;     // battened sails
    bool longship; // one square sail, shields along the side
};

const Shipyard& shipyardOf(int campaign) {
    static constexpr std::array<Shipyard, 4> yards{
        Shipyard{{104, 70, 42}, {214, 196, 156}, {150, 48, 36}, false, false},
        Shipyard{{96, 52, 36}, {186, 96, 58}, {214, 168, 70}, true, false},
        Shipyard{{130, 92, 52}, {226, 206, 150}, {44, 104, 116}, false, false},
        Shipyard{{74, 58, 48}, {178, 62, 52}, {220, 210, 190}, false, true}};
    return yards[std::size_t(std::clamp(campaign - 1, 0, 3))];
}

void paintSail(QPainter& p, QPointF foot, QSizeF size, const Shipyard& yard) {
    const double high = size.height();
    const double wide = size.width();
    QPainterPath sail(foot + QPointF(0, -high));
    sail.quadTo(foot + QPointF(wide * 1.25, -high * 0.55), foot + QPointF(wide * 0.9, -1));
    sail.quadTo(foot + QPointF(wide * 0.4, -high * 0.2), foot + QPointF(0, -1.6));
    sail.closeSubpath();
    p.setPen(QPen(inkColour, 0.7));
    p.setBrush(inked(yard.sail));
    p.drawPath(sail);
    p.setPen(QPen(inked(yard.sail.times(0.5)), 0.6));
    for (double up = high * 0.2; yard.junk && up < high; up += high * 0.2)
        p.drawLine(foot + QPointF(0.3, -up), foot + QPointF(wide * (1.02 - 0.75 * up / high), -up * 0.94));
}

// A square sail in stripes, and shields along the side.
void paintLongshipRig(QPainter& p, const Shipyard& yard) {
    p.setPen(QPen(inkColour, 0.7));
    p.setBrush(inked(yard.sail));
    p.drawPolygon(QPolygonF{{-9, -23}, {9, -23}, {10, -8}, {-10, -8}});
    p.setPen(QPen(inked(yard.pennant), 2));
    for (const double x : {-5.0, 0.0, 5.0})
        p.drawLine(QPointF(x, -22), QPointF(x * 1.1, -9));
}

void paintShields(QPainter& p, const Shipyard& yard) {
    p.setPen(QPen(inkColour, 0.4));
    for (int k = 0; k < 6; ++k) {
        p.setBrush(inked(k % 2 == 0 ? yard.sail : yard.pennant));
        p.drawEllipse(QPointF(-10 + 4 * k, -0.6), 1.7, 1.7);
    }
}

Sprite paintedShip(const Shipyard& yard, bool mirrored) {
    SpriteCanvas canvas(48, 46, {24, 36});
    QPainter& p = canvas.painter();
    p.scale(mirrored ? -1 : 1, 1);
    p.setBrush(QColor(8, 20, 26, 90));
    p.drawEllipse(QPointF(0, 4.5), 17, 2.6);
    p.setPen(QPen(inkColour, 0.9));
    if (yard.longship) {
        p.drawLine(QPointF(0, 0), QPointF(0, -26));
        paintLongshipRig(p, yard);
    } else {
        for (const double x : {-7.0, 3.0})
            p.drawLine(QPointF(x, 0), QPointF(x, x < 0 ? -22 : -27));
        paintSail(p, {-7, -1}, {8, 19}, yard);
        paintSail(p, {3, -1}, {11, 25}, yard);
        p.setBrush(inked(yard.pennant));
        p.setPen(QPen(inkColour, 0.5));
        p.drawPolygon(QPolygonF{{3, -31}, {3, -28}, {-5, -28.6}});
    }
    const double stem = yard.longship ? -11 : -3.5;
    QPainterPath hull(QPointF(-16, stem));
    hull.quadTo(QPointF(-2, 2 - stem * 0.4), QPointF(16, stem - 0.5));
    hull.quadTo(QPointF(13, 5), QPointF(8, 5));
    hull.lineTo(-9, 5);
    hull.quadTo(QPointF(-14, 4), QPointF(-16, stem));
    p.setPen(QPen(inkColour, 0.8));
    p.setBrush(inked(yard.hull));
    p.drawPath(hull);
    if (yard.longship)
        paintShields(p, yard);
    p.setPen(QPen(QColor(196, 214, 210, 130), 0.9));
    p.drawLine(QPointF(-18, 5.4), QPointF(16, 5.4));
    return canvas.finished();
}

// A back, a tail and a spout.
Sprite paintedWhale(bool mirrored) {
    SpriteCanvas canvas(60, 40, {30, 30});
    QPainter& p = canvas.painter();
    p.scale(mirrored ? -1 : 1, 1);
    p.setPen(QPen(QColor(206, 224, 226, 190), 1.2, Qt::SolidLine, Qt::RoundCap));
    for (const double side : {-1.0, 0.0, 1.0})
        p.drawLine(QPointF(-11, -10), QPointF(-11 + side * 5, -20 + std::abs(side) * 3));
    p.setPen(QPen(inkColour, 0.8));
    p.setBrush(QColor(64, 84, 102));
    QPainterPath back(QPointF(-22, 1));
    back.cubicTo(-22, -14, -2, -13, 12, 1);
    back.closeSubpath();
    p.drawPath(back);
    QPainterPath tail(QPointF(17, 1));
    tail.cubicTo(18, -4, 19, -6, 20, -8);
    tail.cubicTo(16, -14, 12, -14, 11, -13);
    tail.cubicTo(15, -10, 18, -9, 21, -9);
    tail.cubicTo(24, -10, 27, -12, 29, -14);
    tail.cubicTo(28, -10, 26, -8, 23, -7.4);
    tail.cubicTo(22, -4, 22, -2, 22, 1);
    tail.closeSubpath();
    p.drawPath(tail);
    p.setPen(QPen(QColor(196, 214, 210, 140), 0.9));
    p.drawLine(QPointF(-26, 1.4), QPointF(26, 1.4));
    return canvas.finished();
}

void paintHump(QPainter& p, QPointF foot, QSizeF size, Colour scales) {
    const double wide = size.width();
    const double high = size.height();
    QPainterPath hump(foot - QPointF(wide, 0));
    hump.cubicTo(foot + QPointF(-wide, -high * 1.3), foot + QPointF(wide, -high * 1.3),
                 foot + QPointF(wide, 0));
    hump.lineTo(foot + QPointF(wide * 0.45, 0));
    hump.cubicTo(foot + QPointF(wide * 0.4, -high * 0.55), foot + QPointF(-wide * 0.4, -high * 0.55),
                 foot - QPointF(wide * 0.45, 0));
    hump.closeSubpath();
    p.setPen(QPen(inkColour, 0.8));
    p.setBrush(inked(scales.times(0.92)));
    p.drawPath(hump);
    p.setPen(QPen(QColor(196, 214, 210, 130), 0.9));
    p.drawLine(foot - QPointF(wide + 3, -0.6), foot + QPointF(wide + 3, 0.6));
}

Sprite paintedSerpent(Colour scales, int humps, bool mirrored) {
    SpriteCanvas canvas(72, 42, {36, 34});
    QPainter& p = canvas.painter();
    p.scale(mirrored ? -1 : 1, 1);
    if (humps > 1)
        paintHump(p, {22, 0}, {6, 8}, scales);
    paintHump(p, {6, 1}, humps > 1 ? QSizeF(8.5, 13) : QSizeF(12, 10), scales);
    QPainterPath neck(QPointF(-16, 1));
    neck.cubicTo(-15, -12, -10, -14, -11, -21);
    neck.cubicTo(-12, -27, -20, -28, -24, -24);
    neck.lineTo(-31, -20.5);
    neck.lineTo(-30, -18.4);
    neck.cubicTo(-25, -17.6, -21, -19, -18.5, -18);
    neck.cubicTo(-20, -12, -25, -8, -24, 1);
    neck.closeSubpath();
    p.setPen(QPen(inkColour, 0.8));
    p.setBrush(inked(scales));
    p.drawPath(neck);
    p.setBrush(QColor(150, 96, 52));
    p.drawPolygon(QPolygonF{{-12, -24}, {-6, -25}, {-10.4, -20.5}, {-6, -18}, {-11.2, -15.5}});
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(236, 196, 92));
    p.drawEllipse(QPointF(-21.5, -22.2), 1.1, 1);
    p.setPen(QPen(QColor(196, 214, 210, 130), 0.9));
    p.drawLine(QPointF(-29, 1.6), QPointF(-12, 1.6));
    return canvas.finished();
}

Sprite seaBeast(Theme theme, Rng& rng, bool mirrored) {
    constexpr std::array<Colour, 3> scales{Colour{68, 112, 98}, Colour{122, 84, 108}, Colour{146, 92, 56}};
    const int kind = rng.whole(0, 2);
    if (theme == Theme::Frost || kind == 2)
        return paintedWhale(mirrored);
    return paintedSerpent(scales[std::size_t(rng.whole(0, 2))], 1 + kind, mirrored);
}

bool freeWater(const Landscape& land, QPoint at, const std::vector<QRect>& taken) {
    if (!land.inside(at.x(), at.y()) || !land.sea(at.x(), at.y()) || land.toLand.at(at.x(), at.y()) < 52)
        return false;
    return std::none_of(taken.begin(), taken.end(),
                        [&](const QRect& box) { return box.adjusted(-60, -44, 60, 44).contains(at); });
}

} // namespace

void paintSeafarers(QImage& picture, const Landscape& land, int campaign, const std::vector<QRect>& taken) {
    Rng rng(quint64(land.cells.count()) * 31 + quint64(land.rivers.size()));
    std::vector<QRect> used = taken;
    QPainter painter(&picture);
    int wanted = 3;
    for (int attempt = 0; attempt < 160 && wanted > 0; ++attempt) {
        const int x = rng.whole(70, picture.width() - 70);
        const QPoint at(x, rng.whole(80, picture.height() - 60));
        if (!freeWater(land, at, used))
            continue;
        const bool mirrored = rng.chance(0.5);
        const Sprite sprite =
            wanted == 2 ? seaBeast(land.theme, rng, mirrored) : paintedShip(shipyardOf(campaign), mirrored);
        painter.setOpacity(0.88);
        painter.drawImage((QPointF(at) - sprite.anchor).toPoint(), sprite.image);
        used.push_back(QRect(at - QPoint(150, 110), QSize(300, 220)));
        --wanted;
    }
}

} // namespace worldgen
