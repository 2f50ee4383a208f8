#include "WorldBuilder.h"
#include "WorldFiles.h"

#include "app/ProgramState.h"
#include "app/modData.h"
#include "app/modLanguage.h"
#include "layers/modElite.h"
#include "support/MemoryDisk.h"
#include "world/modCampaigns.h"

#include <QDirIterator>
#include <QFile>

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace Qt::Literals::StringLiterals;

using namespace worldgen;

struct Loud : orvinel::Complaints {
    void add(const orvinel::Complaint& complaint) override {
        ADD_FAILURE() << complaint.file.toStdString() << ':' << complaint.line << ' '
                      << complaint.field.toStdString() << ": " << complaint.reason.toStdString();
    }
};

// The shipped tables, written at made-up places (painting takes minutes) and read by the program's own
// loaders.
struct ShippedWorld : testing::Test {
    static QString folder() { return QString::fromUtf8(WORLDGEN_WORLD); }

    WorldSource source;
    QStringList problems;
    orvinel::MemoryDisk disk;
    orvinel::PlayerFiles files{disk};
    orvinel::ProgramState state;
    Loud complaints;

    explicit ShippedWorld(int factor = 1)
        : source(multiplied(readWorldSource(folder(), noAttributeCaption(folder()), problems), factor)) {
        WorldPlaces places(source);
        for (const SourceRegion& region : source.regions) {
            std::vector<QPoint> sites;
            for (std::size_t i = 0; i < recipeFor(source, region).sites.size(); ++i)
                sites.emplace_back(200 + 320 * int(i % 4), 200 + 300 * int(i / 4));
            placeRegion(source, region, {sites, [](QPoint) { return true; }}, places);
        }
        for (const SourceCampaign& campaign : source.campaigns) {
            for (const auto& [name, bytes] : campaignFiles(source, places, campaign, problems))
                disk.put(u"/o/"_s + campaignFolder(campaign) + u'/' + name, bytes);
        }
        putData();
        state.AppPath = u"/o/"_s;
        orvinel::LoadLanguage(state, disk);
        orvinel::loadTables(state, files, &complaints);
    }

