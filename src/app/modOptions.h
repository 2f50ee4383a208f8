#pragma once

#include "base/PlayerFiles.h"

#include <QString>

namespace orvinel {

struct ProgramState;

// The settings of Data/Options.txt. Selections are list positions in the panel's combo boxes; -1 leaves the
// combo box as it is. Places are twips; -1: none remembered.
struct Options {
    int Campaign = 0;
    int Region = -1;
    int Zone = -1;
    int Profession = 0;
    int SecondaryProfession = 0;
    bool AllElite = true;
    int Character = 0;
    bool Legend = false;
    int PosX = -1; // panel
    int PosY = -1;
    int DimX = -1; // map window
    int DimY = -1;
    int ShowElites = 1; // 0..255, as the three that follow; 1: the layer is drawn
    int ShowCollectors = 1;
    int ShowGreens = 1;
    int ShowNotes = 1;
    int LegendX = -1;
    int LegendY = -1;
    int RightClickNeeded = 1; // information-window mode 0..2
    int AlwaysOnTop = 0;      // 0..255; 1: on
    int CollectorLevel = 2;   // 0..255; 2 all, 1 and 0 the two levels

    bool operator==(const Options&) const = default;
};

QString optionsPath(const ProgramState& state);
void LoadOptions(ProgramState& state, PlayerFiles& files);

// The text of Options.txt. Values are written as they stand, but for mode 0, which is written as 2.
QString optionsFile(const Options& options);

} // namespace orvinel
