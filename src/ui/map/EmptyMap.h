#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace orvinel {

// What the map shows without a region: splash, title, signature and credits on black. `size` and the result
// are in screen pixels.
QImage drawEmptyMap(QSize size, const QString& title);

} // namespace orvinel
