#include "app/ProgramLayers.h"

#include "progress/OpenedTreasures.h"

namespace orvinel {

ProgramLayers::ProgramLayers(const ProgramState& state, const Disk& disk, const Desktop& desktop,
                             frmMenu& panel, frmMap& map, Actions actions)
    : zones(state, map.art()), greens(state, panel, map),
      elites(state, disk, panel, map, std::move(actions.openCapture)), collectors(state, panel, map),
      notes(state, panel, map), treasures(state, desktop, panel, map, std::move(actions.openTreasure)),
      pets(state, disk, panel, map) {
}

frmMap::Chains ProgramLayers::chains() {
    return {.drawing = {&zones, &greens, &elites, &collectors, &notes, &treasures, &pets},
            .mouseOver = {&elites, &collectors, &notes, &treasures, &pets},
            .doubleClick = {&elites, &treasures, &collectors, &pets, &notes}};
}

std::vector<InformationWindow*> ProgramLayers::windows() {
    return {&collectors.window(), &elites.window(), &notes.window(), &treasures.window(), &pets.window()};
}

std::array<std::function<void(bool)>, filterCount> ProgramLayers::filters() {
    return {[this](bool updateMap) { elites.FilterEliteSkills(updateMap); },
            [this](bool updateMap) { collectors.FilterCollectors(updateMap); },
            [this](bool updateMap) { greens.FilterGreens(updateMap); },
            [this](bool updateMap) { notes.FilterNotes(updateMap); },
            [this](bool updateMap) { treasures.FilterTreasures(updateMap); },
            [this](bool updateMap) { pets.FilterPets(updateMap); }};
}

} // namespace orvinel
