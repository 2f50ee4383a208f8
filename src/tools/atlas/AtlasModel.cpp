#include "tools/atlas/AtlasModel.h"

#include "app/ProgramState.h"
#include "app/modLanguage.h"
#include "base/Listing.h"
#include "layers/modCollectors.h"
#include "layers/modElite.h"
#include "tools/atlas/AtlasTexts.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"
#include "world/modZones.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = AtlasPart::Kind;

QStringList linesOf(const QString& text) {
    QString unified = text;
    unified.replace(u"\r\n"_s, u"\n"_s);
    return unified.split(u'\n', Qt::SkipEmptyParts);
}

QStringList filled(const std::vector<QString>& lines) {
    QStringList result;
    for (const QString& line : lines)
        if (!line.trimmed().isEmpty())
            result += line;
    return result;
}

class Maker {
  public:
    Maker(const ProgramState& state, const AtlasChoice& choice,
          const std::function<bool(const QString&)>& pictureExists)
        : state_(state), choice_(choice), pictureExists_(pictureExists) {}

    Atlas make() {
        addRegions();
        addZones();
        addBosses();
        addCollectors();
        addChests();
        addPets();
        addNotes();
        for (AtlasRegion& region : atlas_.regions)
            sortPlaces(region.places);
        return std::move(atlas_);
    }

  private:
    void addRegions() {
        for (int n = 0; n <= state_.Campaigns.highest(); ++n)
            for (const int number : regionOrder(state_, n)) {
                const Region* region = findRegion(state_, n, number);
                if (!region || (region->RegionName.isEmpty() && region->RegionPicture.isEmpty()))
                    continue; // the menus' order knows numbers that this world lacks
                AtlasRegion made{n, number, region->RegionName, campaignName(state_, n), {}, {}};
                if (!takePicture(region->RegionPicture, u"regions/"_s + made.key()).isEmpty())
                    made.picture = region->RegionPicture;
                regionAt_[{n, number}] = atlas_.regions.size();
                atlas_.regions.push_back(std::move(made));
            }
    }

    // Where the picture will lie; empty when there is none.
    QString takePicture(const QString& source, const QString& name) {
        if (source.isEmpty() || !pictureExists_(source))
            return {};
        const QString target = u"pictures/"_s + name + u".jpg"_s;
        if (taken_.insert(target).second)
            atlas_.pictures.push_back({source, target});
        return target;
    }

    // A place without coordinates, or in a region that the world does not have, is on no page.
    void add(const MapLocation& at, AtlasPlace place) {
        const auto found = regionAt_.find({at.Campaign, at.Region});
        if (found == regionAt_.end() || !at.placed())
            return;
        place.x = at.X;
        place.y = at.Y;
        place.reach = at.X - at.Left;
        place.zone = ZoneName(state_, at.Campaign, at.Region, at.Zone);
        if (place.sprite)
            place.anchorX = place.anchorY = place.reach;
        atlas_.regions[found->second].places.push_back(std::move(place));
    }

    void addZones() {
        for (AtlasRegion& region : atlas_.regions)
            for (const Zone& zone : findRegion(state_, region.campaign, region.region)->RegionZones) {
                const QPoint offset = zoneMarkerOffset(region.campaign, zone.ZoneType);
                AtlasPlace place;
                place.x = zone.X;
                place.y = zone.Y;
                place.name = zone.ZoneName;
                place.sprite = zoneSprite(region.campaign, zone);
                place.anchorX = offset.x();
                place.anchorY = offset.y();
                place.parts = {{Kind::Text, {}, {}, {zoneKind(zone)}, {}}};
                region.places.push_back(std::move(place));
            }
    }

    QString zoneKind(const Zone& zone) const {
        const int number = static_cast<int>(AtlasText::ExplorableArea) + zone.ZoneType - 1;
        return atlasText(state_, static_cast<AtlasText>(number));
    }

    void addBosses() {
        for (int id = 0; id <= state_.EliteSkills.highest(); ++id) {
            const EliteSkill& skill = state_.EliteSkills[id];
            for (int j = 1; j <= skill.Locations.count(); ++j)
                add(skill.Locations[j], boss(id, j));
            if (skill.Exists && skill.Locations.empty())
                atlas_.homeless.push_back(skillPart(id, briefTooltip(skill)));
        }
    }

    AtlasPlace boss(int id, int location) {
        const EliteSkill& skill = state_.EliteSkills[id];
        const MapLocation& at = skill.Locations[location];
        const EliteTooltip tip = eliteTooltip(state_, {id, location}, {}, true, true);
        AtlasPlace place;
        place.layer = AtlasLayer::Bosses;
        place.name = tip.boss;
        place.code = at.MarkerCode;
        place.fill = id == 0 ? noBossGrey : tip.band;
        if (tip.skillShown)
            place.parts.push_back(skillPart(id, tip));
        if (!tip.note.isEmpty())
            place.parts.push_back({Kind::Text, state_.text(Caption::BossNote), {}, linesOf(tip.note), {}});
        for (const int green : at.Greens)
            place.parts.push_back(
                {Kind::Green, state_.GreenItems[green].Name, {}, filled(state_.GreenItems[green].Stats), {}});
        if (choice_.character > 0 && skill.capturedBy(choice_.character))
            place.won = atlasText(state_, AtlasText::CapturedBy).arg(character());
        return place;
    }

    // Of a skill that no boss carries: there is no window to read its costs from.
    EliteTooltip briefTooltip(const EliteSkill& skill) const {
        EliteTooltip tip;
        tip.name = skill.Name;
        tip.picture = skill.Picture;
        tip.type = skill.Type;
        tip.attribute = skill.Attribute;
        tip.campaign = campaignName(state_, skill.Campaign);
        tip.description = skill.Description;
        return tip;
    }

