#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/IndexedTable.h"
#include "base/Listing.h"
#include "world/Campaign.h"
#include "world/Zone.h"

#include <QString>

#include <unordered_map>
#include <vector>

namespace orvinel {

struct World;

// The campaign and region menus of the map know campaigns 1 to 4; a folder of this number or above ends the
// program.
inline constexpr int firstUnknownCampaign = 5;

// Finds the campaign folders and reads their Regions.txt. A folder numbered firstUnknownCampaign or above
// grows the table to firstUnknownCampaign only.
void LoadCampaigns(World& state, const Disk& disk, Complaints* complaints = nullptr);

// The folder of a campaign, without a separator at its end. For a number without a folder: a path that does
// not exist.
QString campaignFolder(const World& state, int campaign);

// A data field that becomes a file's name may not lead out of its folder: no slash, backslash, colon or
// control character.
bool isPlainFileName(QStringView name);

// The regions of a campaign in the order in which every menu and list shows them.
std::vector<int> regionOrder(const World& state, int campaign);

// Nothing when the campaign or region does not exist.
const Region* findRegion(const World& state, int campaign, int region);
// Empty text when the campaign or region does not exist.
QString regionName(const World& state, int campaign, int region);
QString campaignName(const World& state, int campaign);

// Entries of cmbCampaign, and of cmbRegion while a campaign is chosen.
std::vector<ListEntry> campaignEntries(const World& state);
std::vector<ListEntry> regionEntries(const World& state, int campaign);

} // namespace orvinel
