#include "tools/CompletionReport.h"

#include "progress/Progress.h"
#include "world/modCampaigns.h"

#include <algorithm>
#include <map>
#include <set>

namespace orvinel {

namespace {

using Part = CompletionRow::Part;
using Place = std::pair<int, int>; // campaign, region

constexpr int mostMonths = 36; // that a plot holds

// One walk through skills and chests fills all that is counted.
class Counter {
  public:
    Counter(const Progress& state, int character) : state_(state) {
        for (const EliteSkill& skill : state.EliteSkills)
            if (skill.Exists)
                count(skill, skill.capturedBy(character));
        for (const Treasure& chest : state.Treasures) {
            const bool opened = chest.openedBy(character).isValid();
            world_.chests.add(opened);
            campaigns_[chest.Location.Campaign].chests.add(opened);
            regions_[{chest.Location.Campaign, chest.Location.Region}].chests.add(opened);
        }
    }

    std::vector<CompletionRow> rows() {
        std::vector<CompletionRow> rows = {world_};
        for (int n = 0; n <= state_.Campaigns.highest(); ++n)
            take(rows, campaigns_[n], Part::Campaign, campaignName(state_, n));
        forEachRegion([&](int campaign, int region) {
            regions_[{campaign, region}].campaign = campaignName(state_, campaign);
            take(rows, regions_[{campaign, region}], Part::Region, regionName(state_, campaign, region));
        });
        for (int p = 0; p <= state_.Professions.highest(); ++p)
            take(rows, professions_[p], Part::Profession, state_.Professions[p].Name);
        return rows;
    }

    CompletionGrid grid() {
        CompletionGrid grid;
        std::vector<int> columns;
        for (int p = 0; p <= state_.Professions.highest(); ++p)
            if (professions_[p].skills.all > 0) {
                columns.push_back(p);
                grid.professions.push_back({state_.Professions[p].Name, state_.Professions[p].Abbreviation});
            }
        forEachRegion([&](int campaign, int region) {
            if (regions_[{campaign, region}].skills.all == 0)
                return;
            CompletionGrid::Line line{
                regionName(state_, campaign, region), campaignName(state_, campaign), {}};
            for (const int p : columns)
                line.shares.push_back(cells_[{{campaign, region}, p}]);
            grid.lines.push_back(std::move(line));
        });
        return grid;
    }

  private:
    void count(const EliteSkill& skill, bool captured) {
        world_.skills.add(captured);
        campaigns_[skill.Campaign].skills.add(captured);
        professions_[skill.Profession].skills.add(captured);
        std::set<Place> places;
        for (const MapLocation& at : skill.Locations)
            if (places.insert({at.Campaign, at.Region}).second) {
                regions_[{at.Campaign, at.Region}].skills.add(captured);
                cells_[{{at.Campaign, at.Region}, skill.Profession}].add(captured);
            }
    }

    template <typename Visit>
    void forEachRegion(Visit visit) {
        for (int n = 0; n <= state_.Campaigns.highest(); ++n)
            for (const int region : regionOrder(state_, n))
                visit(n, region);
    }

    static void take(std::vector<CompletionRow>& rows, CompletionRow row, Part part, const QString& name) {
        row.part = part;
        row.name = name;
        if (row.skills.all > 0 || row.chests.all > 0)
            rows.push_back(std::move(row));
    }

    const Progress& state_;
    CompletionRow world_;
    std::map<int, CompletionRow> campaigns_;
    std::map<Place, CompletionRow> regions_;
    std::map<int, CompletionRow> professions_;
    std::map<std::pair<Place, int>, Share> cells_;
};

int monthsOf(const QDate& date) {
    return date.year() * 12 + date.month() - 1;
}

} // namespace

std::vector<CompletionRow> completionRows(const Progress& state, int character) {
    return Counter(state, character).rows();
}

CompletionGrid completionGrid(const Progress& state, int character) {
    return Counter(state, character).grid();
}

std::vector<ChestCount> chestCounts(const Progress& state, int character) {
    std::map<int, int> months;
    for (const Treasure& chest : state.Treasures)
        if (const QDate date = chest.openedBy(character); date.isValid())
            ++months[monthsOf(date)];
    if (months.empty())
        return {};
    std::vector<ChestCount> counts;
    const int first = months.begin()->first;
    const int last = months.rbegin()->first;
    if (last - first < mostMonths) {
        for (int month = first; month <= last; ++month)
            counts.push_back({month / 12, month % 12 + 1, months[month]});
        return counts;
    }
    for (const auto& [month, chests] : months) {
        if (counts.empty() || counts.back().year != month / 12)
            counts.push_back({month / 12, 0, 0});
        counts.back().chests += chests;
    }
    return counts;
}

} // namespace orvinel
