#pragma once

#include <array>
#include <cstddef>

namespace orvinel {

// The panel's tabs; the values are the numbers of their controls and of their colours. Each has a page and
// the check box that switches its layers on the map.
enum class Tab { Elites, Collectors, Greens, Notes, Various };
inline constexpr std::array allTabs = {Tab::Elites, Tab::Collectors, Tab::Greens, Tab::Notes, Tab::Various};
inline constexpr int tabCount = static_cast<int>(allTabs.size());

constexpr size_t indexOf(Tab tab) {
    return static_cast<size_t>(tab);
}

} // namespace orvinel
