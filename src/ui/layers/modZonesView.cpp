#include "ui/layers/modZonesView.h"

#include "ui/platform/Drawing.h"
#include "ui/platform/Fonts.h"
#include "world/modCampaigns.h"
#include "world/modZones.h"

namespace orvinel {

namespace {

constexpr Colour nameColour = 0xCBEAFF;
constexpr int furthest = 100; // pixels: no marker and no name reaches so far up or down from its zone

void writeName(Drawing& drawing, int campaign, const Zone& zone) {
    const int width = drawing.textWidth(zone.ZoneName);
    const int height = drawing.lineHeight();
    const QRect place = zoneLabelRect(campaign, zone, width, height);
    const int x = place.left() + (place.width() - width) / 2;
    const int y =
        zone.nameOnly() ? place.top() + (place.height() - height) / 2 : place.top() + place.height() - height;
    drawing.print(x, y, zone.ZoneName);
}

} // namespace

void ZonesView::DrawZones(QImage& ground, const QRect& part, const MapShown& shown) const {
    const Region* region = findRegion(state_, shown.campaign, shown.region);
    if (!region || shown.region <= 0)
        return;
    Drawing drawing(&ground);
    drawing.painter().setClipRect(part);
    drawing.setFont(arial(points10, true));
    drawing.setForeground(nameColour);
    for (const Zone& zone : region->RegionZones) {
        if (zone.Y + furthest < part.top() || zone.Y - furthest > part.bottom())
            continue;
        if (const auto sprite = zoneSprite(shown.campaign, zone)) {
            const QPoint offset = zoneMarkerOffset(shown.campaign, zone.ZoneType);
            drawing.painter().drawImage(zone.X - offset.x(), zone.Y - offset.y(), art_.picture(*sprite));
        }
        writeName(drawing, shown.campaign, zone);
    }
}

} // namespace orvinel
