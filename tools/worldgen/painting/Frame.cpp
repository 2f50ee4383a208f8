#include "Frame.h"

#include "Maths.h"

#include <QFont>
#include <QFontDatabase>
#include <QPainter>
#include <QPainterPath>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

const QColor gold(168, 136, 78);

QFont titleFace(int pixels) {
    const QString face = u"Z003"_s;
    QFont font(QFontDatabase::hasFamily(face) ? face : u"Liberation Serif"_s);
    font.setItalic(true);
    font.setPixelSize(pixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void paintCorner(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(30, 20, 10));
    painter.drawPolygon(QPolygonF{{0, 0}, {44, 0}, {0, 44}});
    painter.setPen(QPen(gold, 1.4));
    painter.setBrush(Qt::NoBrush);
    QPainterPath scroll(QPointF(9, 46));
    scroll.cubicTo(10, 22, 22, 10, 46, 9);
    scroll.moveTo(13, 40);
    scroll.cubicTo(28, 36, 36, 28, 40, 13);
    painter.drawPath(scroll);
    painter.setBrush(gold);
    painter.drawPolygon(QPolygonF{{19, 14}, {24, 19}, {19, 24}, {14, 19}});
}

int landUnder(const Landscape& land, const QRect& box) {
    int count = 0;
    for (int y = box.top(); y < box.bottom(); y += 7)
        for (int x = box.left(); x < box.right(); x += 9)
            count += land.water(x, y) ? 0 : 1;
    return count;
}

QPainterPath titleLetters(const QString& title) {
    QPainterPath letters;
    letters.addText(0, 0, titleFace(58), title);
    return letters;
}

void paintNeedle(QPainter& painter, double length, double breadth) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(66, 44, 26, 215));
    painter.drawPolygon(QPolygonF{{0, -length}, {breadth, -breadth * 1.4}, {0, 0}});
    painter.setBrush(QColor(214, 188, 130, 225));
    painter.drawPolygon(QPolygonF{{0, -length}, {-breadth, -breadth * 1.4}, {0, 0}});
}

void paintRose(QPainter& painter, double radius) {
    painter.setPen(QPen(QColor(206, 180, 120, 150), 1.2));
    painter.setBrush(QColor(10, 16, 20, 50));
    painter.drawEllipse(QPointF(), radius * 0.62, radius * 0.62);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(), radius * 0.56, radius * 0.56);
    for (int pass = 0; pass < 3; ++pass) // the long needles lie on top
        for (int k = 0; k < 16; ++k) {
            const int rank = k % 4 == 0 ? 2 : k % 2 == 0 ? 1 : 0;
            if (rank != pass)
                continue;
            painter.save();
            painter.rotate(k * 22.5);
            if (rank > 0) {
                paintNeedle(painter, radius * (rank == 2 ? 1.0 : 0.68), radius * 0.09);
            } else {
                painter.setPen(QPen(QColor(206, 180, 120, 110), 1));
                painter.drawLine(QPointF(0, -radius * 0.56), QPointF(0, -radius * 0.62));
            }
            painter.restore();
        }
    QPainterPath north;
    north.addText(0, 0, titleFace(int(radius * 0.34)), u"N"_s);
    north.translate(-north.boundingRect().center().x(), -radius * 1.08 - north.boundingRect().bottom());
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(222, 198, 142, 230));
    painter.drawPath(north);
}

double roseRadius(double room) {
    return std::min(room * 0.66, 84.0);
}

// What a rose covers, its N above it included, and a little more.
QRect roseBox(QPoint middle, double radius) {
    constexpr int gap = 16;
    const int reach = int(radius) + gap;
    const int up = int(radius * 1.45) + gap;
    return {middle - QPoint(reach, up), QSize(2 * reach, up + reach)};
}

} // namespace

