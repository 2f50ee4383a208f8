#include "ui/map/RegionPictures.h"

#include <QBuffer>
#include <QImageReader>

namespace orvinel {

namespace {

constexpr qint64 mostBytes = 256ll * 1024 * 1024;

QImage decoded(QByteArray bytes) {
    if (bytes.isEmpty())
        return {};
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, QByteArrayLiteral("jpeg"));
    // The header is checked before a byte is decoded: a small file can claim gigabytes.
    const QSize size = reader.size();
    if (size.isEmpty() || qint64(size.width()) * size.height() * 4 > mostBytes)
        return {};
    QImageReader::setAllocationLimit(static_cast<int>(mostBytes / (1024 * 1024)) + 1);
    reader.setAutoTransform(false);
    QImage picture = reader.read();
    if (picture.format() != QImage::Format_RGB32)
        picture = std::move(picture).convertToFormat(QImage::Format_RGB32);
    picture.setDevicePixelRatio(1);
    return picture;
}

} // namespace

QImage loadPicture(const Disk& disk, const QString& path) {
    return decoded(disk.read(path).bytes);
}

PictureAhead::PictureAhead(const Disk& disk, const QString& path) : path_(path) {
    if (!path.isEmpty())
        picture_ = std::async(std::launch::async, decoded, disk.read(path).bytes);
}

std::optional<QImage> PictureAhead::take(const QString& path) {
    if (path != path_ || !picture_.valid())
        return std::nullopt;
    return picture_.get();
}

} // namespace orvinel
