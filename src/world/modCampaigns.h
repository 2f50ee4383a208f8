#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/IndexedTable.h"
#include "base/Listing.h"
#include "world/Zone.h"

#include <QString>

#include <unordered_map>
#include <vector>

namespace orvinel {

struct ProgramState;

struct Region {
    QString RegionName;
    QString RegionPicture;                         // full path of the JPEG; empty: no picture
    List1<Zone> RegionZones;                       // written by addZone only
    std::unordered_map<int, int> ZoneByIdentifier; // index of the first zone with an identifier

    void addZone(Zone zone);

    bool operator==(const Region&) const = default;
};

struct Campaign {
    QString CampaignName; // empty: there is no folder of this number
    IndexedTable<Region> Regions;

    bool operator==(const Campaign&) const = default;
};

// The campaign and region menus of the map know campaigns 1 to 4; a folder of this number or above ends the
// program.
inline constexpr int firstUnknownCampaign = 5;

// Finds the campaign folders and reads their Regions.txt. A folder numbered firstUnknownCampaign or above
// grows the table to firstUnknownCampaign only.
void LoadCampaigns(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);

// The folder of a campaign, without a separator at its end. For a number without a folder: a path that does
// not exist.
QString campaignFolder(const ProgramState& state, int campaign);

// A data field that becomes a file's name may not lead out of its folder: no slash, backslash, colon or
// control character.
bool isPlainFileName(QStringView name);

// The regions of a campaign in the order in which every menu and list shows them.
std::vector<int> regionOrder(const ProgramState& state, int campaign);

// Nothing when the campaign or region does not exist.
const Region* findRegion(const ProgramState& state, int campaign, int region);
// Empty text when the campaign or region does not exist.
QString regionName(const ProgramState& state, int campaign, int region);
QString campaignName(const ProgramState& state, int campaign);

// Entries of cmbCampaign, and of cmbRegion while a campaign is chosen.
std::vector<ListEntry> campaignEntries(const ProgramState& state);
std::vector<ListEntry> regionEntries(const ProgramState& state, int campaign);

} // namespace orvinel
