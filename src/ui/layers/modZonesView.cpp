#include "ui/layers/modZonesView.h"

#include "ui/platform/Drawing.h"
#include "ui/platform/Fonts.h"
#include "world/modCampaigns.h"
#include "world/modZones.h"

namespace orvinel {

namespace {

constexpr Colour nameColour = 0xCBEAFF;
constexpr size_t mostNames = 1000;
constexpr int furthest = 100; // pixels: no marker reaches so far from its zone, and no name so far up or down

QFont nameFont() {
    return arial(points10, true);
}

bool touches(const QRect& part, const Zone& zone) {
    return zone.Y + furthest >= part.top() && zone.Y - furthest <= part.bottom();
}

// Told without shaping it: whether the name could reach into the part.
bool mayReach(const QRect& part, const Zone& zone, int lineHeight) {
    if (!isPlainLatin(zone.ZoneName))
        return true;
    const int halfWidth = static_cast<int>(zone.ZoneName.size()) * lineHeight / 2;
    return zone.X + halfWidth >= part.left() && zone.X - halfWidth <= part.right();
}

} // namespace

void ZonesView::drawMarker(Drawing& drawing, int campaign, const Zone& zone) const {
    if (const auto sprite = zoneSprite(campaign, zone)) {
        const QPoint offset = zoneMarkerOffset(campaign, zone.ZoneType);
        drawing.painter().drawImage(zone.X - offset.x(), zone.Y - offset.y(), art_.picture(*sprite));
    }
}

void ZonesView::writeName(Drawing& drawing, const QRect& part, int campaign, const Zone& zone) {
    const int height = drawing.lineHeight();
    if (!mayReach(part, zone, height))
        return;
    auto name = names_.find(&zone);
    if (name == names_.end()) {
        if (names_.size() == mostNames)
            names_.clear();
        name = names_.emplace(&zone, TextRun(zone.ZoneName, nameFont())).first;
    }
    const int width = name->second.width();
    const QRect place = zoneLabelRect(campaign, zone, width, height);
    const int x = place.left() + (place.width() - width) / 2;
    const int y =
        zone.nameOnly() ? place.top() + (place.height() - height) / 2 : place.top() + place.height() - height;
    drawing.print(x, y, name->second);
}

void ZonesView::DrawZones(QImage& ground, const QRect& part, const MapShown& shown) {
    const Region* region = findRegion(state_, shown.campaign, shown.region);
    if (!region || shown.region <= 0)
        return;
    if (region != namesOf_)
        names_.clear();
    namesOf_ = region;
    Drawing drawing(&ground);
    drawing.painter().setClipRect(part);
    drawing.setFont(nameFont());
    drawing.setForeground(nameColour);
    for (const Zone& zone : region->RegionZones)
        if (touches(part, zone)) {
            drawMarker(drawing, shown.campaign, zone);
            writeName(drawing, part, shown.campaign, zone);
        }
}

} // namespace orvinel
