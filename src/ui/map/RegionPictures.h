#pragma once

#include "app/Disk.h"

#include <QImage>
#include <QString>

namespace orvinel {

// Decodes a JPEG picture of the world; null when it is missing, broken or larger than the program is ready to
// hold (256 MB decoded). Pictures of other formats count as broken. The result is RGB32.
QImage loadPicture(const Disk& disk, const QString& path);

} // namespace orvinel
