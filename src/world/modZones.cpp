#include "world/modZones.h"

#include "base/TextFile.h"
#include "world/MapLocation.h"
#include "world/World.h"
#include "world/modCampaigns.h"

#include <array>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// [campaign 0..4][zone type 0..6]: the centre of the marker picture, rounded.
constexpr std::array<std::array<QPoint, 7>, 5> markerOffsets = {{
    {},
    {{{}, {12, 15}, {11, 12}, {16, 24}, {16, 18}, {}, {}}},
    {{{}, {12, 15}, {18, 21}, {23, 24}, {30, 26}, {22, 26}, {}}},
    {{{}, {12, 15}, {19, 19}, {32, 31}, {31, 31}, {30, 34}, {}}},
    {{{}, {12, 15}, {11, 12}, {16, 24}, {16, 18}, {}, {15, 13}}},
}};

// Picture sets 1 to 3 of a kind; Count where the set has none.
using Family = std::array<Sprite, 3>;
constexpr Family outposts = {Sprite::Outpost1, Sprite::Outpost2, Sprite::Outpost3};
constexpr Family missions = {Sprite::Mission1, Sprite::Mission2, Sprite::Mission3};
constexpr Family towns = {Sprite::Town1, Sprite::Town2, Sprite::Town3};
constexpr Family challenges = {Sprite::Count, Sprite::Challenge2, Sprite::Challenge3};

std::optional<Sprite> member(const Family& family, int campaign) {
    const int set = campaign == 4 ? 1 : campaign;
    if (set < 1 || set > 3 || family[static_cast<size_t>(set) - 1] == Sprite::Count)
        return std::nullopt;
    return family[static_cast<size_t>(set) - 1];
}

// Of the number itself: 0.4 is, though it is rounded to 0.
bool isAboveZero(const TextFile& file, size_t position, int rounded) {
    return rounded > 0 || leadingNumber(file.field(position)) > 0;
}

void loadZones(World& state, int campaign, const Disk& disk, Complaints* complaints) {
    TextFile file(disk, campaignFolder(state, campaign) + u"/Zones.txt"_s, complaints);
    auto& regions = state.Campaigns[campaign].Regions;
    int stored = 0;
    while (file.nextRecord()) {
        if (!file.hasFields(7))
            continue;
        const auto x = file.integer(4, "x", -largestCoordinate, largestCoordinate);
        const auto y = file.integer(5, "y", -largestCoordinate, largestCoordinate);
        // A zone without a place is left out on purpose: nothing to complain about.
        if (!x || !y || !isAboveZero(file, 4, *x) || !isAboveZero(file, 5, *y))
            continue;
        const auto id = file.whole(0, "zone", -32768, 32767);
        const auto region = file.integer(1, "region", 0, 255);
        const auto type = file.whole(2, "type", 0, 255);
        const auto flag = file.whole(3, "marker flag", 0, 255);
        if (!id || !region || !type || !flag)
            continue;
        if (!regions.has(*region))
            file.skip(u"region"_s, u"no region %1"_s.arg(*region));
        else if (*type < 1 || *type > 6)
            file.skip(u"type"_s, u"no zone type %1"_s.arg(*type));
        else if (++stored > largestIdentifier)
            file.skip({}, u"more than %1 zones"_s.arg(largestIdentifier));
        else
            regions[*region].addZone({*id, file.text(6), *type, *flag, *x, *y});
    }
}

} // namespace

void LoadZones(World& state, const Disk& disk, Complaints* complaints) {
    for (int n = 0; n <= state.Campaigns.highest(); ++n)
        loadZones(state, n, disk, complaints);
}

QPoint zoneMarkerOffset(int campaign, int zoneType) {
    if (campaign < 0 || campaign > 4 || zoneType < 0 || zoneType > 6)
        return {};
    return markerOffsets[static_cast<size_t>(campaign)][static_cast<size_t>(zoneType)];
}

std::optional<Sprite> zoneSprite(int campaign, const Zone& zone) {
    switch (zone.ZoneType) {
    case 1:
        return zone.nameOnly() ? std::nullopt : std::optional(Sprite::Vanquish0);
    case 2:
        return member(outposts, campaign);
    case 3:
        return member(missions, campaign);
    case 4:
        return member(towns, campaign);
    case 5:
        return member(challenges, campaign);
    case 6:
        return Sprite::DungeonEntrance0;
    default:
        return std::nullopt;
    }
}

QRect zoneLabelRect(int campaign, const Zone& zone, int width, int height) {
    const int half = width / 2;
    const int up = zone.nameOnly() ? height / 2 : zoneMarkerOffset(campaign, zone.ZoneType).y();
    const int down = zone.nameOnly() ? height / 2 : height + up;
    return {zone.X - half, zone.Y - up, 2 * half, up + down};
}

QString ZoneName(const World& state, int campaign, int region, int identifier) {
    const Region* found = findRegion(state, campaign, region);
    if (!found)
        return {};
    const auto zone = found->ZoneByIdentifier.find(identifier);
    return zone == found->ZoneByIdentifier.end() ? QString() : found->RegionZones[zone->second].ZoneName;
}

QString placeName(const World& state, const MapLocation& at) {
    return ZoneName(state, at.Campaign, at.Region, at.Zone) + u" - "_s +
           regionName(state, at.Campaign, at.Region) + u" - "_s + campaignName(state, at.Campaign);
}

int zoneIdentifier(const World& state, int campaign, int region, int zoneIndex) {
    const Region* found = findRegion(state, campaign, region);
    return found && found->RegionZones.has(zoneIndex) ? found->RegionZones[zoneIndex].ZoneID : 0;
}

int zoneIdentifier(const World& state, const Place& place) {
    return place.region > 0 ? zoneIdentifier(state, place.campaign, place.region, place.zoneIndex) : 0;
}

bool passesPlace(const Place& place, int zone, int atCampaign, int atRegion, int atZone) {
    if (place.campaign < 0)
        return true;
    return atCampaign == place.campaign && (place.region == 0 || atRegion == place.region) &&
           (zone == 0 || atZone == zone);
}

std::vector<ListEntry> zoneEntries(const World& state, int campaign, int region) {
    std::vector<ListEntry> entries;
    if (const Region* found = findRegion(state, campaign, region))
        for (int z = 1; z <= found->RegionZones.count(); ++z)
            entries.push_back({found->RegionZones[z].ZoneName, z});
    sortAlphabetically(entries);
    entries.insert(entries.begin(), {pinnedText(state.text(Caption::All)), 0});
    return entries;
}

} // namespace orvinel
