#include "WorldSource.h"

#include "Animals.h"
#include "SkillSigns.h"
#include "SourceTable.h"

#include "app/modLanguage.h"
#include "base/FileDisk.h"
#include "layers/modGreenies.h"
#include "world/World.h"
#include "world/modZones.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <optional>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int highestNumber = numberStep - 1;

// The program has a marker for it in the campaign's picture set, and centres it.
bool kindFitsCampaign(ZoneKind kind, int campaign) {
    orvinel::Zone zone;
    zone.ZoneType = int(kind);
    zone.MarkerFlag = 1;
    return orvinel::zoneSprite(campaign, zone) && !orvinel::zoneMarkerOffset(campaign, int(kind)).isNull();
}

struct ZoneWord {
    QStringView word;
    ZoneKind kind;
    bool marker;
};

constexpr ZoneWord zoneWords[] = {
    {u"town", ZoneKind::Town, true},
    {u"outpost", ZoneKind::Outpost, true},
    {u"mission", ZoneKind::Mission, true},
    {u"challenge", ZoneKind::Challenge, true},
    {u"area", ZoneKind::Area, false},
    {u"explore", ZoneKind::Area, true},
    {u"dungeon", ZoneKind::DungeonEntrance, true},
};

constexpr std::pair<QStringView, SiteNear> nearWords[] = {
    {u"", SiteNear::Anything},   {u"coast", SiteNear::Coast},   {u"lake", SiteNear::Lake},
    {u"river", SiteNear::River}, {u"ridge", SiteNear::Ridge},   {u"forest", SiteNear::Forest},
    {u"pass", SiteNear::Pass},   {u"cliffs", SiteNear::Cliffs}, {u"water", SiteNear::Water},
    {u"sea", SiteNear::Sea},     {u"bamboo", SiteNear::Bamboo}, {u"open", SiteNear::Open},
};

constexpr std::pair<QStringView, Landmark> landmarkWords[] = {
    {u"", Landmark::None},           {u"stones", Landmark::Stones}, {u"windmill", Landmark::Windmill},
    {u"obelisk", Landmark::Obelisk}, {u"barrow", Landmark::Barrow}, {u"tree", Landmark::Tree},
    {u"wreck", Landmark::Wreck},     {u"ruin", Landmark::Ruin},     {u"tower", Landmark::Tower},
    {u"bones", Landmark::Bones},     {u"vent", Landmark::Vent},     {u"ice", Landmark::Ice},
    {u"lantern", Landmark::Lantern}, {u"bamboo", Landmark::Bamboo}, {u"palms", Landmark::Palms},
};

constexpr std::pair<QStringView, Landform> landformWords[] = {
    {u"mountains", Landform::Mountains}, {u"hills", Landform::Hills}, {u"plain", Landform::Plain},
    {u"fens", Landform::Fens},           {u"isles", Landform::Isles},
};

constexpr std::pair<QStringView, Theme> themeWords[] = {
    {u"temperate", Theme::Temperate},
    {u"desert", Theme::Desert},
    {u"frost", Theme::Frost},
    {u"ash", Theme::Ash},
};

class SourceReader {
  public:
    SourceReader(const QString& worldFolder, const QString& noAttribute, QStringList& problems)
        : folder_(worldFolder + u"/source/"_s), noAttribute_(noAttribute), problems_(problems) {}

    WorldSource read();

  private:
    std::vector<SourceRow> rows(const QString& name, int fewest);
    std::vector<SourceRow> rows(int campaign, QStringView name, int fewest);
    void problem(const SourceRow& row, const QString& what) { problems_.append(row.place + u": "_s + what); }
    template <typename Words>
    auto word(const SourceRow& row, int field, const Words& words);

