#include "Frame.h"

#include "Field.h"
#include "Maths.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>

#include <array>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

// Cream letters (luminance 0.84) need ground below 0.148 for a contrast of 4.5:1; the rest is for the
// picture's compression.
constexpr double quietLuminance = 0.120;
constexpr int shadeReach = 32; // pixels around a name

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

// 1 under the letters, thinning out around them.
Field letterShade(const QRect& box, QSize size, const QString& name) {
    QFont face(u"Liberation Sans"_s); // as wide as the face of the program's names
    face.setPixelSize(13);
    face.setBold(true);
    face.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath letters;
    letters.addText(0, 0, face, name);
    letters.translate(QRectF(box).center() - letters.boundingRect().center());
    QImage mask(size, QImage::Format_Grayscale8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.setPen(QPen(Qt::white, 13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::white);
    painter.drawPath(letters);
    painter.end();
    Field shade(size.width(), size.height());
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            shade.at(x, y) = float(mask.constScanLine(y)[x]) / 255;
    return blurred(blurred(blurred(shade, 5), 6), 7);
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

void shadeName(QImage& picture, const QRect& box, const QString& name) {
    const QRect reach = box.adjusted(-shadeReach, -shadeReach, shadeReach, shadeReach);
    const Field shade = letterShade(box.translated(-reach.topLeft()), reach.size(), name);
    const QRect seen = reach & picture.rect();
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = seen.left(); x <= seen.right(); ++x) {
            const double strength = smoothStep(0, 0.62, shade.at(x - reach.left(), y - reach.top()));
            const double light = luminanceOf(line[x]);
            const double wanted =
                std::min(light, quietLuminance * (0.72 + 0.28 * std::min(1.0, light / 0.4)));
            if (wanted >= light || strength <= 0)
                continue;
            const double factor = powOf(wanted / light, 1 / 2.2);
            line[x] = rgbOf(colourOf(line[x]).times(lerp(1, factor, strength)));
        }
    }
}

} // namespace worldgen
