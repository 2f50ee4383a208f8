#include "Sprites.h"

namespace worldgen {

SpriteCanvas::SpriteCanvas(int width, int height, QPointF anchor)
    : large_(width * samples, height * samples, QImage::Format_ARGB32_Premultiplied), anchor_(anchor) {
    large_.fill(Qt::transparent);
    painter_.begin(&large_);
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.scale(samples, samples);
    painter_.translate(anchor);
    painter_.setPen(Qt::NoPen);
}

Sprite SpriteCanvas::finished() {
    painter_.end();
    return {shrunk(large_, samples), anchor_};
}

QImage shrunk(const QImage& premultiplied, int factor) {
    QImage result(premultiplied.width() / factor, premultiplied.height() / factor,
                  QImage::Format_ARGB32_Premultiplied);
    const int count = factor * factor;
    for (int y = 0; y < result.height(); ++y) {
        auto* to = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            int r = count / 2, g = r, b = r, a = r;
            for (int j = 0; j < factor; ++j) {
                const auto* from = reinterpret_cast<const QRgb*>(premultiplied.constScanLine(y * factor + j));
                for (int i = x * factor; i < (x + 1) * factor; ++i) {
                    r += qRed(from[i]);
                    g += qGreen(from[i]);
                    b += qBlue(from[i]);
                    a += qAlpha(from[i]);
                }
            }
            to[x] = qRgba(r / count, g / count, b / count, a / count);
        }
    }
    return result;
}

} // namespace worldgen
