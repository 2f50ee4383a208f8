#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/Listing.h"
#include "world/MapLocation.h"
#include "world/Marker.h"
#include "world/Zone.h"

#include <QPoint>
#include <QRect>
#include <QString>

#include <optional>

namespace orvinel {

struct World;

// What the panel's campaign, region and zone lists say.
struct Place {
    int campaign = -1; // a campaign's number; below 0: all
    int region = 0;    // a region's number; 0: all. Always 0 for campaigns below 1
    int zoneIndex = 0; // index in the RegionZones of that region; 0: all

    bool operator==(const Place&) const = default;
};

void LoadZones(World& state, const Disk& disk, Complaints* complaints = nullptr);

// The marker's reference point inside its picture, pixels; (0, 0) for what no campaign of the program has.
QPoint zoneMarkerOffset(int campaign, int zoneType);

// Nothing for a zone that shows only its name and for kinds that the campaign's picture set lacks.
std::optional<Sprite> zoneSprite(int campaign, const Zone& zone);

// Where the zone's name is written, map pixels; `width` is the name's width and `height` the line height,
// pixels. The rectangle's right() and bottom() are one less than the edges that the rule names.
QRect zoneLabelRect(int campaign, const Zone& zone, int width, int height);

// The name of the first zone of that region with the identifier; empty text when none has it.
QString ZoneName(const World& state, int campaign, int region, int identifier);

// "Zone - Region - Campaign"; what does not exist is left empty.
QString placeName(const World& state, const MapLocation& at);

// The identifier of the zone that `zoneIndex` names in a region; 0 when there is no such zone.
int zoneIdentifier(const World& state, int campaign, int region, int zoneIndex);
int zoneIdentifier(const World& state, const Place& place);

// True when a location's campaign, region and zone pass the panel's choice.
bool passesPlace(const Place& place, int zone, int atCampaign, int atRegion, int atZone);

// Entries of cmbZone: pinned, then by name; the item data is the zone's index in RegionZones.
std::vector<ListEntry> zoneEntries(const World& state, int campaign, int region);

} // namespace orvinel
