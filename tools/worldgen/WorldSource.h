#pragma once

#include "RegionPainter.h"

#include <QRgb>
#include <QString>
#include <QStringList>

#include <vector>

namespace worldgen {

// Kinds of zones in the numbering of the zone files.
enum class ZoneKind { Area = 1, Outpost = 2, Mission = 3, Town = 4, Challenge = 5, DungeonEntrance = 6 };

// Numbers of skills, collectors and pets in the tables stay below this, so that multiplied copies, which add
// multiples of it, get numbers of their own.
constexpr int numberStep = 600;

struct SourceCampaign {
    int number = 0;
    QString name;    // the word after the number in the folder name; holds no dot
    QString version; // of EliteLocations.txt: "2.0" pixels, "1.0" twips, empty twips without a version line
};

struct SourceRegion {
    int campaign = 0;
    int number = 0;
    QString fileNumber; // number as written, names the picture file
    QString name;
    Theme theme = Theme::Temperate;
    QSize size; // pixels
    quint32 seed = 0;
    Landform landform = Landform::Mountains;
};

struct SourceZone {
    int id = 0; // unique in the whole world, 1..32767
    int campaign = 0;
    int region = 0;
    ZoneKind kind = ZoneKind::Area;
    bool marker = false; // an area shows its marker, not only its name
    bool painted = true; // the region's picture shows a site for it
    SiteNear nearTo = SiteNear::Anything;
    QString name;
    Landmark landmark = Landmark::None;
};

struct SourceProfession {
    int campaign = 0;
    int number = 0;
    QString name;
    QRgb colour = 0;
    QString abbreviation;
    QStringList attributes;
};

struct SourceSkill {
    int id = 0;
    int campaign = 0;
    int profession = 0;
    QString name;
    QString attribute;
    QString type;
    int upkeep = 0;
    int adrenaline = 0;
    int energy = 0;
    QString castTime;
    int recharge = 0;
    QString description;
    std::vector<PlacedSign> signs; // what its picture shows
    int pictureOf = 0;             // skill whose picture is used again; 0 paints one
};

struct SourceBoss {
    int campaign = 0;
    int skill = 0; // 0: carries no elite skill
    QString name;
    QString code;
    int zone = 0; // index into WorldSource::zones
    QString note;
};

struct SourceReward {
    QString name;
    int hands = 0;
    QStringList stats;
};

struct SourceCollector {
    int id = 0;
    int campaign = 0;
    QString name;
    bool armour = false;
    int level = 0;
    QString whereabouts;
    QString request;
    int zone = -1; // index into WorldSource::zones; -1: stands nowhere
    std::vector<SourceReward> rewards;
};

struct SourceGreen {
    int campaign = 0;
    QString name;
    QString boss;
    QStringList stats;
};

struct SourceChest {
    QString name;
    int zone = 0;
};

struct SourcePet {
    QString idText; // as written, names the picture file
    QString name;
    AnimalPicture animal; // what its picture shows
    QString remark;
    QString pictureOf; // id text of the pet whose picture is used again; empty paints one
};

struct SourcePetPlace {
    int campaign = 0;
    QString pet; // id text
    int zone = 0;
    QString remark;
};

// The world in words: everything the hand-written tables say, links resolved, no coordinates yet.
struct WorldSource {
    std::vector<SourceCampaign> campaigns;
    std::vector<SourceRegion> regions;
    std::vector<SourceZone> zones;
    std::vector<SourceProfession> professions;
    std::vector<SourceSkill> skills;
    std::vector<SourceBoss> bosses;
    std::vector<SourceCollector> collectors;
    std::vector<SourceGreen> greens;
    std::vector<SourceChest> chests;
    std::vector<SourcePet> pets;
    std::vector<SourcePetPlace> petPlaces;
};

// The program's caption for skills and rewards without an attribute, from `worldFolder`/Data/Language.txt;
// English when there is none.
QString noAttributeCaption(const QString& worldFolder);

// Reads the tables below `worldFolder`/source. `noAttribute` replaces every "@45" in them: the program
// compares those texts with its own caption for skills and rewards without an attribute.
// Every fault (unknown name, missing field, number out of range) adds a line "file:line: what" to
// `problems`.
WorldSource readWorldSource(const QString& worldFolder, const QString& noAttribute, QStringList& problems);

// Whether the program lets the boss drop green items there.
bool carriesGreens(const SourceBoss& boss);

// The same world `factor` times over: copies get names and numbers of their own and refer to copies.
// Campaigns, regions and professions stay as they are. `factor` is 1..100.
WorldSource multiplied(const WorldSource& source, int factor);

} // namespace worldgen
