#include "tools/WorldWalk.h"

#include "layers/modTreasures.h"
#include "world/modCampaigns.h"

#include <limits>
#include <map>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

int leadingId(const TextFile& file) {
    return leadingInteger(file.field(0), 0, largestIdentifier).value_or(0);
}

class Walk {
  public:
    Walk(const ProgramState& state, const Disk& disk, const ComplaintList& skipped)
        : state_(state), disk_(disk), skipped_(skipped) {}

    std::vector<PlacedLine> all() {
        for (int n = 0; n <= state_.Campaigns.highest(); ++n)
            bosses(campaignFolder(state_, n));
        for (int n = 0; n <= state_.Campaigns.highest(); ++n)
            collectors(campaignFolder(state_, n));
        if (state_.Campaigns.has(treasureCampaign))
            chests(campaignFolder(state_, treasureCampaign));
        for (int n = 0; n <= state_.Campaigns.highest(); ++n)
            pets(campaignFolder(state_, n));
        return std::move(placed_);
    }

  private:
    void bosses(const QString& folder) {
        forEachLine(
            disk_, folder + u"/EliteLocations.txt"_s, skipped_,
            [this](const TextFile& file, const Line& line) {
                const int id = leadingId(file);
                const auto& locations = state_.EliteSkills[id].Locations;
                const int k = ++taken_[{0, id}];
                if (locations.has(k))
                    placed_.push_back({line, PlacedLine::Kind::Boss, locations[k].Boss, id, &locations[k]});
            });
    }

    void collectors(const QString& folder) {
        forEachLine(disk_, folder + u"/CollectorsLocations.txt"_s, skipped_,
                    [this](const TextFile& file, const Line& line) {
                        const int id = leadingId(file);
                        const Collector& collector = state_.Collectors[id];
                        placed_.push_back(
                            {line, PlacedLine::Kind::Collector, collector.Name, id, &collector.Location});
                    });
    }

    void chests(const QString& folder) {
        int index = 0;
        forEachLine(disk_, folder + u"/Treasures.txt"_s, skipped_, [&](const TextFile&, const Line& line) {
            if (!state_.Treasures.has(++index))
                return;
            const Treasure& chest = state_.Treasures[index];
            placed_.push_back({line, PlacedLine::Kind::Chest, chest.Name, index, &chest.Location});
        });
    }

    void pets(const QString& folder) {
        forEachLine(disk_, folder + u"/PetsLocations.txt"_s, skipped_,
                    [this](const TextFile& file, const Line& line) {
                        const int id = leadingId(file);
                        const Pet& pet = state_.Pets[id];
                        const int k = ++taken_[{1, id}];
                        if (pet.Locations.has(k))
                            placed_.push_back({line, PlacedLine::Kind::Pet, pet.Name, id, &pet.Locations[k]});
                    });
    }

    const ProgramState& state_;
    const Disk& disk_;
    const ComplaintList& skipped_;
    std::map<std::pair<int, int>, int> taken_; // locations given out, by kind and ID
    std::vector<PlacedLine> placed_;
};

} // namespace

std::vector<PlacedLine> placedLines(const ProgramState& state, const Disk& disk,
                                    const ComplaintList& skipped) {
    return Walk(state, disk, skipped).all();
}

} // namespace orvinel
