#include "app/ProgramLayers.h"

#include "progress/OpenedTreasures.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

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

std::vector<ListedLayer*> ProgramLayers::listed() {
    return {&elites, &collectors, &greens, &notes, &treasures, &pets};
}

std::vector<FlashingKind> ProgramLayers::flashing() {
    return {{Tab::Collectors, u"tmrFlashCollector"_s, Sprite::CollSelezione, {&collectors}},
            {Tab::Elites, u"tmrFlashSelection"_s, Sprite::Selezione, {&elites}},
            {Tab::Greens, u"tmrFlashGreen"_s, Sprite::GreenSelezione, {&greens}},
            {Tab::Notes, u"tmrFlashNote"_s, Sprite::NoteSelezione, {&notes}},
            {Tab::Various, u"tmrFlashTreasures"_s, Sprite::TreasureSelezione, {&treasures, &pets}}};
}

void connectMap(frmMap& map, ProgramLayers& layers, Flashing& flashing) {
    map.setChains(layers.chains());
    map.setInformationWindows(layers.windows());
    map.startFlashing = [&flashing] { flashing.StartFlashing(); };
}

PanelHooks panelHooks(ProgramLayers& layers, frmMap& map, Flashing& flashing) {
    PanelHooks hooks;
    hooks.layers = layers.listed();
    hooks.showRegion = [&map](const QString& picture, int campaign, int region) {
        map.InizializzaVariabili(picture, campaign, region);
    };
    hooks.updateMap = [&map] { map.UpdateMapWithNewEliteSkills(); };
    hooks.drawMap = [&map] { map.DrawEverythingOnMap(); };
    hooks.switchFlashing = [&flashing](Tab tab, bool on) { flashing.switchFlashing(tab, on); };
    return hooks;
}

} // namespace orvinel
