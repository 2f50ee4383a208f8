#include "tools/MissingList.h"

#include "layers/modElite.h"
#include "layers/modGreenies.h"
#include "progress/Progress.h"
#include "world/modCampaigns.h"
#include "world/modZones.h"

#include <map>

namespace orvinel {

namespace {

using Place = std::pair<int, int>;

class Gatherer {
  public:
    Gatherer(const Progress& state, int character) : state_(state) {
        EliteChoice missing;
        missing.character = character;
        missing.uncapturedOnly = true;
        for (const ListEntry& entry : eliteEntries(state, missing))
            for (const MapLocation& at : state.EliteSkills[entry.data].Locations)
                add(zoneOf(at).skills, skillAt(entry, at));
        for (int n = 1; n <= state.Treasures.count(); ++n)
            if (const Treasure& chest = state.Treasures[n]; !chest.openedBy(character).isValid())
                zoneOf(chest.Location).chests.push_back({n, chest.Name});
    }

    std::vector<MissingRegion> regions() {
        std::vector<MissingRegion> result;
        for (int n = 0; n <= state_.Campaigns.highest(); ++n)
            for (const int region : regionOrder(state_, n))
                take(result, {n, region});
        while (!zones_.empty()) // of regions that no menu offers
            take(result, zones_.begin()->first);
        return result;
    }

  private:
    // A boss that may stand at several places of a zone is one thing to do.
    static void add(std::vector<MissingSkill>& skills, MissingSkill skill) {
        if (!skills.empty()) {
            skill.places = skills.back().places;
            if (skill == skills.back()) {
                ++skills.back().places;
                return;
            }
            skill.places = 1;
        }
        skills.push_back(std::move(skill));
    }

    MissingSkill skillAt(const ListEntry& entry, const MapLocation& at) const {
        MissingSkill skill;
        skill.skill = entry.data;
        skill.name = entry.text;
        skill.boss = at.Boss;
        skill.note = at.Note;
        skill.code = at.MarkerCode;
        skill.picture = state_.EliteSkills[entry.data].Picture;
        for (const int green : at.Greens)
            if (state_.GreenItems.has(green))
                skill.greens << state_.GreenItems[green].Name;
        return skill;
    }

    MissingZone& zoneOf(const MapLocation& at) {
        const QString name = ZoneName(state_, at.Campaign, at.Region, at.Zone);
        auto& zones = zones_[{at.Campaign, at.Region}];
        const auto [there, isNew] = zones.try_emplace(name);
        there->second.name = name;
        return there->second;
    }

    void take(std::vector<MissingRegion>& result, Place place) {
        const auto there = zones_.find(place);
        if (there == zones_.end())
            return;
        MissingRegion region{
            campaignName(state_, place.first), regionName(state_, place.first, place.second), {}};
        std::vector<ListEntry> names;
        std::vector<MissingZone> zones;
        for (auto& [name, zone] : there->second) {
            names.push_back({name, static_cast<int>(zones.size())});
            zones.push_back(std::move(zone));
        }
        sortAlphabetically(names);
        for (const ListEntry& name : names)
            region.zones.push_back(std::move(zones[static_cast<size_t>(name.data)]));
        result.push_back(std::move(region));
        zones_.erase(there);
    }

    const Progress& state_;
    std::map<Place, std::map<QString, MissingZone>> zones_;
};

} // namespace

std::vector<MissingRegion> missingList(const Progress& state, int character) {
    return Gatherer(state, character).regions();
}

} // namespace orvinel
