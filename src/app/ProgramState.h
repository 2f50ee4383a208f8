#pragma once

#include "app/Tab.h"
#include "app/modOptions.h"
#include "base/Colour.h"
#include "progress/Progress.h"

#include <array>

namespace orvinel {

// Everything that the program knows. Filled by the loaders, changed by the dialogs, read by everybody else. A
// rule takes the floor of it that it reads: World, Content or Progress.
struct ProgramState : Progress {
    Options AppOptions;
    std::array<Colour, 9> TabColors{}; // of the panel's tabs and the information windows

    Colour colourOf(Tab tab) const { return TabColors[indexOf(tab)]; }
};

} // namespace orvinel
