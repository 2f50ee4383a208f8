#include "layers/modElite.h"

#include "layers/Content.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// The panel's choice, prepared once for all skills.
struct Search {
    const EliteChoice& choice;
    int zone;
    std::string boss;
    std::string name;
    std::string attribute;

    Search(const Content& state, const EliteChoice& c)
        : choice(c), zone(zoneIdentifier(state, c.place)), boss(folded(c.bossText)), name(folded(c.nameText)),
          attribute(folded(c.attribute.value_or(QString()))) {}

    bool passesBoss(const MapLocation& at) const {
        return boss.empty() || at.FoldedBoss.find(boss) != std::string::npos;
    }
    // A skill of campaign 0 is everybody's: wherever its bosses stand, they count for campaign 0.
    bool anyPlaceWillDo(const EliteSkill& skill) const {
        return choice.place.campaign < 0 || (choice.place.campaign == 0 && skill.Campaign == 0);
    }
    bool passes(const EliteSkill& skill, const MapLocation& at) const {
        return (anyPlaceWillDo(skill) || passesPlace(choice.place, zone, at.Campaign, at.Region, at.Zone)) &&
               passesBoss(at);
    }
    // The bosses' names lie together, the locations far apart: most skills are told without a look at them.
    bool passesLocations(const EliteSkill& skill) const {
        if (skill.Locations.empty() || skill.FoldedBosses.find(boss) == std::string::npos)
            return false;
        return anyPlaceWillDo(skill) || std::any_of(skill.Locations.begin(), skill.Locations.end(),
                                                    [&](const MapLocation& at) { return passes(skill, at); });
    }
    bool passesProfession(const EliteSkill& skill) const {
        return choice.profession <= 0 || skill.Profession == choice.profession ||
               (choice.secondary > 0 && skill.Profession == choice.secondary);
    }
    bool passesCapture(const EliteSkill& skill) const {
        if (!choice.uncapturedOnly)
            return true;
        if (choice.character > 0)
            return !skill.capturedBy(choice.character);
        const auto from = skill.Captured.begin() + std::min<ptrdiff_t>(1, std::ssize(skill.Captured));
        return std::find(from, skill.Captured.end(), true) == skill.Captured.end();
    }
    // The cheap tests first: only what is left looks through its locations.
    bool lists(const EliteSkill& skill) const {
        return passesProfession(skill) && (!choice.attribute || skill.FoldedAttribute == attribute) &&
               (name.empty() || skill.FoldedName.find(name) != std::string::npos) && passesCapture(skill) &&
               passesLocations(skill);
    }
};

void addBoxes(std::vector<Marker>& boxes, const EliteSkill& skill, const MapShown& shown, Colour fill,
              const std::string& boss) {
    for (const MapLocation& at : skill.Locations)
        if (shown.shows(at.Campaign, at.Region) && shown.passesZone(at.Zone) &&
            (boss.empty() || at.FoldedBoss.find(boss) != std::string::npos))
            boxes.push_back(Marker::box(at.Left, at.Top, at.Right, at.Bottom, fill, at.MarkerCode));
}

std::optional<QString> cost(int value, bool seen) {
    return seen ? std::optional(QString::number(value)) : std::nullopt;
}

QString dashedLines(const std::vector<QString>& lines) {
    QString text;
    for (const QString& line : lines)
        text += (text.isEmpty() ? u"- "_s : u"\r\n- "_s) + line;
    return text;
}

void fillSkillPart(EliteTooltip& tip, const Content& state, const EliteSkill& skill) {
    tip.name = skill.Name;
    tip.picture = skill.Picture;
    tip.type = skill.Type;
    tip.attribute = skill.Attribute;
    tip.campaign = campaignName(state, skill.Campaign);
    tip.description = skill.Description;
    tip.upkeep = cost(skill.Upkeep, skill.Upkeep != 0);
    tip.adrenaline = cost(skill.Adrenaline, skill.Adrenaline > 0);
    tip.energy = cost(skill.Energy, skill.Energy > 0);
    tip.recharge = cost(skill.Recharge, skill.Recharge >= 1);
    if (leadingNumber(skill.CastTime) > 0)
        tip.castTime = skill.CastTime;
    tip.castTimeHasSlash = skill.CastTime.contains(u'/');
    tip.band = professionOf(state, skill.Profession).Color;
}

} // namespace

std::vector<ListEntry> eliteEntries(const Content& state, const EliteChoice& choice) {
    const Search search(state, choice);
    std::vector<ListEntry> entries;
    for (const int id : state.EliteOrder)
        if (search.lists(state.EliteSkills[id]))
            entries.push_back({state.EliteSkills[id].ListText, id});
    return entries;
}

std::vector<ListEntry> eliteLocationEntries(const Content& state, int id, const EliteChoice& choice) {
    const Search search(state, choice);
    const EliteSkill& skill = state.EliteSkills[id];
    std::vector<ListEntry> entries;
    for (int j = 1; j <= skill.Locations.count(); ++j) {
        const MapLocation& at = skill.Locations[j];
        if (search.passes(skill, at))
            entries.push_back({placeName(state, at), j});
    }
    return entries;
}

std::vector<Marker> eliteMarkers(const Content& state, ListedItems elite, const MapShown& shown,
                                 const QString& bossText) {
    const std::string boss = folded(bossText);
    std::vector<Marker> boxes;
    for (const int id : elite)
        if (state.EliteSkills.has(id)) {
            const EliteSkill& skill = state.EliteSkills[id];
            addBoxes(boxes, skill, shown, professionOf(state, skill.Profession).Color, boss);
        }
    addBoxes(boxes, state.EliteSkills[0], shown, noBossGrey, {});
    return boxes;
}

std::vector<HitArea> eliteHitAreas(const Content& state, ListedItems elite, ListedItems greens,
                                   const MapShown& shown) {
    std::vector<HitArea> areas;
    std::vector<bool> added(static_cast<size_t>(state.EliteSkills.highest()) + 1);
    // A second time a skill's areas could never be found first.
    const auto add = [&](int id) {
        if (!state.EliteSkills.has(id) || added[static_cast<size_t>(id)])
            return;
        added[static_cast<size_t>(id)] = true;
        const List1<MapLocation>& locations = state.EliteSkills[id].Locations;
        for (int j = 1; j <= locations.count(); ++j)
            if (shown.shows(locations[j].Campaign, locations[j].Region))
                areas.push_back(HitArea::of(locations[j], id, j));
    };
    for (const int id : elite)
        add(id);
    for (const int green : greens)
        if (state.GreenItems.has(green))
            add(state.GreenItems[green].EliteID);
    return areas;
}

EliteTooltip eliteTooltip(const Content& state, EliteHit hit, const MapShown& shown, bool skillListed,
                          bool greensShown) {
    const EliteSkill& skill = state.EliteSkills[hit.id];
    const MapLocation& at = skill.Locations[hit.location];
    EliteTooltip tip;
    tip.skillShown = skill.Exists && skillListed;
    fillSkillPart(tip, state, skill);
    tip.boss = at.Boss;
    tip.zone = ZoneName(state, shown.campaign, shown.region, at.Zone);
    tip.note = at.Note;
    if (greensShown)
        for (const int green : at.Greens)
            tip.greens.push_back({state.GreenItems[green].Name, dashedLines(state.GreenItems[green].Stats)});
    return tip;
}

} // namespace orvinel
