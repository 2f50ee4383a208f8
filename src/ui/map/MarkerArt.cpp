#include "ui/map/MarkerArt.h"

#include "ui/platform/Drawing.h"
#include "ui/platform/Fonts.h"

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QRgb seeThrough = 0xFFFF00FF;
constexpr int codeAbove = 1; // a code's line starts one pixel above the box

QImage load(const char* name) {
    QImage picture(u":/markers/%1.png"_s.arg(QLatin1String(name)));
    picture = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        std::replace(row, row + picture.width(), seeThrough, QRgb(0));
    }
    return picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

int codeIndent(const QString& code) {
    return code.size() == 1 ? 3 : 1;
}

} // namespace

const QImage& MarkerArt::picture(Sprite sprite) const {
    QImage& picture = pictures_[static_cast<size_t>(sprite)];
    if (picture.isNull())
        picture = load(spriteNames[static_cast<size_t>(sprite)]);
    return picture;
}

QRect MarkerArt::bounds(const Marker& marker) const {
    if (marker.kind == Marker::Kind::Sprite)
        return {QPoint(marker.left, marker.top), picture(marker.sprite).size()};
    return {QPoint(marker.left, marker.top - codeAbove), boxSize(marker)};
}

// With the line above it that a code's letters begin in. A wide code hangs over the right edge of its box.
QSize MarkerArt::boxSize(const Marker& marker) const {
    QSize size(marker.right - marker.left + 1, marker.bottom - marker.top + 1);
    if (!marker.code.isEmpty())
        size = size.expandedTo(codeSize(marker.code));
    return {size.width(), codeAbove + size.height()};
}

// Up to the right edge that a box needs for it, and the height of its line.
const QSize& MarkerArt::codeSize(const QString& code) const {
    const bool usual = code.size() == 1 && code[0].unicode() < letterSizes_.size();
    QSize& size = usual ? letterSizes_[code[0].unicode()] : codeSizes_[code];
    if (size.isValid())
        return size;
    const QFontMetrics metrics(arial(points8, true));
    size = {codeIndent(code) + metrics.horizontalAdvance(code) + 1, metrics.height()};
    return size;
}

void MarkerArt::draw(QPainter& painter, const Marker& marker) const {
    if (marker.kind == Marker::Kind::Sprite)
        painter.drawImage(marker.left, marker.top, picture(marker.sprite));
    else
        painter.drawImage(marker.left, marker.top - codeAbove, box(marker));
}

const QImage& MarkerArt::box(const Marker& marker) const {
    const int width = marker.right - marker.left + 1;
    const int height = marker.bottom - marker.top + 1;
    QImage& image = boxes_[{width, height, marker.fill, marker.code}];
    if (!image.isNull())
        return image;
    image = QImage(boxSize(marker), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    Drawing drawing(&image);
    drawing.setFont(arial(points8, true));
    drawing.setFill(marker.fill);
    drawing.box(0, codeAbove, width - 1, codeAbove + height - 1);
    drawing.print(codeIndent(marker.code), 0, marker.code);
    return image;
}

} // namespace orvinel
