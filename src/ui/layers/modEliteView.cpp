#include "ui/layers/modEliteView.h"

#include "ui/map/RegionPictures.h"
#include "ui/map/ShowOnMap.h"
#include "ui/map/WindowRules.h"

#include <algorithm>

namespace orvinel {

namespace {

constexpr Caption countCaption = Caption::EliteSkills;

} // namespace

EliteView::EliteView(const ProgramState& state, const Disk& disk, frmMenu& panel, frmMap& map,
                     OpenCapture openCapture)
    : state_(state), disk_(disk), panel_(panel), map_(map), openCapture_(std::move(openCapture)),
      window_(new EliteWindow(state, map)),
      hits_(map, {panel.elitePage().lstElite, panel.greensPage().lstGreens}, [this](const MapShown& shown) {
          return eliteHitAreas(state_, panel_.elitePage().lstElite->items(),
                               panel_.greensPage().lstGreens->items(), shown);
      }) {
    ElitePage& page = panel.elitePage();
    connect(page.lstElite, &ListBox::picked, this, [this] { listLocations(); });
    connect(page.lstLocations, &ListBox::picked, this, [this] { ShowSelectedEliteLocation(); });
    connect(page.lstElite, &ListBox::activatedEntry, this,
            [this] { openCapture_(panel_.elitePage().lstElite->selectedEntry().data, false); });
}

void EliteView::FilterEliteSkills(bool updateMap) {
    if (!panel_.MenuReady)
        return;
    map_.HideInformationWindows();
    ElitePage& page = panel_.elitePage();
    panel_.runFilter({*page.lstElite, *page.lblTot, countCaption,
                      [this] { return eliteEntries(state_, panel_.eliteChoice()); }},
                     updateMap);
}

const MapLocation* EliteView::selected() const {
    const ElitePage& page = panel_.elitePage();
    if (!page.lstElite->hasSelection() || !page.lstLocations->hasSelection())
        return nullptr;
    const List1<MapLocation>& locations = state_.EliteSkills[page.lstElite->selectedEntry().data].Locations;
    const int index = page.lstLocations->selectedEntry().data;
    return locations.has(index) ? &locations[index] : nullptr;
}

void EliteView::DrawEliteSkills(std::vector<Marker>& markers) const {
    if (!switchedOn())
        return;
    const ElitePage& page = panel_.elitePage();
    appendTo(markers, eliteMarkers(state_, page.lstElite->items(), map_.shown(panel_.selection().zoneIndex()),
                                   page.txtEliteBossName->text()));
}

MarkersFrom EliteView::markersFrom() const {
    const MapShown shown = map_.shown(panel_.selection().zoneIndex());
    const ElitePage& page = panel_.elitePage();
    return {{switchedOn(), shown.campaign, shown.region, shown.zone, page.lstElite->revision()},
            page.txtEliteBossName->text()};
}

std::optional<EliteHit> EliteView::HitTestElite(ViewPoint at) {
    const HitArea* area = hits_.at(at);
    return area ? std::optional(EliteHit{area->id, area->part}) : std::nullopt;
}

bool EliteView::EliteMouseOver(ViewPoint at) {
    const std::optional<EliteHit> hit = HitTestElite(at);
    if (hit)
        showItem(map_, *window_, hit->id, [&] { ShowEliteTooltip(*hit); });
    return hit.has_value();
}

bool EliteView::doubleClick(ViewPoint at) {
    const std::optional<EliteHit> hit = HitTestElite(at);
    if (hit && hit->id != 0)
        openCapture_(hit->id, true);
    return hit.has_value();
}

EliteTooltip EliteView::FillEliteTooltip(EliteHit hit) {
    const ListedItems listed = panel_.elitePage().lstElite->items();
    const bool skillListed =
        panel_.layerShown(Tab::Elites) && std::find(listed.begin(), listed.end(), hit.id) != listed.end();
    const EliteTooltip tip =
        eliteTooltip(state_, hit, map_.shown(0), skillListed, panel_.layerShown(Tab::Greens));
    window_->fill(tip, tip.skillShown ? loadPicture(disk_, tip.picture, largestIcon) : QImage());
    return tip;
}

void EliteView::ShowEliteTooltip(EliteHit hit) {
    const EliteTooltip tip = FillEliteTooltip(hit);
    const MapLocation& at = location(hit);
    window_->present(tip,
                     map_.picMap().toWidget(QRect(QPoint(at.Left, at.Top), QPoint(at.Right, at.Bottom))));
}

// The click on a skill: its places, and the map on the first of them.
void EliteView::listLocations() {
    ElitePage& page = panel_.elitePage();
    const int id = page.lstElite->selectedEntry().data;
    page.lstLocations->setEntries(eliteLocationEntries(state_, id, panel_.eliteChoice()));
    page.lstLocations->extendToTexts();
    const bool somewhere = !state_.EliteSkills[id].Locations.empty();
    page.lblLocations->setEnabled(somewhere);
    page.lstLocations->setEnabled(somewhere);
    page.lstLocations->select(0);
}

void EliteView::ShowSelectedEliteLocation() {
    const ElitePage& page = panel_.elitePage();
    if (page.lstElite->hasSelection())
        showOnMap(map_, state_,
                  RegionPoint::of(location(
                      {page.lstElite->selectedEntry().data, page.lstLocations->selectedEntry().data})));
}

} // namespace orvinel
