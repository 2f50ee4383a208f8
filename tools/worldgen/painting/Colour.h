#pragma once

#include <QColor>

#include <algorithm>

namespace worldgen {

// Red, green, blue as 0..255, kept exact between steps.
struct Colour {
    double r = 0;
    double g = 0;
    double b = 0;

    Colour times(double f) const { return {r * f, g * f, b * f}; }
    Colour times(double fr, double fg, double fb) const { return {r * fr, g * fg, b * fb}; }
};

inline Colour colourOf(QRgb rgb) {
    return {double(qRed(rgb)), double(qGreen(rgb)), double(qBlue(rgb))};
}

inline Colour mixed(Colour a, Colour b, double t) {
    t = std::clamp(t, 0.0, 1.0);
    return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t};
}

inline int byteOf(double value) {
    return int(std::clamp(value + 0.5, 0.0, 255.0));
}

inline QRgb rgbOf(Colour c) {
    return qRgb(byteOf(c.r), byteOf(c.g), byteOf(c.b));
}

inline QColor inked(Colour c, int alpha = 255) {
    return QColor(byteOf(c.r), byteOf(c.g), byteOf(c.b), alpha);
}

// Lays `over` on a pixel of a picture.
inline void tint(QRgb& pixel, Colour over, double strength) {
    pixel = rgbOf(mixed(colourOf(pixel), over, strength));
}

} // namespace worldgen
