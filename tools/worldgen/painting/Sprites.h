#pragma once

#include "Landscape.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

namespace worldgen {

// A small picture with see-through surroundings.
struct Sprite {
    QImage image;   // ARGB32 premultiplied
    QPointF anchor; // the point of the picture that stands on the ground
};

// A sprite is painted several times larger and shrunk: edges and leaves finer than a pixel melt into one
// another.
class SpriteCanvas {
  public:
    // `width`, `height`: of the finished sprite; `anchor` in it is the origin to paint around.
    SpriteCanvas(int width, int height, QPointF anchor);
    QPainter& painter() { return painter_; }
    Sprite finished();

    static constexpr int samples = 4;

  private:
    QImage large_;
    QPointF anchor_;
    QPainter painter_;
};

// The mean of each `factor` x `factor` square; sizes must divide.
QImage shrunk(const QImage& premultiplied, int factor);

// One tree, about 14 pixels high at `scale` 1, with its shadow to the south-east.
Sprite paintedTree(TreeStyle style, const Palette& palette, double scale, Rng& rng);

enum class PeakStyle { Alpine, Mesa, Volcanic, Hill };

struct PeakShape {
    PeakStyle style = PeakStyle::Alpine;
    double scale = 1; // 1 is about 50 pixels wide
    double snow = 0;  // share of its height that is white
    Colour ground;    // what a hill is covered with
};

// One mountain as a little landscape of its own, seen from the south and lit from the north-west.
Sprite paintedPeak(const Palette& palette, const PeakShape& shape, Rng& rng);

} // namespace worldgen
