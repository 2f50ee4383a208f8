#pragma once

#include <QByteArray>
#include <QSize>

namespace orvinel {

// Width and height that a JPEG names in its frame header, without decoding it; empty when there is none.
QSize jpegSize(const QByteArray& bytes);

} // namespace orvinel