    void readCampaigns();
    void readProfessions();
    void readSkills();
    void readSkill(const SourceRow& row, const SignBook& signs);
    void readRegions(int campaign);
    void readZones(int campaign);
    void readBosses(int campaign);
    void readCollectors(int campaign);
    void readGreens(int campaign);
    void readChests();
    void readPets();
    void readPetPlaces(int campaign);
    int zoneNamed(const SourceRow& row, int campaign, const QString& name);

    QString folder_;
    QString noAttribute_;
    QStringList& problems_;
    WorldSource world_;
    QHash<QString, int> skillIds_;              // by name
    QHash<std::pair<int, QString>, int> zones_; // by campaign and name
};

std::vector<SourceRow> SourceReader::rows(const QString& name, int fewest) {
    std::vector<SourceRow> table = readTable(folder_ + name, fewest, problems_);
    for (SourceRow& row : table)
        row.fields.replaceInStrings(u"@45"_s, noAttribute_);
    return table;
}

std::vector<SourceRow> SourceReader::rows(int campaign, QStringView name, int fewest) {
    return rows(u"%1/%2"_s.arg(campaign, 2, 10, QLatin1Char('0')).arg(name), fewest);
}

template <typename Words>
auto SourceReader::word(const SourceRow& row, int field, const Words& words) {
    for (const auto& [text, value] : words) {
        if (row.fields[field] == text)
            return value;
    }
    problem(row, u"unknown word "_s + row.fields[field]);
    return words[0].second;
}

WorldSource SourceReader::read() {
    readCampaigns();
    readProfessions();
    readSkills();
    for (const SourceCampaign& campaign : world_.campaigns) {
        readRegions(campaign.number);
        readZones(campaign.number);
    }
    for (const SourceCampaign& campaign : world_.campaigns) {
        readBosses(campaign.number);
        readCollectors(campaign.number);
    }
    readChests();
    readPets();
    for (const SourceCampaign& campaign : world_.campaigns) {
        readGreens(campaign.number);
        readPetPlaces(campaign.number);
    }
    return std::move(world_);
}

void SourceReader::readCampaigns() {
    for (const SourceRow& row : rows(u"campaigns.txt"_s, 3)) {
        world_.campaigns.push_back({numberIn(row, 0, 0, 4, problems_), row.fields[1], row.fields[2]});
    }
}

void SourceReader::readProfessions() {
    for (const SourceRow& row : rows(u"professions.txt"_s, 6)) {
        SourceProfession profession;
        profession.campaign = numberIn(row, 0, 0, 4, problems_);
        profession.number = numberIn(row, 1, 1, 255, problems_);
        profession.name = row.fields[2];
        bool isColour = false;
        profession.colour = row.fields[3].toUInt(&isColour, 16) | 0xFF000000U;
        profession.abbreviation = row.fields[4];
        profession.attributes = row.fields.mid(5);
        if (!isColour)
            problem(row, u"no colour: "_s + row.fields[3]);
        world_.professions.push_back(profession);
    }
}

void SourceReader::readSkills() {
    const SignBook signs = readSigns(rows(u"signs.txt"_s, 3), problems_);
    const QDir folder(folder_ + u"skills"_s);
    for (const QString& name : folder.entryList({u"*.txt"_s}, QDir::Files, QDir::Name)) {
        for (const SourceRow& row : rows(u"skills/"_s + name, 12))
            readSkill(row, signs);
    }
}

