#pragma once

#include "base/Disk.h"
#include "world/PictureBounds.h"

#include <QImage>
#include <QString>

#include <functional>
#include <future>
#include <optional>

namespace orvinel {

// Decodes a JPEG picture of the world; null when it is missing, broken or takes more than `mostBytes`
// decoded. Pictures of other formats count as broken. The result is RGB32. `announce` is told the bytes that
// it is going to take before it takes them.
QImage loadPicture(const Disk& disk, const QString& path, qint64 mostBytes = largestRegion,
                   const std::function<void(qint64 bytes)>& announce = {});

// A picture whose lower rows may be missing yet; another thread decodes them into the image's own memory.
// Until finish() only rows above `rows` may be read or written, and the image may not be copied to another
// owner.
struct GrowingPicture {
    // One that is there altogether.
    GrowingPicture(QImage whole) : image(std::move(whole)), rows(image.height()) {}
    // `lower` decodes the rest.
    GrowingPicture(QImage upper, int decodedRows, std::function<void()> lower)
        : image(std::move(upper)), rows(decodedRows), decodeRest(std::move(lower)) {}

    // Begins with the rest, on another thread, when there is one that nobody began with.
    void beginRest();
    // True when finish() need not wait.
    bool ready() const;
    // Waits for the rest. Rows that cannot be decoded are black.
    void finish();

    QImage image; // null: broken
    int rows = 0; // from the top, decoded
    std::function<void()> decodeRest;
    std::future<void> rest;
};

// A picture that is decoded on another thread while the program gets ready to show it, the upper rows first.
// Destroying it waits for the decoding to end.
class PictureAhead {
  public:
    PictureAhead() = default;
    // Reads the file at once; an empty path: no picture. `firstRows`: so many, at least, are going to be seen
    // first.
    PictureAhead(const Disk& disk, const QString& path, int firstRows);

    // Waits for the upper rows, when `path` is the picture decoded here; the picture is given away.
    std::optional<GrowingPicture> take(const QString& path);

  private:
    QString path_;
    std::future<GrowingPicture> picture_;
};

} // namespace orvinel
