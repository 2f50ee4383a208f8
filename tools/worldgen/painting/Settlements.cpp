#include "Settlements.h"

#include "Buildings.h"
#include "Maths.h"

#include <QPainterPath>

#include <array>

namespace worldgen {

QSizeF settlementRoom(SiteRole role) {
    switch (role) {
    case SiteRole::Town:
        return {58, 42};
    case SiteRole::Outpost:
        return {44, 34};
    case SiteRole::Mission:
        return {46, 36};
    case SiteRole::Challenge:
        return {44, 34};
    case SiteRole::DungeonEntrance:
        return {36, 30};
    case SiteRole::Area:
        break;
    }
    return {26, 20};
}

namespace {

void ploughField(QPainter& p, QPointF middle, double turn, Colour colour, Rng& rng) {
    const double wide = rng.range(9, 14);
    const double deep = rng.range(5, 8);
    const double c = cosineOf(turn);
    const double s = sineOf(turn);
    QPolygonF outline;
    for (const QPointF q : {QPointF(-wide, -deep), QPointF(wide, -deep * 1.15), QPointF(wide * 1.1, deep),
                            QPointF(-wide * 0.9, deep * 1.1)})
        outline << middle + QPointF(q.x() * c - q.y() * s, (q.x() * s + q.y() * c) * 0.85);
    p.setPen(QPen(QColor(30, 26, 12, 120), 1));
    p.setBrush(inked(colour, 190));
    p.drawPolygon(outline);
    QPainterPath clip;
    clip.addPolygon(outline);
    p.save();
    p.setClipPath(clip);
    p.setPen(QPen(QColor(36, 32, 14, 85), 1));
    for (double at = -20; at < 22; at += 2.8)
        p.drawLine(middle + QPointF(at * c + 14 * s, at * s - 14 * c),
                   middle + QPointF(at * c - 14 * s, at * s + 14 * c));
    p.restore();
}

class Builder {
  public:
    Builder(Scene& scene, const Landscape& land, const Settlement& place, Rng& rng)
        : scene_(scene), land_(land), place_(place), style_(buildingStyleOf(place.campaign)), rng_(rng) {}

    void town();
    void outpost();
    void mission();
    void challenge();
    void area();
    void raise(Landmark landmark, QPointF at);
    void grove();
    void cliffs();
    void dungeon() { scene_.standNew(paintedCave(land_.palette, rng_), QPointF(place_.at)); }

  private:
    QPointF onRing(double angle, double rx, double ry) const {
        return QPointF(place_.at) + QPointF(cosineOf(angle) * rx, sineOf(angle) * ry);
    }
    bool dry(QPointF p) const { return land_.toWater.clamped(int(p.x()), int(p.y())) > 5; }
    void stand(Sprite sprite, QPointF at) {
        if (dry(at))
            scene_.standNew(std::move(sprite), at);
    }
    void houses(int count, QSizeF inner, QSizeF outer, double scale);
    void enclosure(double rx, double ry, bool timber);