void SourceReader::readSkill(const SourceRow& row, const SignBook& signs) {
    SourceSkill skill;
    skill.id = numberIn(row, 0, 1, highestNumber, problems_);
    skill.campaign = numberIn(row, 1, 0, 4, problems_);
    skill.name = row.fields[2];
    skill.attribute = row.fields[3];
    skill.type = row.fields[4];
    skill.upkeep = numberIn(row, 5, -9, 9, problems_);
    skill.adrenaline = numberIn(row, 6, 0, 255, problems_);
    skill.energy = numberIn(row, 7, 0, 255, problems_);
    skill.castTime = row.fields[8];
    skill.recharge = numberIn(row, 9, 0, 999, problems_);
    skill.description = row.fields[10];
    skill.signs = placedSigns(row.fields[11], signs, row.place, problems_);
    for (const SourceProfession& profession : world_.professions) {
        if (profession.name == row.section) {
            skill.profession = profession.number;
            if (skill.attribute != noAttribute_ && !profession.attributes.contains(skill.attribute))
                problem(row, u"no attribute of the profession: "_s + skill.attribute);
        }
    }
    const bool idTaken = std::any_of(world_.skills.begin(), world_.skills.end(),
                                     [&](const SourceSkill& other) { return other.id == skill.id; });
    if (skill.profession == 0 || skillIds_.contains(skill.name) || idTaken)
        problem(row, u"unknown profession, or name or number used twice: "_s + skill.name);
    skillIds_.insert(skill.name, skill.id);
    world_.skills.push_back(skill);
}

void SourceReader::readRegions(int campaign) {
    for (const SourceRow& row : rows(campaign, u"regions.txt", 6)) {
        SourceRegion region;
        region.campaign = campaign;
        region.number = numberIn(row, 0, 1, 255, problems_);
        region.fileNumber = row.fields[0];
        region.name = row.fields[1];
        region.theme = word(row, 2, themeWords);
        region.size = QSize(numberIn(row, 3, 200, 4000, problems_), numberIn(row, 4, 200, 4000, problems_));
        region.seed = quint32(numberIn(row, 5, 1, 1'000'000, problems_));
        if (row.fields.size() > 6)
            region.landform = word(row, 6, landformWords);
        world_.regions.push_back(region);
    }
}

void SourceReader::readZones(int campaign) {
    for (const SourceRow& row : rows(campaign, u"zones.txt", 3)) {
        SourceZone zone;
        zone.id = int(world_.zones.size()) + 1;
        zone.campaign = campaign;
        zone.nearTo = word(row, 1, nearWords);
        zone.name = row.fields[2];
        if (row.fields.size() > 3)
            zone.landmark = word(row, 3, landmarkWords);
        const auto* kind = std::find_if(std::begin(zoneWords), std::end(zoneWords),
                                        [&](const ZoneWord& known) { return known.word == row.fields[0]; });
        const auto region =
            std::find_if(world_.regions.begin(), world_.regions.end(), [&](const SourceRegion& known) {
                return known.campaign == campaign && known.name == row.section;
            });
        if (kind == std::end(zoneWords) || region == world_.regions.end() ||
            !kindFitsCampaign(kind->kind, campaign) || zones_.contains({campaign, zone.name})) {
            problem(row,
                    u"unknown kind or region, kind not of this campaign, or name used twice: "_s + zone.name);
            continue;
        }
        zone.kind = kind->kind;
        zone.marker = kind->marker;
        zone.region = region->number;
        zones_.insert({campaign, zone.name}, int(world_.zones.size()));
        world_.zones.push_back(zone);
    }
}

int SourceReader::zoneNamed(const SourceRow& row, int campaign, const QString& name) {
    const auto found = zones_.constFind({campaign, name});
    if (found == zones_.constEnd()) {
        problem(row, u"no such zone in this campaign: "_s + name);
        return 0;
    }
    return *found;
}

void SourceReader::readBosses(int campaign) {
    for (const SourceRow& row : rows(campaign, u"bosses.txt", 4)) {
        SourceBoss boss;
        boss.campaign = campaign;
        boss.name = row.fields[0];
        boss.skill = skillIds_.value(row.fields[1]);
        boss.code = row.fields[2];
        boss.zone = zoneNamed(row, campaign, row.fields[3]);
        boss.note = row.fields.value(4);
        if (boss.skill == 0 && !row.fields[1].isEmpty())
            problem(row, u"no such skill: "_s + row.fields[1]);
        world_.bosses.push_back(boss);
    }
}

