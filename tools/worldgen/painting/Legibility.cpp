#include "Frame.h"

#include "Maths.h"

#include <array>

namespace worldgen {

namespace {

/// Cream letters (luminance 0.84) need ground below 0.148 for a contrast of 4.5:1; the rest is for the
/// picture's compression.
constexpr double kQuietLuminance = 0.108;

std::array<double, 256> linearLight() {
    std::array<double, 256> table;
    for (std::size_t k = 0; k < table.size(); ++k) {
        const double s = double(k) / 255;
        table[k] = s <= 0.03928 ? s / 12.92 : powOf((s + 0.055) / 1.055, 2.4);
    }
    return table;
}

double meanLuminance(const QImage& picture) {
    double sum = 0;
    int count = 0;
    for (int y = 0; y < picture.height(); y += 2) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); x += 2, ++count)
            sum += luminanceOf(line[x]);
    }
    return count == 0 ? 0 : sum / count;
}

} // namespace

double luminanceOf(QRgb colour) {
    static const std::array<double, 256> light = linearLight();
    return 0.2126 * light[std::size_t(qRed(colour))] + 0.7152 * light[std::size_t(qGreen(colour))] +
           0.0722 * light[std::size_t(qBlue(colour))];
}

void limitLuminance(QImage& picture, double mean) {
    for (int pass = 0; pass < 4; ++pass) {
        const double now = meanLuminance(picture);
        if (now <= mean)
            return;
        const double factor = powOf(mean / now, 1 / 2.2) * 0.998;
        for (int y = 0; y < picture.height(); ++y) {
            auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
            for (int x = 0; x < picture.width(); ++x)
                line[x] = rgbOf(colourOf(line[x]).times(factor));
        }
    }
}

void quietenGround(QImage& picture, const QRect& box) {
    constexpr int fade = 26;
    const QRect reach = box.adjusted(-fade, -fade, fade, fade) & picture.rect();
    for (int y = reach.top(); y <= reach.bottom(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = reach.left(); x <= reach.right(); ++x) {
            const double outX = std::max({0, box.left() - x, x - box.right()});
            const double outY = std::max({0, box.top() - y, y - box.bottom()});
            const double strength = smoothStep(fade, 0, lengthOf(outX, outY));
            const double light = luminanceOf(line[x]);
            const double wanted =
                std::min(light, kQuietLuminance * (0.62 + 0.38 * std::min(1.0, light / 0.4)));
            if (wanted >= light)
                continue;
            const double factor = powOf(wanted / light, 1 / 2.2);
            line[x] = rgbOf(colourOf(line[x]).times(lerp(1, factor, strength)));
        }
    }
}

} // namespace worldgen
