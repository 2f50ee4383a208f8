#pragma once

#include "base/Colour.h"

namespace orvinel {

// Colours that several windows share.
inline constexpr Colour white = 0xFFFFFF;
inline constexpr Colour darkGrey = 0x404040;
// Behind the titles of panel and legend, and of chosen menu words.
inline constexpr Colour titleBlue = 0xFF0000;
inline constexpr Colour barBlue = 0xFF8080; // of the menu bar

} // namespace orvinel
