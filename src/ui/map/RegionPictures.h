#pragma once

#include "app/Disk.h"

#include <QImage>
#include <QString>

#include <future>
#include <optional>

namespace orvinel {

// Decodes a JPEG picture of the world; null when it is missing, broken or larger than the program is ready to
// hold (256 MB decoded). Pictures of other formats count as broken. The result is RGB32.
QImage loadPicture(const Disk& disk, const QString& path);

// A picture that is decoded on another thread while the program gets ready to show it. Destroying it waits
// for the decoding to end.
class PictureAhead {
  public:
    PictureAhead() = default;
    // Reads the file at once; an empty path: no picture.
    PictureAhead(const Disk& disk, const QString& path);

    // What loadPicture gives, when `path` is the picture decoded here; the picture is given away.
    std::optional<QImage> take(const QString& path);

  private:
    QString path_;
    std::future<QImage> picture_;
};

} // namespace orvinel
