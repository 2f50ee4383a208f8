#pragma once

#include "app/modOptions.h"

#include <QRect>

#include <optional>

namespace orvinel {

// Where panel and map window stand, pixels.
struct WindowPair {
    QRect panel;
    QRect map;

    bool operator==(const WindowPair&) const = default;
};

// The pair fills the work area, the panel at its left; `inset`: shrunk on all sides by 1/20 of the area's
// right edge.
WindowPair maximisedPair(const QRect& workArea, int panelWidth, bool inset);

// The remembered place; nothing when there is none or when it reaches beyond the width of all screens
// together (`screens`). The map is at most as large as they are: a system can hold no window of any size.
std::optional<WindowPair> rememberedPair(const Options& options, const QRect& workArea, QSize screens,
                                         int panelWidth);

// What tells, when it lasts, that a window manager does not let windows be placed. It made the panel a width
// that no window manager makes it that heeds what a window asks for:
bool isTiled(int shownWidth, int panelWidth);
// It moved neither, and they are far from standing side by side:
bool isLeftApart(const WindowPair& before, const WindowPair& after);

// Whole pixels, rounded.
int pixelsOf(int twips);
int twipsOf(int pixels);

} // namespace orvinel
