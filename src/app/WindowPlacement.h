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

// The remembered place; nothing when there is none or when it is wider than all screens together
// (`screenWidth`).
std::optional<WindowPair> rememberedPair(const Options& options, const QRect& workArea, int screenWidth,
                                         int panelWidth);

// Whole pixels, rounded.
int pixelsOf(int twips);
int twipsOf(int pixels);

} // namespace orvinel
