#include "ui/map/RegionPictures.h"

#include <QBuffer>
#include <QImageReader>

#include <chrono>
#include <cstring>
#include <utility>

namespace orvinel {

namespace {

class JpegReader {
  public:
    // `mostBytes`: decoded.
    explicit JpegReader(QByteArray bytes, qint64 mostBytes = largestRegion)
        : bytes_(std::move(bytes)), mostBytes_(mostBytes) {
        // Of all readers, on whatever thread: each looks at its picture's size first.
        QImageReader::setAllocationLimit(static_cast<int>(largestRegion / (1024 * 1024)) + 1);
        reader_.setAutoTransform(false);
    }

    // Empty: nothing that the program is ready to hold. The header is checked before a byte is decoded: a
    // small file can claim gigabytes.
    QSize size() const {
        const QSize claimed = bytes_.isEmpty() ? QSize() : reader_.size();
        const bool fits = qint64(claimed.width()) * claimed.height() * 4 <= mostBytes_;
        return fits && !claimed.isEmpty() ? claimed : QSize();
    }
    // Whether Qt decodes rows into an RGB32 image that is there already.
    bool decodesInPlace() const { return reader_.imageFormat() == QImage::Format_RGB32; }

    QImage readAll() {
        if (size().isEmpty())
            return {};
        QImage picture = reader_.read();
        if (picture.format() != QImage::Format_RGB32)
            picture = std::move(picture).convertToFormat(QImage::Format_RGB32);
        picture.setDevicePixelRatio(1);
        return picture;
    }
    bool readRows(QRgb* at, int from, int count, int width) {
        const qsizetype line = qsizetype(width) * qsizetype(sizeof(QRgb));
        QImage rows(reinterpret_cast<uchar*>(at), width, count, line, QImage::Format_RGB32);
        reader_.setClipRect({0, from, width, count});
        if (!reader_.read(&rows) || rows.size() != QSize(width, count))
            return false;
        if (rows.constBits() != reinterpret_cast<const uchar*>(at))
            std::memcpy(at, rows.convertToFormat(QImage::Format_RGB32).constBits(),
                        size_t(line) * size_t(count));
        return true;
    }

  private:
    QByteArray bytes_;
    qint64 mostBytes_;
    QBuffer buffer_{&bytes_};
    QImageReader reader_{&buffer_, QByteArrayLiteral("jpeg")};
};

GrowingPicture decodedInSteps(const QByteArray& bytes, int firstRows) {
    JpegReader reader(bytes);
    const QSize size = reader.size();
    const int lower = size.height() - firstRows;
    if (size.isEmpty() || lower <= 0 || !reader.decodesInPlace())
        return reader.readAll();
    QImage picture(size, QImage::Format_RGB32);
    QRgb* const pixels = reinterpret_cast<QRgb*>(picture.bits());
    if (picture.isNull() || !reader.readRows(pixels, 0, firstRows, size.width()))
        return QImage();
    QRgb* const at = pixels + qsizetype(firstRows) * size.width();
    return {std::move(picture), firstRows, [bytes, at, firstRows, lower, width = size.width()] {
                if (!JpegReader(bytes).readRows(at, firstRows, lower, width))
                    std::memset(at, 0, size_t(lower) * size_t(width) * sizeof(QRgb));
            }};
}

} // namespace

QImage loadPicture(const Disk& disk, const QString& path, qint64 mostBytes,
                   const std::function<void(qint64 bytes)>& announce) {
    JpegReader reader(disk.read(path).bytes, mostBytes);
    if (const QSize size = reader.size(); announce && !size.isEmpty())
        announce(qint64(size.width()) * size.height() * 4);
    return reader.readAll();
}

void GrowingPicture::beginRest() {
    if (decodeRest)
        rest = std::async(std::launch::async, std::exchange(decodeRest, nullptr));
}

bool GrowingPicture::ready() const {
    return !decodeRest &&
           (!rest.valid() || rest.wait_for(std::chrono::seconds(0)) == std::future_status::ready);
}

void GrowingPicture::finish() {
    beginRest();
    if (rest.valid())
        rest.get();
    rows = image.height();
}

PictureAhead::PictureAhead(const Disk& disk, const QString& path, int firstRows) : path_(path) {
    if (!path.isEmpty())
        picture_ = std::async(std::launch::async, decodedInSteps, disk.read(path).bytes, firstRows);
}

std::optional<GrowingPicture> PictureAhead::take(const QString& path) {
    if (path != path_ || !picture_.valid())
        return std::nullopt;
    return picture_.get();
}

} // namespace orvinel
