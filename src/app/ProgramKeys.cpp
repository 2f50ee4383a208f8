#include "app/ProgramKeys.h"

namespace orvinel {

ProgramKeys::ProgramKeys(Surroundings with) : with_(with), keys_({&with.panel, &with.map, &with.legend}) {
    TabStrip& tabs = with_.panel.tabs();
    connect(&keys_, &WindowKeys::menuBarWanted, this, [this] { with_.menus.openByKey(0); });
    connect(&keys_, &WindowKeys::pageWanted, &tabs, &TabStrip::activateWithFocus);
    connect(&keys_, &WindowKeys::pageStepWanted, &tabs, &TabStrip::step);
    connect(&keys_, &WindowKeys::escapePressed, &with_.map, &frmMap::HideInformationWindows);
    connect(&with_.map, &frmMap::lookKeyPressed, this, &ProgramKeys::lookAtSelected);
    connect(&with_.map, &frmMap::actKeyPressed, this, &ProgramKeys::actOnSelected);
    connect(&with_.map, &frmMap::insertKeyPressed, this, &ProgramKeys::insertNote);
}

void ProgramKeys::lookAtSelected() {
    if (const auto place = with_.flashing.selectedPlace())
        with_.map.lookAt(*place);
}

void ProgramKeys::actOnSelected() {
    const auto place = with_.flashing.selectedPlace();
    if (!place)
        return;
    // A double click on a note opens its menu where the mouse is.
    if (with_.panel.tabs().active() == Tab::Notes)
        emit with_.map.menuKeyPressed();
    else
        with_.map.actAt(*place);
}

// At what is selected, or else in the middle of what the map shows; always there on the notes' page, where
// what is selected has a note already.
void ProgramKeys::insertNote() {
    if (!with_.map.mapLoaded())
        return;
    const MapViewport& map = with_.map.picMap();
    const bool onNotes = with_.panel.tabs().active() == Tab::Notes;
    const QPoint middle = map.view().visible().center();
    const MapPoint place =
        (onNotes ? std::nullopt : with_.flashing.selectedPlace()).value_or(MapPoint{middle.x(), middle.y()});
    const QRect shown = map.toWidget(QRect(place.point(), QSize(1, 1)));
    const QPoint corner = map.rect().contains(shown) ? shown.topLeft() : map.rect().center();
    with_.mapMenus.openNoteMenu(-1, place, map.mapToGlobal(corner));
}

} // namespace orvinel