    AtlasPart skillPart(int id, const EliteTooltip& tip) {
        AtlasPart part{Kind::Skill, tip.name, {}, {}, {}};
        part.picture = takePicture(tip.picture, u"skills/%1"_s.arg(id));
        part.lines = linesOf(tip.description);
        const auto fact = [&](const QString& name, const QString& value) {
            if (!value.isEmpty())
                part.facts.emplace_back(name, value);
        };
        fact(state_.text(Caption::Profession), professionOf(state_, state_.EliteSkills[id].Profession).Name);
        fact(state_.text(Caption::Attribute), tip.attribute);
        fact(state_.text(Caption::Type), tip.type);
        fact(state_.text(Caption::Campaign), tip.campaign);
        fact(state_.text(Caption::Upkeep), tip.upkeep.value_or(QString()));
        fact(state_.text(Caption::Adrenaline), tip.adrenaline.value_or(QString()));
        fact(state_.text(Caption::Energy), tip.energy.value_or(QString()));
        fact(state_.text(Caption::CastTime), tip.castTime.value_or(QString()));
        fact(state_.text(Caption::Recharge), tip.recharge.value_or(QString()));
        return part;
    }

    void addCollectors() {
        for (const int id : state_.CollectorOrder) {
            const Collector& collector = state_.Collectors[id];
            if (!collector.Exists)
                continue;
            AtlasPlace place;
            place.layer = AtlasLayer::Collectors;
            place.name = collector.Name;
            place.sprite = collector.IsArmour ? Sprite::CollArmature : Sprite::CollArmi;
            place.parts = {{Kind::Text,
                            {},
                            {},
                            {},
                            {{state_.text(Caption::CollectsChoice), collector.Request},
                             {state_.text(Caption::Location), collector.LocationText}}}};
            for (const CollectorObject& object : collector.Objects)
                place.parts.push_back({Kind::Reward, object.Name, {}, filled(object.Stats), {}});
            add(collector.Location, std::move(place));
        }
    }

    void addChests() {
        for (const Treasure& chest : state_.Treasures) {
            AtlasPlace place;
            place.layer = AtlasLayer::Chests;
            place.name = chest.Name;
            place.sprite = Sprite::Treasure;
            const QDate opened = choice_.character > 0 ? chest.openedBy(choice_.character) : QDate();
            if (opened.isValid())
                place.won =
                    atlasText(state_, AtlasText::OpenedBy).arg(character(), opened.toString(Qt::ISODate));
            add(chest.Location, std::move(place));
        }
    }

    void addPets() {
        for (int id = 0; id <= state_.Pets.highest(); ++id) {
            const Pet& pet = state_.Pets[id];
            for (const MapLocation& at : pet.Locations) {
                AtlasPlace place;
                place.layer = AtlasLayer::Pets;
                place.name = pet.Name;
                place.sprite = Sprite::Pet;
                if (const QString picture = takePicture(pet.Picture, u"pets/%1"_s.arg(id));
                    !picture.isEmpty())
                    place.parts = {{Kind::Text, {}, picture, {}, {}}};
                add(at, std::move(place));
            }
        }
    }

    void addNotes() {
        if (!choice_.notes)
            return;
        for (const int index : state_.NoteOrder) {
            const Note& note = state_.Notes[index];
            if (note.ShortDesc.isEmpty())
                continue;
            AtlasPlace place;
            place.layer = AtlasLayer::Notes;
            place.name = note.ShortDesc;
            place.sprite = Sprite::Note;
            place.parts = {{Kind::Text, {}, {}, linesOf(note.Body), {}}};
            add(note.At, std::move(place));
        }
    }

    // By layer, and as a reader looks for them.
    static void sortPlaces(std::vector<AtlasPlace>& places) {
        std::vector<QString> names;
        for (const AtlasPlace& place : places)
            names.push_back(place.name);
        std::vector<AtlasPlace> sorted;
        sorted.reserve(places.size());
        for (const int position : alphabeticalOrder(names))
            sorted.push_back(std::move(places[static_cast<size_t>(position)]));
        std::stable_sort(sorted.begin(), sorted.end(),
                         [](const AtlasPlace& a, const AtlasPlace& b) { return a.layer < b.layer; });
        places = std::move(sorted);
    }

    QString character() const { return state_.Characters[choice_.character]; }

    const ProgramState& state_;
    const AtlasChoice& choice_;
    const std::function<bool(const QString&)>& pictureExists_;
    Atlas atlas_;
    std::map<std::pair<int, int>, size_t> regionAt_;
    std::set<QString> taken_;
};

} // namespace

bool AtlasPlace::has(AtlasPart::Kind kind) const {
    return std::any_of(parts.begin(), parts.end(), [=](const AtlasPart& part) { return part.kind == kind; });
}

Atlas makeAtlas(const ProgramState& state, const AtlasChoice& choice,
                const std::function<bool(const QString&)>& pictureExists) {
    return Maker(state, choice, pictureExists).make();
}

QString layerName(const ProgramState& state, AtlasLayer layer) {
    if (layer == AtlasLayer::Zones)
        return atlasText(state, AtlasText::Zones);
    constexpr std::array captions = {Caption::Zone,       Caption::EliteSkills, Caption::GreenItems,
                                     Caption::Collectors, Caption::Treasures,   Caption::Pets,
                                     Caption::Notes};
    return state.text(captions[static_cast<size_t>(layer)]);
}

} // namespace orvinel
