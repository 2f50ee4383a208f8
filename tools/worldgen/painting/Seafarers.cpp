#include "Ground.h"

#include "Maths.h"
#include "Sprites.h"

#include <array>

namespace worldgen {

namespace {

constexpr QColor inkColour(30, 20, 12, 210);

// How the people of a campaign build their ships.
struct Shipyard {
    Colour hull, pennant;
    std::array<Colour, 3> sails;
    bool junk;     // battened sails
    bool longship; // one square sail, shields along the side
};

const Shipyard& shipyardOf(int campaign) {
    static constexpr std::array<Shipyard, 4> yards{
        Shipyard{{104, 70, 42},
                 {150, 48, 36},
                 {Colour{214, 196, 156}, Colour{176, 92, 62}, Colour{150, 166, 172}},
                 false,
                 false},
        Shipyard{{96, 52, 36},
                 {214, 168, 70},
                 {Colour{186, 96, 58}, Colour{206, 176, 112}, Colour{122, 62, 66}},
                 true,
                 false},
        Shipyard{{130, 92, 52},
                 {44, 104, 116},
                 {Colour{226, 206, 150}, Colour{196, 122, 62}, Colour{236, 226, 204}},
                 false,
                 false},
        Shipyard{{74, 58, 48},
                 {220, 210, 190},
                 {Colour{178, 62, 52}, Colour{66, 92, 128}, Colour{176, 138, 62}},
                 false,
                 true}};
    return yards[std::size_t(std::clamp(campaign - 1, 0, 3))];
}

// No two ships of a picture are rigged alike.
struct Ship {
    const Shipyard& yard;
    int rig; // 0..2
    double scale;
    bool mirrored;

