#pragma once

#include "ui/layers/modCollectorsView.h"
#include "ui/layers/modEliteView.h"
#include "ui/layers/modGreeniesView.h"
#include "ui/layers/modNotesView.h"
#include "ui/layers/modPetsView.h"
#include "ui/layers/modTreasuresView.h"
#include "ui/layers/modZonesView.h"
#include "ui/map/Flashing.h"
#include "ui/map/frmMap.h"
#include "ui/panel/frmMenu.h"

#include <functional>

namespace orvinel {

// The kinds of content, and the orders in which they are drawn, asked, hidden and filtered.
struct ProgramLayers {
    struct Actions {
        std::function<void(int eliteId, bool fromMap)> openCapture;
        std::function<void(int index)> openTreasure;
    };
    ProgramLayers(const ProgramState& state, const Disk& disk, const Desktop& desktop, frmMenu& panel,
                  frmMap& map, Actions actions);

    ZonesView zones;
    GreensView greens;
    EliteView elites;
    CollectorsView collectors;
    NotesView notes;
    TreasuresView treasures;
    PetsView pets;

    frmMap::Chains chains();
    // In the order in which they are hidden.
    std::vector<InformationWindow*> windows();
    // In the order in which a change filters them, those of the panel's Filter first.
    std::vector<ListedLayer*> listed();
    std::vector<FlashingKind> flashing();
};

// Has the map draw and ask the layers; what is selected blinks. `flashing` is made of the layers.
void connectMap(frmMap& map, ProgramLayers& layers, Flashing& flashing);
// What the panel calls of layers and map; the rest is the caller's to fill in. All outlive the panel's use.
PanelHooks panelHooks(ProgramLayers& layers, frmMap& map, Flashing& flashing);

} // namespace orvinel
