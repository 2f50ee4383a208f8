#pragma once

#include <string_view>

namespace orvinel {

// True when `needle` occurs in `text`, byte by byte; an empty one occurs in every text. The same answer as
// text.find(needle), but several times as fast when the needle begins with a common letter: it compares the
// first and the last byte of eight places at once. This is what a search looks through at every keystroke.
bool occursIn(std::string_view text, std::string_view needle);

} // namespace orvinel
