#include "ui/layers/modGreeniesView.h"

#include "layers/modGreenies.h"
#include "ui/map/ShowOnMap.h"

#include <algorithm>

namespace orvinel {

namespace {

constexpr Caption countCaption = Caption::GreenItems;

} // namespace

GreensView::GreensView(const ProgramState& state, frmMenu& panel, frmMap& map)
    : state_(state), panel_(panel), map_(map) {
    connect(panel.greensPage().lstGreens, &ListBox::picked, this, [this] { ShowSelectedGreen(); });
}

void GreensView::FilterGreens(bool updateMap) {
    GreensPage& page = panel_.greensPage();
    panel_.runFilter({*page.lstGreens, *page.lblGreensList, countCaption,
                      [this] { return greenEntries(state_, panel_.greenChoice()); }},
                     updateMap);
}

const MapLocation* GreensView::selected() const {
    const ListBox& list = *panel_.greensPage().lstGreens;
    return list.hasSelection() ? greenLocation(state_, list.selectedEntry().data) : nullptr;
}

void GreensView::DrawGreens(std::vector<Marker>& markers) const {
    if (!switchedOn())
        return;
    appendTo(markers,
             greenMarkers(state_, panel_.greensPage().lstGreens->items(),
                          panel_.elitePage().lstElite->items(), map_.shown(panel_.selection().zoneIndex()),
                          panel_.layerShown(Tab::Elites)));
}

MarkersFrom GreensView::markersFrom() const {
    const MapShown shown = map_.shown(panel_.selection().zoneIndex());
    return {{switchedOn(), shown.campaign, shown.region, shown.zone,
             panel_.greensPage().lstGreens->revision(), panel_.elitePage().lstElite->revision(),
             panel_.layerShown(Tab::Elites)},
            {}};
}

void GreensView::ShowSelectedGreen() {
    if (const MapLocation* at = selected())
        showOnMap(map_, state_, RegionPoint::of(*at));
}

} // namespace orvinel
