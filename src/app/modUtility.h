#pragma once

#include "base/Disk.h"

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <span>
#include <string>
#include <string_view>

namespace orvinel {

// True when any of `words` occurs in `text`: exact, case-sensitive. An empty word occurs in every text; no
// word in none.
bool ContainsAnyWord(std::string_view text, std::span<const std::string> words);

// Where the information window of a marker goes, in viewport pixels. `marker` is the marker's rectangle in
// viewport pixels (right() and bottom() are its last column and row), `tooltip` the window's size, `view` the
// viewport's size.
QPoint PlaceTooltip(QSize tooltip, const QRect& marker, QSize view);

} // namespace orvinel