    Scene& scene_;
    const Landscape& land_;
    Settlement place_;
    BuildingStyle style_;
    Rng& rng_;
};

// Scattered between two ellipses, no two on the same spot.
void Builder::houses(int count, QSizeF inner, QSizeF outer, double scale) {
    std::vector<QPointF> built;
    for (int attempt = 0; attempt < count * 14 && int(built.size()) < count; ++attempt) {
        const double angle = rng_.range(0, 2 * pi);
        const double out = std::sqrt(rng_.unit());
        const QPointF at =
            onRing(angle, lerp(inner.width(), outer.width(), out), lerp(inner.height(), outer.height(), out));
        const bool room = std::all_of(built.begin(), built.end(), [&](QPointF q) {
            return lengthOf(q.x() - at.x(), (q.y() - at.y()) * 1.5) > 7.6 * scale;
        });
        if (!room)
            continue;
        built.push_back(at);
        stand(paintedHouse(style_, scale * rng_.range(0.9, 1.15), rng_), at);
    }
}

void Builder::enclosure(double rx, double ry, bool timber) {
    constexpr int stretches = 14;
    for (int k = 0; k < stretches; ++k) {
        const double from = (k + 0.5) * 2 * pi / stretches + pi / 2;
        const double to = (k + 1.5) * 2 * pi / stretches + pi / 2;
        const QPointF a = onRing(from, rx, ry);
        const QPointF b = onRing(to, rx, ry);
        if (k == stretches - 1 || !dry(a) || !dry(b)) // the last stretch is the gate, to the south
            continue;
        Sprite wall = paintedWall(b - a, timber);
        // Sorted by its lower end, so that houses behind it are hidden and those before it are not.
        const double sink = std::max(0.0, b.y() - a.y());
        wall.anchor += QPointF(0, sink);
        scene_.standNew(std::move(wall), a + QPointF(0, sink));
    }
}

void Builder::town() {
    enclosure(50, 33, style_ == BuildingStyle::Longhouse);
    houses(26, {15, 9}, {45, 27}, 1.2);
    for (const double angle : {-2.5, -0.64, 0.62, 2.52})
        stand(paintedTower(style_, 1.0, rng_), onRing(angle, 50, 33));
    stand(paintedTower(style_, 1.7, rng_), QPointF(place_.at) + QPointF(-20, -12));
    stand(paintedHouse(style_, 1.9, rng_), QPointF(place_.at) + QPointF(20, -13));
    houses(4, {52, 30}, {66, 40}, 1.0);
}

void Builder::outpost() {
    enclosure(33, 22, style_ != BuildingStyle::Adobe);
    houses(8, {12, 8}, {27, 16}, 1.15);
    stand(paintedTower(style_, 1.2, rng_), QPointF(place_.at) + QPointF(17, -12));
}

void Builder::mission() {
    for (int k = 0; k < 7; ++k)
        stand(paintedTent(rng_),
              onRing(k * 2 * pi / 7 + rng_.range(-0.2, 0.2), rng_.range(27, 37), rng_.range(18, 25)));
    stand(paintedShrine(style_, rng_), QPointF(place_.at) + QPointF(-3, -20));
    stand(paintedBanner(rng_), QPointF(place_.at) + QPointF(18, -14));
    stand(paintedBanner(rng_), QPointF(place_.at) + QPointF(-22, -12));
}

void Builder::challenge() {
    for (int k = 0; k < 13; ++k)
        stand(paintedStandingStone(rng_.range(0.95, 1.3), rng_), onRing(k * 2 * pi / 13, 35, 24));
    stand(paintedBanner(rng_), onRing(-2.2, 42, 27));
    stand(paintedBanner(rng_), onRing(-0.9, 42, 27));
}

void Builder::area() {
    if (place_.wish.near == SiteNear::Bamboo)
        grove();
    if (place_.wish.near == SiteNear::Cliffs)
        cliffs();
    // Above the name, not under it.
    const QPointF at = QPointF(place_.at) - QPointF(0, place_.wish.marked ? 26 : 16);
    if (place_.wish.landmark != Landmark::None)
        return raise(place_.wish.landmark, at);
    constexpr std::array choices{Landmark::Ruin, Landmark::Obelisk, Landmark::Stones, Landmark::Windmill};
    const Landmark chosen = choices[std::size_t(rng_.whole(0, place_.campaign == 3 ? 2 : 3))];
    raise(chosen == Landmark::Windmill && land_.theme != Theme::Temperate ? Landmark::Ruin : chosen, at);
}

void Builder::raise(Landmark landmark, QPointF at) {
    if (landmark == Landmark::Stones) {
        for (int k = 0; k < 5; ++k)
            stand(paintedStandingStone(1.1, rng_),
                  at + QPointF(cosineOf(k * 1.26 + 0.4) * 13, sineOf(k * 1.26 + 0.4) * 6 - 6));
        return;
    }
    if (landmark == Landmark::Palms) {
        for (const QPointF offset : {QPointF(-9, 0), QPointF(0, -4), QPointF(8, 1)})
            stand(paintedTree(TreeStyle::Palm, land_.palette, rng_.range(1.3, 1.8), rng_), at + offset);
        return;
    }
    if (landmark == Landmark::Bamboo)
        return grove();
    stand(paintedLandmark(landmark, style_, land_.palette, rng_), at);
}

// Bamboo all around, but for the ground of the name.
void Builder::grove() {
    for (int k = 0; k < 150; ++k) {
        const QPointF at =
            onRing(rng_.range(0, 2 * pi), 84 * std::sqrt(rng_.unit()), 52 * std::sqrt(rng_.unit()));
        const QPointF away = at - QPointF(place_.at);
        if (std::abs(away.y() - 4) > 12 || std::abs(away.x()) > 48)
            stand(paintedBamboo(rng_), at);
    }
}

// A wall of rock to the north.
void Builder::cliffs() {
    for (int k = -3; k <= 3; ++k)
        stand(paintedPeak(land_.palette, {PeakStyle::Mesa, rng_.range(0.75, 0.95), 0, {}}, rng_),
              QPointF(place_.at) + QPointF(k * 27, -26 - 8 + 2.2 * k * k * 0.5));
}

} // namespace

void ploughFields(QImage& picture, const Landscape& land, QPoint at, SiteRole role, Rng& rng) {
    if (role != SiteRole::Town && role != SiteRole::Outpost)
        return;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const double turn = rng.range(-0.5, 0.5);
    const int fields = role == SiteRole::Town ? 11 : 5;
    for (int k = 0; k < fields; ++k) {
        const double angle = rng.range(0, 2 * pi);
        const double out = rng.range(1.15, 1.7);
        const QSizeF room = settlementRoom(role);
        const QPointF middle =
            QPointF(at) + QPointF(cosineOf(angle) * room.width(), sineOf(angle) * room.height()) * out;
        const int x = int(middle.x());
        const int y = int(middle.y());
        if (land.toWater.clamped(x, y) < 18 || land.riverDistance(x, y) < 16 || land.highGround(x, y) ||
            land.slope(x, y, 6) > 0.04)
            continue;
        const Colour crop =
            land.palette.field.times(rng.range(0.75, 1.1), rng.range(0.85, 1.1), rng.range(0.8, 1));
        ploughField(painter, middle, turn + rng.range(-0.15, 0.15), crop, rng);
    }
}

void settle(Scene& scene, const Landscape& land, const Settlement& place, Rng& rng) {
    Builder builder(scene, land, place, rng);
    if (land.water(place.at.x(), place.at.y()))
        return;
    switch (place.wish.role) {
    case SiteRole::Town:
        return builder.town();
    case SiteRole::Outpost:
        return builder.outpost();
    case SiteRole::Mission:
        return builder.mission();
    case SiteRole::Challenge:
        return builder.challenge();
    case SiteRole::Area:
        return builder.area();
    case SiteRole::DungeonEntrance:
        return builder.dungeon();
    }
}

} // namespace worldgen
