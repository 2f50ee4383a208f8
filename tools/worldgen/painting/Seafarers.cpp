#include "Ground.h"

#include "Maths.h"
#include "Sprites.h"

namespace worldgen {

namespace {

constexpr QColor kInk(30, 20, 12, 210);

void paintSail(QPainter& p, QPointF foot, double high, double wide) {
    QPainterPath sail(foot + QPointF(0, -high));
    sail.quadTo(foot + QPointF(wide * 1.25, -high * 0.55), foot + QPointF(wide * 0.9, -1));
    sail.quadTo(foot + QPointF(wide * 0.4, -high * 0.2), foot + QPointF(0, -1.6));
    sail.closeSubpath();
    p.setPen(QPen(kInk, 0.7));
    p.setBrush(QColor(214, 196, 156));
    p.drawPath(sail);
}

Sprite paintedShip(bool mirrored) {
    SpriteCanvas canvas(48, 46, {24, 36});
    QPainter& p = canvas.painter();
    p.scale(mirrored ? -1 : 1, 1);
    p.setBrush(QColor(8, 20, 26, 90));
    p.drawEllipse(QPointF(0, 4.5), 17, 2.6);
    p.setPen(QPen(kInk, 0.9));
    for (const double x : {-7.0, 3.0})
        p.drawLine(QPointF(x, 0), QPointF(x, x < 0 ? -22 : -27));
    paintSail(p, {-7, -1}, 19, 8);
    paintSail(p, {3, -1}, 25, 11);
    p.setBrush(QColor(150, 48, 36));
    p.setPen(QPen(kInk, 0.5));
    p.drawPolygon(QPolygonF{{3, -31}, {3, -28}, {-5, -28.6}});
    QPainterPath hull(QPointF(-16, -3.5));
    hull.quadTo(QPointF(-2, 0.5), QPointF(16, -4));
    hull.quadTo(QPointF(13, 5), QPointF(8, 5));
    hull.lineTo(-9, 5);
    hull.quadTo(QPointF(-14, 4), QPointF(-16, -3.5));
    p.setPen(QPen(kInk, 0.8));
    p.setBrush(QColor(104, 70, 42));
    p.drawPath(hull);
    p.setPen(QPen(QColor(196, 158, 96, 160), 0.7));
    p.drawLine(QPointF(-13, -0.4), QPointF(13, -0.6));
    p.setPen(QPen(QColor(196, 214, 210, 130), 0.9));
    p.drawLine(QPointF(-18, 5.4), QPointF(16, 5.4));
    return canvas.finished();
}

void paintHump(QPainter& p, QPointF foot, double wide, double high) {
    QPainterPath hump(foot - QPointF(wide, 0));
    hump.cubicTo(foot + QPointF(-wide, -high * 1.3), foot + QPointF(wide, -high * 1.3),
                 foot + QPointF(wide, 0));
    hump.lineTo(foot + QPointF(wide * 0.45, 0));
    hump.cubicTo(foot + QPointF(wide * 0.4, -high * 0.55), foot + QPointF(-wide * 0.4, -high * 0.55),
                 foot - QPointF(wide * 0.45, 0));
    hump.closeSubpath();
    p.setPen(QPen(kInk, 0.8));
    p.setBrush(QColor(62, 104, 92));
    p.drawPath(hump);
    p.setPen(QPen(QColor(196, 214, 210, 130), 0.9));
    p.drawLine(foot - QPointF(wide + 3, -0.6), foot + QPointF(wide + 3, 0.6));
}

Sprite paintedSerpent(bool mirrored) {
    SpriteCanvas canvas(72, 42, {36, 34});
    QPainter& p = canvas.painter();
    p.scale(mirrored ? -1 : 1, 1);
    paintHump(p, {22, 0}, 6, 8);
    paintHump(p, {6, 1}, 8.5, 13);
    QPainterPath neck(QPointF(-16, 1));
    neck.cubicTo(-15, -12, -10, -14, -11, -21);
    neck.cubicTo(-12, -27, -20, -28, -24, -24);
    neck.lineTo(-31, -20.5);
    neck.lineTo(-30, -18.4);
    neck.cubicTo(-25, -17.6, -21, -19, -18.5, -18);
    neck.cubicTo(-20, -12, -25, -8, -24, 1);
    neck.closeSubpath();
    p.setPen(QPen(kInk, 0.8));
    p.setBrush(QColor(68, 112, 98));
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

bool freeWater(const Landscape& land, QPoint at, const std::vector<QRect>& taken) {
    if (!land.inside(at.x(), at.y()) || !land.sea(at.x(), at.y()) || land.toLand.at(at.x(), at.y()) < 52)
        return false;
    return std::none_of(taken.begin(), taken.end(),
                        [&](const QRect& box) { return box.adjusted(-60, -44, 60, 44).contains(at); });
}

} // namespace

void paintSeafarers(QImage& picture, const Landscape& land, const std::vector<QRect>& taken) {
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
        const Sprite sprite = wanted == 2 ? paintedSerpent(mirrored) : paintedShip(mirrored);
        painter.setOpacity(0.88);
        painter.drawImage((QPointF(at) - sprite.anchor).toPoint(), sprite.image);
        used.push_back(QRect(at - QPoint(150, 110), QSize(300, 220)));
        --wanted;
    }
}

} // namespace worldgen
