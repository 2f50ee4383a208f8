#include "app/modOrvinel.h"

namespace orvinel {

void Program::wireKeys() {
    keys_ = std::make_unique<WindowKeys>(std::vector<QWidget*>{panel_.get(), map_, legend_});
    TabStrip& tabs = panel_->tabs();
    connect(keys_.get(), &WindowKeys::menuBarWanted, this, [this] { openMenuByKey(0); });
    connect(keys_.get(), &WindowKeys::pageWanted, &tabs, &TabStrip::activateWithFocus);
    connect(keys_.get(), &WindowKeys::pageStepWanted, &tabs, &TabStrip::step);
    connect(keys_.get(), &WindowKeys::escapePressed, map_, &frmMap::HideInformationWindows);
    connect(&panel_->menuBar(), &MenuBar::menuWantedByKey, this, &Program::openMenuByKey);
    connect(map_, &frmMap::lookKeyPressed, this, [this] {
        if (const auto place = flashing_->selectedPlace())
            map_->lookAt(*place);
    });
    connect(map_, &frmMap::actKeyPressed, this, &Program::actOnSelected);
    connect(map_, &frmMap::insertKeyPressed, this, &Program::insertNote);
}

void Program::actOnSelected() {
    const auto place = flashing_->selectedPlace();
    if (!place)
        return;
    // A double click on a note opens its menu where the mouse is.
    if (panel_->tabs().active() == Tab::Notes)
        emit map_->menuKeyPressed();
    else
        map_->actAt(*place);
}

// At what is selected, or else in the middle of what the map shows; always there on the notes' page, where
// what is selected has a note already.
void Program::insertNote() {
    if (!map_->mapLoaded())
        return;
    const MapViewport& map = map_->picMap();
    const bool onNotes = panel_->tabs().active() == Tab::Notes;
    const QPoint middle = map.view().visible().center();
    const MapPoint place =
        (onNotes ? std::nullopt : flashing_->selectedPlace()).value_or(MapPoint{middle.x(), middle.y()});
    const QRect shown = map.toWidget(QRect(place.point(), QSize(1, 1)));
    const QPoint corner = map.rect().contains(shown) ? shown.topLeft() : map.rect().center();
    mapMenus_->openNoteMenu(-1, place, map.mapToGlobal(corner));
}

} // namespace orvinel
