#pragma once

#include <QtGlobal>

namespace orvinel {

// Bytes that a picture may take decoded, four for each pixel; larger ones are not shown.
inline constexpr qint64 largestRegion = 256ll * 1024 * 1024;
inline constexpr qint64 largestIcon = 16ll * 1024 * 1024;

} // namespace orvinel