// A collector is a "[name]" line, one row of particulars and one row per reward.
void SourceReader::readCollectors(int campaign) {
    QString name;
    for (const SourceRow& row : rows(campaign, u"collectors.txt", 2)) {
        if (row.section != name) {
            name = row.section;
            if (row.fields.size() < 6) {
                problem(row, u"needs number, kind, level, zone, whereabouts and request"_s);
                continue;
            }
            SourceCollector collector;
            collector.id = numberIn(row, 0, 1, highestNumber, problems_);
            collector.campaign = campaign;
            collector.name = name;
            collector.armour = row.fields[1] == u"armour";
            collector.level = numberIn(row, 2, 0, 1, problems_);
            collector.zone = row.fields[3].isEmpty() ? -1 : zoneNamed(row, campaign, row.fields[3]);
            collector.whereabouts = row.fields[4];
            collector.request = row.fields[5];
            world_.collectors.push_back(collector);
            continue;
        }
        world_.collectors.back().rewards.push_back(
            {row.fields[0], numberIn(row, 1, 0, 15, problems_), row.fields.mid(2)});
    }
}

void SourceReader::readGreens(int campaign) {
    for (const SourceRow& row : rows(campaign, u"greens.txt", 3)) {
        const bool dropped =
            std::any_of(world_.bosses.begin(), world_.bosses.end(), [&](const SourceBoss& boss) {
                return boss.name == row.fields[1] && carriesGreens(boss);
            });
        if (!dropped)
            problem(row, u"no boss that drops green items: "_s + row.fields[1]);
        world_.greens.push_back({campaign, row.fields[0], row.fields[1], row.fields.mid(2)});
    }
}

void SourceReader::readChests() {
    for (const SourceRow& row : rows(3, u"chests.txt", 2)) {
        world_.chests.push_back({row.fields[0], zoneNamed(row, 3, row.fields[1])});
    }
}

void SourceReader::readPets() {
    const QHash<QString, AnimalPicture> animals = readAnimals(rows(u"animals.txt"_s, 2), problems_);
    for (const SourceRow& row : rows(0, u"pets.txt", 4)) {
        numberIn(row, 0, 1, highestNumber, problems_);
        world_.pets.push_back(
            {row.fields[0], row.fields[1], animals.value(row.fields[2]), row.fields[3], {}});
        if (!animals.contains(row.fields[2]))
            problem(row, u"no such animal: "_s + row.fields[2]);
    }
}

void SourceReader::readPetPlaces(int campaign) {
    for (const SourceRow& row : rows(campaign, u"petplaces.txt", 2)) {
        const auto pet = std::find_if(world_.pets.begin(), world_.pets.end(),
                                      [&](const SourcePet& known) { return known.name == row.fields[0]; });
        if (pet == world_.pets.end()) {
            problem(row, u"no such pet: "_s + row.fields[0]);
            continue;
        }
        world_.petPlaces.push_back(
            {campaign, pet->idText, zoneNamed(row, campaign, row.fields[1]), row.fields.value(2)});
    }
}

} // namespace

bool carriesGreens(const SourceBoss& boss) {
    orvinel::MapLocation at;
    at.setBoss(boss.name);
    at.MarkerCode = boss.code;
    at.Note = boss.note;
    return orvinel::carriesGreens(at);
}

QString noAttributeCaption(const QString& worldFolder) {
    orvinel::World captions;
    captions.AppPath = QFileInfo(worldFolder).absoluteFilePath() + u'/';
    orvinel::LoadLanguage(captions, orvinel::FileDisk(captions.AppPath));
    const QString caption = captions.text(orvinel::Caption::NoAttribute);
    return caption.isEmpty() ? u"No attribute"_s : caption;
}

WorldSource readWorldSource(const QString& worldFolder, const QString& noAttribute, QStringList& problems) {
    return SourceReader(worldFolder, noAttribute, problems).read();
}

} // namespace worldgen