void agePicture(QImage& picture, const Landscape& land) {
    const Noises& n = land.noises;
    const int w = picture.width();
    const int h = picture.height();
    for (int y = 0; y < h; ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < w; ++x) {
            const double u = x * 2.0 / w - 1;
            const double v = y * 2.0 / h - 1;
            double f = 1 - 0.26 * smoothStep(0.72, 1.5, lengthOf(u, v));
            f *= 1 + 0.030 * n.a.at(x / 2.3, y / 2.3) + 0.03 * n.d.fbm(x / 3.0, y / 60.0, 2) +
                 0.02 * n.b.fbm(x / 60.0, y / 3.0, 2);
            const int edge = std::min(std::min(x, w - 1 - x), std::min(y, h - 1 - y));
            if (edge < 44)
                f *= 0.55 + 0.45 * smoothStep(0, 34, edge + 7 * n.c.fbm(x / 25.0, y / 25.0, 3));
            line[x] = rgbOf(colourOf(line[x]).times(f));
        }
    }
}

void paintFrame(QImage& picture) {
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole(picture.rect());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(30, 20, 10), 16));
    painter.drawRect(whole);
    painter.setPen(QPen(gold, 1.6));
    painter.drawRect(whole.adjusted(8.5, 8.5, -8.5, -8.5));
    painter.setPen(QPen(QColor(168, 136, 78, 140), 1));
    painter.drawRect(whole.adjusted(12.5, 12.5, -12.5, -12.5));
    for (int corner = 0; corner < 4; ++corner) {
        painter.save();
        painter.translate(corner % 2 == 0 ? 0 : whole.width(), corner < 2 ? 0 : whole.height());
        painter.scale(corner % 2 == 0 ? 1 : -1, corner < 2 ? 1 : -1);
        paintCorner(painter);
        painter.restore();
    }
}

QRect titleBox(const Landscape& land, const std::vector<QPoint>& sites, const QString& title) {
    constexpr int margin = 44;
    const QSize size = titleLetters(title).boundingRect().size().toSize();
    const int width = land.size.width();
    const int height = land.size.height();
    QRect best;
    int fewest = -1;
    for (const int y : {margin, height - margin - size.height()})
        for (const int x : {margin, (width - size.width()) / 2, width - margin - size.width()}) {
            const QRect box(QPoint(x, y), size);
            int covered = landUnder(land, box);
            for (const QPoint& site : sites)
                covered += box.adjusted(-70, -50, 70, 50).contains(site) ? 2000 : 0;
            if (fewest < 0 || covered < fewest) {
                fewest = covered;
                best = box;
            }
        }
    return title.isEmpty() ? QRect() : best;
}

void paintTitle(QImage& picture, const QRect& box, const QString& title) {
    QPainterPath letters = titleLetters(title);
    const QRectF bounds = letters.boundingRect();
    letters.translate(box.left() - bounds.left(), box.top() - bounds.top());
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(20, 14, 8, 60), 15, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(letters);
    painter.setPen(QPen(QColor(20, 14, 8, 190), 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(letters);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(226, 200, 140));
    painter.drawPath(letters);
}

QRect paintCompass(QImage& picture, const Landscape& land, const std::vector<QRect>& taken) {
    QPoint best;
    double widest = 0;
    for (int y = 90; y < picture.height() - 90; y += 8)
        for (int x = 90; x < picture.width() - 90; x += 8) {
            const int border = std::min(std::min(x, picture.width() - x), std::min(y, picture.height() - y));
            const double room = std::min<double>(land.toLand.at(x, y), border - 36);
            const QRect box = roseBox({x, y}, roseRadius(room));
            const bool clear = std::none_of(taken.begin(), taken.end(),
                                            [&](const QRect& other) { return other.intersects(box); });
            if (room > widest && clear) {
                widest = room;
                best = {x, y};
            }
        }
    if (widest < 62)
        return {};
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(best);
    paintRose(painter, roseRadius(widest));
    return roseBox(best, roseRadius(widest));
}

} // namespace worldgen
