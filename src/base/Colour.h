#pragma once

#include <cstdint>

namespace orvinel {

// 0x00BBGGRR: red in the low byte.
using Colour = std::uint32_t;

inline constexpr Colour noBossGrey = 0xAAAAAA;
inline constexpr Colour greenItemGreen = 0x00FF00;

// 0xFFRRGGBB, as pictures hold it.
constexpr std::uint32_t opaqueRgb(Colour colour) {
    return 0xFF000000u | ((colour & 0xFFu) << 16) | (colour & 0xFF00u) | ((colour >> 16) & 0xFFu);
}

} // namespace orvinel
