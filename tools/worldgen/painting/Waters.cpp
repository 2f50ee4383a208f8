#include "Ground.h"
#include "Maths.h"

#include <QPainter>
#include <QPainterPath>
#include <QPointF>

namespace worldgen {

namespace {

constexpr Colour foamColour{185, 211, 203};

// Four broken lines that follow the coast, ever fainter towards the open sea.
double foamAt(const Landscape& land, int x, int y) {
    constexpr double lines[] = {3, 9, 17, 27};
    const double away = land.toLand.at(x, y);
    if (away > 34)
        return 0;
    const double d = away + 2.2 * land.noises.c.at(x / 13.0, y / 13.0);
    double foam = 0;
    for (int k = 0; k < 4; ++k) {
        const double line = std::max(0.0, 1 - std::fabs(d - lines[k]) / (1.0 + 0.15 * k));
        if (line > 0)
            foam = std::max(foam, line * (0.50 - 0.11 * k) *
                                      smoothStep(-0.35, 0.25, land.noises.a.at(x / 60.0 + k * 9, y / 60.0)));
    }
    return foam;
}

void paintWave(QPainter& painter, QPointF at, double size) {
    QPainterPath wave(at - QPointF(9, 0) * size);
    wave.cubicTo(at + QPointF(-6, -4) * size, at + QPointF(-3, -4) * size, at);
    wave.cubicTo(at + QPointF(3, -4) * size, at + QPointF(6, -4) * size, at + QPointF(9, 0) * size);
    painter.drawPath(wave);
}

void paintWaves(QImage& picture, const Landscape& land) {
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(170, 200, 205, 55), 1.2));
    Rng rng(land.cells.count() + 17ULL);
    for (int y = 44; y < picture.height() - 44; y += 46)
        for (int x = 44; x < picture.width() - 44; x += 62) {
            const QPointF at(x + rng.range(-24, 24), y + rng.range(-18, 18));
            const bool open = land.toLand.clamped(int(at.x()), int(at.y())) > 46;
            if (open && rng.chance(0.42))
                paintWave(painter, at, rng.range(0.75, 1.15));
        }
}

using Stroke = void (*)(QPainter&, QPointF, QPointF, double);

void strokeRiver(QPainter& painter, const Landscape& land, const River& river, Stroke stroke) {
    for (std::size_t k = 1; k < river.points.size(); ++k) {
        const QPointF p = river.points[k];
        if (land.lakes.sampled(p.x() / cellSide, p.y() / cellSide) <= 0.4)
            stroke(painter, river.points[k - 1], p, river.widths[k]);
    }
}

} // namespace

void paintCoast(QImage& picture, const Landscape& land) {
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            if (!land.water(x, y))
                continue;
            if (land.sea(x, y))
                tint(line[x], foamColour, foamAt(land, x, y));
            const double edge = 2.2 - land.toLand.at(x, y);
            if (edge > 0)
                tint(line[x], Colour{14, 18, 18}, 0.30 * std::min(1.0, edge));
        }
    }
    paintWaves(picture, land);
}

void paintRivers(QImage& picture, const Landscape& land) {
    const Colour water = mixed(land.palette.shallow, land.palette.deep, 0.35).times(1.12, 1.16, 1.2);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const River& river : land.rivers)
        strokeRiver(painter, land, river, [](QPainter& p, QPointF a, QPointF b, double width) {
            p.setPen(QPen(QColor(18, 22, 18, 90), width + 2.4, Qt::SolidLine, Qt::RoundCap));
            p.drawLine(a, b);
        });
    for (const River& river : land.rivers) {
        painter.setPen(QPen(inked(water), 1, Qt::SolidLine, Qt::RoundCap));
        strokeRiver(painter, land, river, [](QPainter& p, QPointF a, QPointF b, double width) {
            QPen pen = p.pen();
            pen.setWidthF(width);
            p.setPen(pen);
            p.drawLine(a, b);
        });
    }
    for (const River& river : land.rivers)
        strokeRiver(painter, land, river, [](QPainter& p, QPointF a, QPointF b, double width) {
            if (width <= 2.6)
                return;
            const QPointF lit(-width * 0.2, -width * 0.2);
            p.setPen(QPen(QColor(170, 205, 205, 70), 0.8));
            p.drawLine(a + lit, b + lit);
        });
}

} // namespace worldgen
