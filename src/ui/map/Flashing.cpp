#include "ui/map/Flashing.h"

namespace orvinel {

namespace {

const MapLocation* selectedCollector(const ProgramState& state, frmMenu& panel) {
    const ListBox& list = *panel.collectorsPage().lstCollectors;
    return list.hasSelection() ? &state.Collectors[list.selectedEntry().data].Location : nullptr;
}

const MapLocation* bossLocation(const ProgramState& state, int elite, int location) {
    if (!state.EliteSkills.has(elite) || !state.EliteSkills[elite].Locations.has(location))
        return nullptr;
    return &state.EliteSkills[elite].Locations[location];
}

const MapLocation* selectedBoss(const ProgramState& state, frmMenu& panel) {
    const ListBox& skills = *panel.elitePage().lstElite;
    const ListBox& locations = *panel.elitePage().lstLocations;
    if (!skills.hasSelection() || !locations.hasSelection())
        return nullptr;
    return bossLocation(state, skills.selectedEntry().data, locations.selectedEntry().data);
}

const MapLocation* selectedGreen(const ProgramState& state, frmMenu& panel) {
    const ListBox& list = *panel.greensPage().lstGreens;
    if (!list.hasSelection())
        return nullptr;
    const GreenItem& green = state.GreenItems[list.selectedEntry().data];
    return bossLocation(state, green.EliteID, green.LocationIndex);
}

const MapLocation* selectedNote(const ProgramState& state, frmMenu& panel) {
    const ListBox& list = *panel.notesPage().lstNotes;
    return list.hasSelection() ? &state.Notes[list.selectedEntry().data].At : nullptr;
}

const MapLocation* selectedChestOrPet(const ProgramState& state, frmMenu& panel) {
    VariousPage& page = panel.variousPage();
    if (page.lstKesraTreasures->hasSelection())
        return &state.Treasures[page.lstKesraTreasures->selectedEntry().data].Location;
    if (!page.lstPets->hasSelection() || !page.lstPetLocations->hasSelection())
        return nullptr;
    return &state.Pets[page.lstPets->selectedEntry().data]
                .Locations[page.lstPetLocations->selectedEntry().data];
}

struct Kind {
    int layer; // index of its check box and of its tab
    const char* timer;
    Sprite sprite;
    const MapLocation* (*selected)(const ProgramState&, frmMenu&); // nullptr: nothing to mark
};

constexpr std::array<Kind, Flashing::kinds> table = {{
    {1, "tmrFlashCollector", Sprite::CollSelezione, selectedCollector},
    {0, "tmrFlashSelection", Sprite::Selezione, selectedBoss},
    {2, "tmrFlashGreen", Sprite::GreenSelezione, selectedGreen},
    {3, "tmrFlashNote", Sprite::NoteSelezione, selectedNote},
    {4, "tmrFlashTreasures", Sprite::TreasureSelezione, selectedChestOrPet},
}};

const Kind& row(int kind) {
    return table[static_cast<size_t>(kind)];
}

} // namespace

Flashing::Flashing(const ProgramState& state, frmMenu& panel, frmMap& map)
    : state_(state), panel_(panel), map_(map) {
    for (int kind = 0; kind < kinds; ++kind) {
        QTimer& timer = blinking_[size_t(kind)].timer;
        timer.setParent(this);
        timer.setObjectName(QLatin1String(row(kind).timer));
        timer.setInterval(periodMs);
        connect(&timer, &QTimer::timeout, this, [this, kind] { tick(kind); });
    }
}

void Flashing::StartFlashing() {
    for (int kind = 0; kind < kinds; ++kind) {
        const int layer = row(kind).layer;
        const bool on = panel_.layerShown(layer);
        const auto marked = on && panel_.tabs().active() == layer ? selection(kind) : std::nullopt;
        show(kind, marked);
        if (on)
            switchFlashing(layer, marked.has_value());
    }
}

void Flashing::switchFlashing(int layer, bool on) {
    for (int kind = 0; kind < kinds; ++kind) {
        if (row(kind).layer != layer)
            continue;
        QTimer& timer = blinking_[size_t(kind)].timer;
        // A running timer keeps its beat.
        if (on && !timer.isActive())
            timer.start();
        else if (!on)
            timer.stop();
    }
}

void Flashing::tick(int kind) {
    if (map_.dragging() || !panel_.layerShown(row(kind).layer))
        return;
    const auto marked = selection(kind);
    if (!marked)
        return;
    bool& phase = blinking_[size_t(kind)].phase;
    show(kind, phase ? marked : std::nullopt);
    phase = !phase;
}

std::optional<MapPoint> Flashing::selectedPlace() const {
    for (int kind = 0; kind < kinds; ++kind)
        if (const MapLocation* at = selected(kind); at && panel_.tabs().active() == row(kind).layer)
            return MapPoint{at->X, at->Y};
    return std::nullopt;
}

const MapLocation* Flashing::selected(int kind) const {
    const MapLocation* at = row(kind).selected(state_, panel_);
    return at && map_.mapLoaded() && map_.shown(0).shows(at->Campaign, at->Region) ? at : nullptr;
}

std::optional<MapViewport::Selection> Flashing::selection(int kind) const {
    const MapLocation* at = selected(kind);
    if (!at)
        return std::nullopt;
    const QSize size = map_.art().picture(row(kind).sprite).size();
    return MapViewport::Selection{row(kind).sprite, {at->X - size.width() / 2, at->Y - size.height() / 2}};
}

void Flashing::show(int kind, const std::optional<MapViewport::Selection>& selection) {
    map_.picMap().setSelection(kind, selection, map_.art());
}

} // namespace orvinel