    void putData() {
        QDirIterator data(folder() + u"/Data"_s, {u"*.txt"_s}, QDir::Files);
        while (data.hasNext()) {
            QFile file(data.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            const QByteArray content = file.readAll();
            EXPECT_EQ(content.count('\n'), content.count("\r\n")) << file.fileName().toStdString();
            const bool players = data.fileName().startsWith(u"Char");
            disk.put((players ? u"/o/Personal/"_s : u"/o/Data/"_s) + data.fileName(), content);
        }
    }

    bool zoneExists(const orvinel::MapLocation& place) const {
        return std::any_of(source.zones.begin(), source.zones.end(), [&](const SourceZone& zone) {
            return zone.id == place.Zone && zone.region == place.Region && zone.campaign == place.Campaign;
        });
    }
};

TEST_F(ShippedWorld, isReadWithoutAComplaint) {
    EXPECT_TRUE(problems.isEmpty()) << problems.join(u'\n').toStdString();
    EXPECT_EQ(4, state.Campaigns.highest());
    EXPECT_EQ(u"Sunhollow"_s, state.Campaigns[3].CampaignName);
    EXPECT_EQ(8, state.Campaigns[1].Regions.highest());
    EXPECT_EQ(4, state.Campaigns[2].Regions.highest());
    EXPECT_EQ(10, state.Professions.highest());
    EXPECT_LE(25, state.Treasures.count());
    EXPECT_EQ(3, state.Characters.highest());
}

// What docs/guide.md tells players to try in the Vale of Larks.
TEST_F(ShippedWorld, holdsTheGuidesExamples) {
    const auto listed = [this](const orvinel::EliteChoice& choice) {
        QStringList texts;
        for (const orvinel::ListEntry& entry : orvinel::eliteEntries(state, choice))
            texts << entry.text;
        return texts.join(u", "_s);
    };
    orvinel::EliteChoice choice;
    choice.place = {1, 1, 0};
    ASSERT_EQ(u"Vale of Larks"_s, orvinel::regionName(state, 1, 1));
    ASSERT_EQ(u"Mira Dusk"_s, state.Characters[2]);
    choice.profession = 1;
    EXPECT_EQ(u"Oathsplitter [Bw], Wall of Spears [Bw]"_s, listed(choice));
    choice.secondary = 5;
    EXPECT_EQ(u"Mirrormere [Dw], Oathsplitter [Bw], The Quick Answer [Dw], Wall of Spears [Bw]"_s,
              listed(choice));
    choice.profession = 0;
    choice.uncapturedOnly = true;
    choice.character = 2;
    choice.bossText = u"pell"_s;
    EXPECT_EQ(u"Wall of Spears [Bw]"_s, listed(choice));
}

TEST_F(ShippedWorld, givesItsSampleCharactersSkillsThatExist) {
    int captured = 0;
    for (const char* name : {"/Data/Char01CapElite.txt", "/Data/Char02CapElite.txt"}) {
        QFile file(folder() + QString::fromUtf8(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        for (const QByteArray& line : file.readAll().split('\n')) {
            const int id = line.trimmed().toInt();
            EXPECT_TRUE(line.isEmpty() || state.EliteSkills[id].Exists) << id;
            captured += line.isEmpty() ? 0 : 1;
        }
    }
    EXPECT_LE(20, captured);
    EXPECT_FALSE(QFile::exists(folder() + u"/Data/Char03CapElite.txt"_s));
}

struct ScaledWorld : ShippedWorld {
    ScaledWorld() : ShippedWorld(4) {}
};

TEST_F(ScaledWorld, isReadWithoutAComplaint) {
    EXPECT_TRUE(problems.isEmpty()) << problems.join(u'\n').toStdString();
    EXPECT_LE(100, state.Treasures.count());
    EXPECT_LE(320, state.GreenItems.count());
    for (const orvinel::GreenItem& green : state.GreenItems) {
        EXPECT_NE(-1, green.EliteID) << green.Name.toStdString();
    }
    EXPECT_EQ(8, state.Campaigns[1].Regions.highest());
    EXPECT_EQ(10, state.Professions.highest());
}

TEST_F(ShippedWorld, tellsOfASkillEverythingThatItsWindowShows) {
    int skills = 0;
    std::set<QString> codes;
    for (int id = 1; id <= state.EliteSkills.highest(); ++id) {
        const orvinel::EliteSkill& skill = state.EliteSkills[id];
        skills += skill.Exists ? 1 : 0;
        EXPECT_TRUE(!skill.Exists || !skill.Locations.empty()) << skill.Name.toStdString() << " has no boss";
        EXPECT_TRUE(!skill.Exists || !skill.Description.isEmpty()) << skill.Name.toStdString();
        for (const orvinel::MapLocation& place : skill.Locations) {
            EXPECT_TRUE(zoneExists(place)) << place.Boss.toStdString();
            codes.insert(place.MarkerCode);
        }
    }
    EXPECT_LE(150, skills);
    EXPECT_LE(20, state.EliteSkills[0].Locations.count()) << "bosses without a skill";
    for (const char* code : {"", "?", "1", "a", "P", "C", "D"}) {
        EXPECT_EQ(1U, codes.count(QString::fromUtf8(code))) << code;
    }
}

TEST_F(ShippedWorld, letsEveryGreenItemBeFound) {
    EXPECT_LE(80, state.GreenItems.count());
    for (const orvinel::GreenItem& green : state.GreenItems) {
        EXPECT_NE(-1, green.EliteID) << green.Name.toStdString();
        EXPECT_FALSE(green.Stats.empty()) << green.Name.toStdString();
    }
}

TEST_F(ShippedWorld, letsEveryCollectorAndPetBeFound) {
    int collectors = 0;
    for (int id = 1; id <= state.Collectors.highest(); ++id) {
        const orvinel::Collector& collector = state.Collectors[id];
        collectors += collector.Exists ? 1 : 0;
        EXPECT_TRUE(!collector.Exists || zoneExists(collector.Location)) << collector.Name.toStdString();
        EXPECT_TRUE(!collector.Exists || !collector.Objects.empty()) << collector.Name.toStdString();
    }
    EXPECT_LE(60, collectors);
    EXPECT_LE(20, state.Pets.highest());
    for (int id = 1; id <= state.Pets.highest(); ++id) {
        EXPECT_LT(1, state.Pets[id].Locations.count()) << state.Pets[id].Name.toStdString();
    }
}

TEST_F(ShippedWorld, givesEveryCollectorFilterHitsAndMisses) {
    const auto expectSome = [&](const auto& listed, const std::string& what) {
        const auto some = std::count_if(source.collectors.begin(), source.collectors.end(), listed);
        EXPECT_LT(0, some) << what;
        EXPECT_GT(std::ssize(source.collectors), some) << what;
    };
    const auto expectReward = [&](const auto& matches, const std::string& what) {
        expectSome(
            [&](const SourceCollector& collector) {
                return std::any_of(collector.rewards.begin(), collector.rewards.end(), matches);
            },
            what);
    };
    expectSome([](const SourceCollector& collector) { return collector.armour; }, "armour");
    expectSome([](const SourceCollector& collector) { return collector.level == 1; }, "level");
    for (const int hand : {1, 2, 4, 8}) {
        expectReward([&](const SourceReward& reward) { return (reward.hands & hand) != 0; },
                     "hand " + std::to_string(hand));
    }
    QStringList words{state.text(orvinel::Caption::NoAttribute)};
    for (const SourceProfession& profession : source.professions)
        words += profession.attributes;
    for (const QString& word : words) {
        expectReward(
            [&](const SourceReward& reward) {
                return !reward.stats.filter(word, Qt::CaseInsensitive).isEmpty();
            },
            word.toStdString());
    }
}

} // namespace
