#include "world/modCampaigns.h"

#include "base/TextFile.h"
#include "world/World.h"

#include <QStringList>

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int highestRegionNumber = 255;

// Among entries with one number the highest counts: a folder of which something can be read, then any other
// folder, then what is none. `folder`: the one that the program would read, which an entry with another
// spelling of the number or with more behind the name is not.
int usefulness(const Disk& disk, const QString& folder) {
    if (!disk.folderExists(folder))
        return 0;
    const std::vector<QString> names = disk.list(folder);
    const bool readable = std::any_of(names.begin(), names.end(), [&](const QString& name) {
        return name.endsWith(u".txt"_s, Qt::CaseInsensitive) &&
               disk.read(folder + u'/' + name).outcome == ReadResult::Outcome::Read;
    });
    return readable ? 2 : 1;
}

// Tells of an entry of the program's folder what is wrong with it.
using Complain = std::function<void(const QString& entry, const QString& reason)>;

// The entries that name a campaign, in sorted order, by its number.
std::map<int, std::vector<QString>> namedEntries(const QString& appPath, const Disk& disk,
                                                 const Complain& complain) {
    std::map<int, std::vector<QString>> entries;
    for (const QString& entry : disk.list(appPath)) {
        if (!entry.startsWith(u"Campaign."_s))
            continue;
        const QStringList parts = entry.split(u'.');
        const auto number = parts.size() < 3 ? std::nullopt : leadingInteger(parts[1], 0, 255);
        if (!number || parts[2].isEmpty() || parts[1].isEmpty() || !parts[1][0].isDigit())
            complain(entry, u"not the name of a campaign folder"_s);
        else // beyond the campaigns that the program knows it ends anyway: one number is enough to tell
            entries[std::min(*number, firstUnknownCampaign)].push_back(entry);
    }
    return entries;
}

// Names the campaign as its most useful entry does.
void choose(World& state, int number, const std::vector<QString>& entries, const Disk& disk,
            const Complain& complain) {
    Campaign& campaign = state.Campaigns.grow(number);
    QString chosen;
    int best = -1;
    for (const QString& entry : entries) {
        const QString before = std::exchange(campaign.CampaignName, entry.section(u'.', 2, 2));
        const int useful = entries.size() == 1 ? 0 : usefulness(disk, campaignFolder(state, number));
        if (best >= 0)
            complain(useful > best ? chosen : entry, u"a second folder of campaign %1"_s.arg(number));
        if (useful > best) {
            best = useful;
            chosen = entry;
        } else {
            campaign.CampaignName = before;
        }
    }
}

void discover(World& state, const Disk& disk, Complaints* complaints) {
    state.Campaigns.reset();
    const Complain complain = [&](const QString& entry, const QString& reason) {
        if (complaints)
            complaints->add({state.AppPath + entry, 0, u"folder"_s, reason});
    };
    for (const auto& [number, entries] : namedEntries(state.AppPath, disk, complain))
        choose(state, number, entries, disk, complain);
}

void loadRegions(Campaign& campaign, const QString& folder, const Disk& disk, Complaints* complaints) {
    TextFile file(disk, folder + u"/Regions.txt"_s, complaints);
    while (file.nextLine()) {
        if (!file.hasFields(2))
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
