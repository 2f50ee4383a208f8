#include "world/modCampaigns.h"

#include "base/TextFile.h"
#include "world/World.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int highestRegionNumber = 255;

void discover(World& state, const Disk& disk, Complaints* complaints) {
    state.Campaigns.reset();
    const auto complain = [&](const QString& entry, const QString& reason) {
        if (complaints)
            complaints->add({state.AppPath + entry, 0, u"folder"_s, reason});
    };
    for (const QString& entry : disk.list(state.AppPath)) {
        if (!entry.startsWith(u"Campaign."_s))
            continue;
        const QStringList parts = entry.split(u'.');
        const auto number = parts.size() < 3 ? std::nullopt : leadingInteger(parts[1], 0, 255);
        if (!number || parts[2].isEmpty() || parts[1].isEmpty() || !parts[1][0].isDigit()) {
            complain(entry, u"not the name of a campaign folder"_s);
            continue;
        }
        // Beyond the campaigns that the program knows it ends anyway: one entry is enough to tell.
        Campaign& campaign = state.Campaigns.grow(std::min(*number, firstUnknownCampaign));
        if (campaign.CampaignName.isEmpty())
            campaign.CampaignName = parts[2];
        else
            complain(entry, u"a second folder of campaign %1"_s.arg(*number));
    }
}

void loadRegions(Campaign& campaign, const QString& folder, const Disk& disk, Complaints* complaints) {
    TextFile file(disk, folder + u"/Regions.txt"_s, complaints);
    while (file.nextLine()) {
        if (!file.split(2))
            continue;
        const auto number = file.integer(0, "region", 0, highestRegionNumber);
        if (!number)
            continue;
        Region& region = campaign.Regions.grow(*number);
        region = {};
        region.RegionName = file.text(1);
        if (isPlainFileName(file.field(0)))
            region.RegionPicture = folder + u'/' + file.text(0) + u".jpg"_s;
    }
}

} // namespace

void LoadCampaigns(World& state, const Disk& disk, Complaints* complaints) {
    discover(state, disk, complaints);
    for (int n = 0; n <= state.Campaigns.highest(); ++n)
        loadRegions(state.Campaigns[n], campaignFolder(state, n), disk, complaints);
}

bool isPlainFileName(QStringView name) {
    return std::none_of(name.begin(), name.end(), [](QChar c) {
        return c == u'/' || c == u'\\' || c == u':' || c.unicode() < 0x20 || c.unicode() == 0x7F;
    });
}

QString campaignFolder(const World& state, int campaign) {
    return state.AppPath + u"Campaign."_s + fixedDigits(campaign, 2) + u'.' +
           state.Campaigns[campaign].CampaignName;
}

std::vector<int> regionOrder(const World& state, int campaign) {
    const int highest = state.Campaigns.has(campaign) ? state.Campaigns[campaign].Regions.highest() : 0;
    if (highest == 0)
        return {}; // also where the order is fixed: nothing of it would lead anywhere
    if (campaign == 1)
        return {8, 4, 5, 6, 7, 1, 2, 3};
    if (campaign == 2)
        return {4, 1, 2, 3};
    std::vector<int> order;
    if (campaign == 3 || campaign == 4)
        for (int r = 1; r <= highest; ++r)
            order.push_back(r);
    return order;
}

const Region* findRegion(const World& state, int campaign, int region) {
    if (!state.Campaigns.has(campaign) || !state.Campaigns[campaign].Regions.has(region))
        return nullptr;
    return &state.Campaigns[campaign].Regions[region];
}

QString regionName(const World& state, int campaign, int region) {
    const Region* found = findRegion(state, campaign, region);
    return found ? found->RegionName : QString();
}

QString campaignName(const World& state, int campaign) {
    return state.Campaigns.has(campaign) ? state.Campaigns[campaign].CampaignName : QString();
}

std::vector<ListEntry> campaignEntries(const World& state) {
    std::vector<ListEntry> entries = {{pinnedText(state.text(Caption::All)), -1}};
    for (int n = 0; n <= state.Campaigns.highest(); ++n)
        if (!state.Campaigns[n].CampaignName.isEmpty())
            entries.push_back({state.Campaigns[n].CampaignName, n});
    return entries;
}

std::vector<ListEntry> regionEntries(const World& state, int campaign) {
    std::vector<ListEntry> entries = {{pinnedText(state.text(Caption::All)), 0}};
    for (const int r : regionOrder(state, campaign))
        entries.push_back({regionName(state, campaign, r), r});
    return entries;
}

} // namespace orvinel
