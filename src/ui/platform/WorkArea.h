#pragma once

#include <QRect>

#include <optional>
#include <vector>

class QScreen;

namespace orvinel {

// What a window manager says of the room that its bars leave, device pixels of all monitors together.
struct ToldAreas {
    std::vector<QRect> monitors; // one for each, in any order; empty: it does not say
    QRect desktop;               // one for all; empty: it does not say
};

// The part of `monitor` (device pixels) that is left for windows; nothing where the told areas do not say.
std::optional<QRect> workAreaIn(const QRect& monitor, const ToldAreas& told);

// The same on the screen, in the units of windows. With several screens under X11 Qt leaves the bars out of
// it.
QRect workAreaOf(const QScreen& screen);

} // namespace orvinel