    Colour sail() const { return yard.sails[std::size_t(rig)]; }
};

void paintSail(QPainter& p, QPointF foot, QSizeF size, const Ship& ship) {
    const double high = size.height();
    const double wide = size.width();
    QPainterPath sail(foot + QPointF(0, -high));
    sail.quadTo(foot + QPointF(wide * 1.25, -high * 0.55), foot + QPointF(wide * 0.9, -1));
    sail.quadTo(foot + QPointF(wide * 0.4, -high * 0.2), foot + QPointF(0, -1.6));
    sail.closeSubpath();
    p.setPen(QPen(inkColour, 0.7));
    p.setBrush(inked(ship.sail()));
    p.drawPath(sail);
    p.setPen(QPen(inked(ship.sail().times(0.5)), 0.6));
    for (double up = high * 0.2; ship.yard.junk && up < high; up += high * 0.2)
        p.drawLine(foot + QPointF(0.3, -up), foot + QPointF(wide * (1.02 - 0.75 * up / high), -up * 0.94));
}

// One mast, two or three, as the rig says.
void paintMasts(QPainter& p, const Ship& ship) {
    struct Mast {
        double x, wide, high;
    };
    static const std::array<std::vector<Mast>, 3> rigs{
        std::vector<Mast>{{-7, 8, 19}, {3, 11, 25}}, std::vector<Mast>{{-3, 14, 24}},
        std::vector<Mast>{{-11, 6, 16}, {-3, 8, 23}, {6, 8, 18}}};
    const std::vector<Mast>& masts = rigs[std::size_t(ship.rig)];
    for (const Mast& mast : masts) {
        p.setPen(QPen(inkColour, 0.9));
        p.drawLine(QPointF(mast.x, 0), QPointF(mast.x, -mast.high - 3));
        paintSail(p, {mast.x, -1}, {mast.wide, mast.high}, ship);
    }
    const Mast& tallest = *std::ranges::max_element(masts, {}, [](const Mast& mast) { return mast.high; });
    const QPointF top(tallest.x, -tallest.high - 6);
    p.setBrush(inked(ship.yard.pennant));
    p.setPen(QPen(inkColour, 0.5));
    p.drawPolygon(QPolygonF{top, top + QPointF(0, 3), top + QPointF(-8, 2.4)});
    if (ship.rig == 1) { // a jib before the mast
        p.setBrush(inked(ship.sail().times(0.86)));
        p.setPen(QPen(inkColour, 0.7));
        p.drawPolygon(QPolygonF{{-4, -25}, {-15, -4}, {-5, -5}});
    }
}

void paintOars(QPainter& p) {
    p.setPen(QPen(QColor(150, 122, 84), 0.9));
    for (double x = -9; x <= 9; x += 3.6)
        p.drawLine(QPointF(x, 1), QPointF(x - 3.4, 7.4));
}

// A square sail, in stripes or with a band or furled over the oars.
void paintLongshipRig(QPainter& p, const Ship& ship) {
    p.setPen(QPen(inkColour, 0.9));
    p.drawLine(QPointF(0, 0), QPointF(0, -26));
    p.setPen(QPen(inkColour, 0.7));
    p.setBrush(inked(ship.sail()));
    if (ship.rig == 2) {
        p.drawRoundedRect(QRectF(-10, -25, 20, 3.6), 1.6, 1.6);
        return;
    }
    p.drawPolygon(QPolygonF{{-9, -23}, {9, -23}, {10, -8}, {-10, -8}});
    p.setPen(QPen(inked(ship.yard.pennant), ship.rig == 0 ? 2 : 3.4));
    if (ship.rig == 1)
        p.drawLine(QPointF(-9, -15.5), QPointF(9, -15.5));
    for (const double x : {-5.0, 0.0, 5.0})
        if (ship.rig == 0)
            p.drawLine(QPointF(x, -22), QPointF(x * 1.1, -9));
}

void paintShields(QPainter& p, const Ship& ship) {
    p.setPen(QPen(inkColour, 0.4));
    for (int k = 0; k < 6; ++k) {
        p.setBrush(inked(k % 2 == 0 ? ship.sail() : ship.yard.pennant));
        p.drawEllipse(QPointF(-10 + 4 * k, -0.6), 1.7, 1.7);
    }
}

void paintHull(QPainter& p, const Ship& ship) {
    const double stem = ship.yard.longship ? -11 : -3.5;
    QPainterPath hull(QPointF(-16, stem));
    hull.quadTo(QPointF(-2, 2 - stem * 0.4), QPointF(16, stem - 0.5));
    hull.quadTo(QPointF(13, 5), QPointF(8, 5));
    hull.lineTo(-9, 5);
    hull.quadTo(QPointF(-14, 4), QPointF(-16, stem));
    p.setPen(QPen(inkColour, 0.8));
    p.setBrush(inked(ship.yard.hull));
    p.drawPath(hull);
}

Sprite paintedShip(const Ship& ship) {
    SpriteCanvas canvas(58, 56, {29, 44});
    QPainter& p = canvas.painter();
    p.scale(ship.mirrored ? -ship.scale : ship.scale, ship.scale);
    p.setPen(QPen(inkColour, 0.9));
    p.setBrush(QColor(8, 20, 26, 90));
    p.drawEllipse(QPointF(0, 4.5), 17, 2.6);
    if (ship.yard.longship) {
        paintLongshipRig(p, ship);
    } else {
        paintMasts(p, ship);
    }
    paintHull(p, ship);
    if (ship.yard.longship && ship.rig == 2)
        paintOars(p);
    if (ship.yard.longship)
        paintShields(p, ship);
    p.setPen(QPen(QColor(196, 214, 210, 130), 0.9));
    p.drawLine(QPointF(-18, 5.4), QPointF(16, 5.4));
    return canvas.finished();
}

void paintSurface(QPainter& p, double from, double to) {
    p.setPen(QPen(QColor(196, 214, 210, 140), 0.9));
    p.drawLine(QPointF(from, 1.4), QPointF(to, 1.4));
}

void paintSpout(QPainter& p, QPointF blowhole) {
    p.setPen(QPen(QColor(206, 224, 226, 190), 1.2, Qt::SolidLine, Qt::RoundCap));
    for (const double side : {-1.0, 0.0, 1.0})
        p.drawLine(blowhole, blowhole + QPointF(side * 5, -10 + std::abs(side) * 3));
}

// Both halves of a tail, its stalk in the water at `foot`.
void paintFluke(QPainter& p, QPointF foot, double size) {
    QPainterPath tail(QPointF(-2, 0));
    tail.cubicTo(-1, -5, 0, -7, 1, -9);
    tail.cubicTo(-3, -15, -7, -15, -8, -14);
    tail.cubicTo(-4, -11, -1, -9, 2, -10);
    tail.cubicTo(5, -11, 8, -13, 10, -15);
    tail.cubicTo(9, -11, 7, -9, 4, -8.4);
    tail.cubicTo(3, -5, 3, -3, 3, 0);
    tail.closeSubpath();
    p.drawPath(QTransform::fromTranslate(foot.x(), foot.y()).scale(size, size).map(tail));
}

void paintBack(QPainter& p, double from, double to, double high) {
    QPainterPath back(QPointF(from, 1));
    back.cubicTo(from, -high, lerp(from, to, 0.6), -high + 1, to, 1);
    back.closeSubpath();
    p.drawPath(back);
}

// A back, a tail and a spout.
void paintWhale(QPainter& p) {
    paintSpout(p, {-11, -10});
    p.setPen(QPen(inkColour, 0.8));
    p.setBrush(QColor(64, 84, 102));
    paintBack(p, -22, 12, 14);
    paintFluke(p, {19, 1}, 1);
    paintSurface(p, -26, 26);
}

// The tail of one that dives, in the rings it leaves.
void paintDivingWhale(QPainter& p) {
    p.setBrush(Qt::NoBrush);
    for (const double ring : {11.0, 18.0}) {
        p.setPen(QPen(QColor(196, 214, 210, int(170 - 5 * ring)), 0.9));
        p.drawEllipse(QPointF(1, 1), ring, ring * 0.26);
    }
    p.setPen(QPen(inkColour, 0.7));
    p.setBrush(QColor(52, 66, 78));
    paintFluke(p, {0, 1}, 1.55);
}

// Black, with a fin like a blade; a smaller one swims behind.
void paintOrcas(QPainter& p) {
    for (const auto& [x, size] : {std::pair(15.0, 0.7), std::pair(-8.0, 1.0)}) {
        p.save();
        p.translate(x, 0);
        p.scale(size, size);
        p.setPen(QPen(inkColour, 0.7));
        p.setBrush(QColor(26, 30, 36));
        p.drawPolygon(QPolygonF{{-3, -6}, {3, -20}, {5, -5}});
        paintBack(p, -16, 16, 10);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(220, 226, 226));
        p.drawEllipse(QPointF(-10, -2.6), 2.6, 1.2);
        paintSurface(p, -18, 18);
        p.restore();
    }
}

// Pale backs, and the tusks in the air.
void paintNarwhals(QPainter& p) {
    for (const auto& [x, y] : {std::pair(12.0, -5.0), std::pair(-6.0, 0.0)}) {
        p.save();
        p.translate(x, y);
        p.setPen(QPen(QColor(226, 214, 180), 1.1, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(-12, -4), QPointF(-23, -14));
        p.setPen(QPen(inkColour, 0.7));
        p.setBrush(QColor(142, 152, 160));
        paintBack(p, -15, 11, 9);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(84, 92, 102, 170));
        for (const double spot : {-6.0, -1.0, 4.0})
            p.drawEllipse(QPointF(spot, -4 + std::abs(spot) * 0.2), 1.3, 0.8);
        paintSurface(p, -17, 13);
        p.restore();
    }
}

Sprite paintedWhale(int kind, bool mirrored) {
    SpriteCanvas canvas(66, 44, {33, 33});
    QPainter& p = canvas.painter();
    p.scale(mirrored ? -1 : 1, 1);
    constexpr std::array kinds{paintWhale, paintDivingWhale, paintOrcas, paintNarwhals};
    kinds[std::size_t(kind)](p);
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

// Narwhals keep to the ice, serpents to warmer seas.
Sprite seaBeast(Theme theme, Rng& rng, bool mirrored) {
    constexpr std::array<Colour, 3> scales{Colour{68, 112, 98}, Colour{122, 84, 108}, Colour{146, 92, 56}};
    if (theme == Theme::Frost)
        return paintedWhale(rng.whole(0, 3), mirrored);
    const int kind = rng.whole(0, 4);
    return kind < 3 ? paintedWhale(kind, mirrored)
                    : paintedSerpent(scales[std::size_t(rng.whole(0, 2))], kind - 2, mirrored);
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
    const int firstRig = rng.whole(0, 2);
    std::vector<QRect> used = taken;
    QPainter painter(&picture);
    int wanted = 3;
    for (int attempt = 0; attempt < 160 && wanted > 0; ++attempt) {
        const int x = rng.whole(70, picture.width() - 70);
        const QPoint at(x, rng.whole(80, picture.height() - 60));
        if (!freeWater(land, at, used))
            continue;
        const bool mirrored = rng.chance(0.5);
        const double scale = rng.range(0.85, 1.15);
        const Sprite sprite =
            wanted == 2 ? seaBeast(land.theme, rng, mirrored)
                        : paintedShip({shipyardOf(campaign), (firstRig + wanted) % 3, scale, mirrored});
        painter.setOpacity(0.88);
        painter.drawImage((QPointF(at) - sprite.anchor).toPoint(), sprite.image);
        used.push_back(QRect(at - QPoint(150, 110), QSize(300, 220)));
        --wanted;
    }
}

} // namespace worldgen
