#include "ui/layers/ListedLayerView.h"

#include "ui/map/ShowOnMap.h"
#include "ui/map/WindowRules.h"

namespace orvinel {

namespace {

constexpr int bandBelowTitle = 4; // the band's lower edge, counted from the title's height

} // namespace

ListedLayerView::ListedLayerView(Surroundings with, ListBox& list, const Rules& rules)
    : with_(with), list_(list), rules_(rules),
      window_(new InformationWindow(rules.window, rules.width, with.map.picMap())),
      hits_(with.map, {&list},
            [this](const MapShown& shown) { return rules_.hitAreas(with_.state, list_.items(), shown); }) {
}

const MapLocation* ListedLayerView::selected() const {
    return list_.hasSelection() ? &location(list_.selectedEntry().data, 0) : nullptr;
}

void ListedLayerView::drawMarkers(std::vector<Marker>& markers) const {
    if (!switchedOn())
        return;
    const MapShown shown = map().shown(panel().selection().zoneIndex());
    appendTo(markers, rules_.markers(with_.state, list_.items(), shown));
}

// What changes the records refills the list.
MarkersFrom ListedLayerView::markersFrom() const {
    const MapShown shown = map().shown(panel().selection().zoneIndex());
    return {{switchedOn(), shown.campaign, shown.region, shown.zone, list_.revision()}, {}};
}

std::optional<HitArea> ListedLayerView::hitTest(ViewPoint at) {
    const HitArea* hit = hits_.at(at);
    return hit ? std::optional(*hit) : std::nullopt;
}

bool ListedLayerView::showOver(const std::optional<HitArea>& item) {
    if (item)
        showItem(map(), *window_, item->id, [&] { showTooltip(*item); });
    return item.has_value();
}

void ListedLayerView::jumpTo(int id, int part) {
    showOnMap(map(), with_.state, RegionPoint::of(location(id, part)));
}

void ListedLayerView::frame(const HitArea& item, Colour band, const Label& title) {
    const QRect marker(QPoint(item.left, item.top), QPoint(item.right, item.bottom));
    window_->frameWithBand(band, title.height() + bandBelowTitle, map().picMap().toWidget(marker));
}

} // namespace orvinel
