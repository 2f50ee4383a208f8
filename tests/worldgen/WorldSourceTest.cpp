#include "WorldFiles.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

// A folder of tables as small as they can be, which each test changes a little.
struct SourceTables : testing::Test {
    QTemporaryDir folder;
    QStringList problems;

    SourceTables() {
        write("campaigns.txt", "0\tCommon\t-\n1\tAsh\t-\n2\tElm\t2.0\n");
        write("professions.txt", "# remark\n0\t1\tTinker\tFF8001\tTi\tTongs\tGlue\n");
        write("skills/tinker.txt",
              "[Tinker]\n7\t0\tBend\tTongs\tSpell\t-1\t0\t5\t1/4\t20\tBends it.\ttwo rod, small rod\n");
        write("signs.txt", "rod\tsteel\tM0 0 L9 9 W3\n");
        write("01/regions.txt", "01\tMoor\tfrost\t800\t600\t5\n");
        write("01/zones.txt", "[Moor]\ntown\triver\tHythe\narea\t-\tHeath\n");
        write("01/bosses.txt", "Nán\tBend\tP\tHeath\nLump\t-\t-\tHythe\tonly during rain\\nand snow\n");
    }

    void write(const char* name, const char* text) {
        const QString path = folder.filePath(QString::fromUtf8("source/") + QString::fromUtf8(name));
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    WorldSource read() {
        problems.clear();
        return readWorldSource(folder.path(), u"None"_s, problems);
    }

    std::string firstProblem() {
        read();
        return problems.value(0).toStdString();
    }

    std::map<QString, QByteArray> files(const WorldSource& world, std::size_t campaign) {
        WorldPlaces places(world);
        places.zones = {{100, 200}, {300, 400}};
        places.bosses = {{110, 210}, {310, 411}};
        return campaignFiles(world, places, world.campaigns[campaign], problems);
    }
};

TEST_F(SourceTables, becomeTheProgramsFiles) {
    const WorldSource world = read();
    ASSERT_TRUE(problems.isEmpty()) << problems.join(u'\n').toStdString();
    auto moor = files(world, 1);
    EXPECT_EQ("01\tMoor\r\n", moor[u"Regions.txt"_s]);
    EXPECT_EQ("; number, region, kind, marker, x, y, "
              "name\r\n1\t1\t4\t1\t100\t200\tHythe\r\n2\t1\t1\t0\t300\t400\tHeath\r\n",
              moor[u"Zones.txt"_s]);
    EXPECT_EQ(
        "7\t1\t1650\t3150\tN\xE1n\tP\t2\r\n0\t1\t4650\t6165\tLump\t\t1\tonly during rain\\nand snow\r\n",
        moor[u"EliteLocations.txt"_s]);
    EXPECT_EQ(0U, moor.count(u"Collectors.txt"_s));
    auto common = files(world, 0);
    EXPECT_EQ("1\tTinker\t&H0180FF\tTi\tTongs\tGlue\r\n", common[u"Professions.txt"_s]);
    EXPECT_EQ("; number, profession, name, attribute, type, upkeep, adrenaline, energy, cast time, recharge, "
              "description\r\n7\t1\tBend\tTongs\tSpell\t-1\t0\t5\t1/4\t20\tBends it.\r\n",
              common[u"EliteList.txt"_s]);
}

TEST_F(SourceTables, sayInWhichUnitTheBossesStand) {
    write("02/regions.txt", "1\tReef\tdesert\t800\t600\t5\n");
    write("02/zones.txt", "[Reef]\nchallenge\t-\tRing\n");
    write("02/bosses.txt", "Crab\tBend\tC\tRing\n");
    write("01/bosses.txt", "# nobody\n");
    WorldSource world = read();
    ASSERT_TRUE(problems.isEmpty());
    WorldPlaces places(world);
    places.bosses = {{10, 20}};
    const auto bosses = [&](const char* version) {
        world.campaigns[2].version = QString::fromUtf8(version);
        return campaignFiles(world, places, world.campaigns[2], problems)[u"EliteLocations.txt"_s];
    };
    EXPECT_EQ(";[Version] 2.0\r\n7\t1\t10\t20\tCrab\tC\t3\r\n", bosses("2.0"));
    EXPECT_EQ(";[Version] 1.0\r\n7\t1\t150\t300\tCrab\tC\t3\r\n", bosses("1.0"));
    EXPECT_EQ("7\t1\t150\t300\tCrab\tC\t3\r\n", bosses(""));
}

TEST_F(SourceTables, tellWhichLineNamesWhatDoesNotExist) {
    write("01/bosses.txt", "Nan\tBend\tP\tHeath\nLump\tMend\t-\tHythe\n");
    EXPECT_EQ("01/bosses.txt:2: no such skill: Mend", firstProblem());
    write("01/bosses.txt", "Nan\tBend\tP\tThe Pit\n");
    EXPECT_EQ("01/bosses.txt:1: no such zone in this campaign: The Pit", firstProblem());
    write("01/bosses.txt", "Nan\tBend\tP\n");
    EXPECT_EQ("01/bosses.txt:1: needs 4 fields", firstProblem());
    write("01/zones.txt", "[Moor]\nchallenge\t-\tHythe\n");
    EXPECT_NE(std::string::npos, firstProblem().find("01/zones.txt:2: unknown kind"));
    write("skills/tinker.txt", "[Tinker]\n7\t0\tBend\tSpoons\tSpell\t0\t0\t5\t1\t20\tx\trod\n");
    EXPECT_EQ("skills/tinker.txt:2: no attribute of the profession: Spoons", firstProblem());
}

TEST_F(SourceTables, composePicturesOfKnownSigns) {
    const WorldSource world = read();
    ASSERT_EQ(2U, world.skills[0].signs.size());
    EXPECT_EQ(QStringList(u"two"_s), world.skills[0].signs[0].manner);
    EXPECT_EQ(u"steel"_s, world.skills[0].signs[1].parts[0].material);
    write("skills/tinker.txt", "[Tinker]\n7\t0\tBend\tTongs\tSpell\t0\t0\t5\t1\t20\tx\tsmall rod, wand\n");
    EXPECT_EQ("skills/tinker.txt:2: no such sign: wand", firstProblem());
    write("signs.txt", "rod\tcheese\tE0 0 9 9\n");
    EXPECT_NE(std::string::npos, firstProblem().find("no such material: cheese"));
}

TEST_F(SourceTables, wantGreensOnlyOfBossesThatDropThem) {
    write("01/greens.txt", "Glove\tNán\tSoft\n");
    EXPECT_EQ("", firstProblem());
    write("01/greens.txt", "Glove\tLump\tSoft\n");
    EXPECT_EQ("01/greens.txt:1: no boss that drops green items: Lump", firstProblem());
}

TEST_F(SourceTables, keepCollectorsAndTheirRewardsTogether) {
    write("01/collectors.txt", "[Ada]\n4\tarmour\t1\tHythe\tAt home\t5 Pins\nCap\t8\tWarm\t@45\nHat\t8\n"
                               "[Bo]\n9\tweapons\t0\t-\tGone\t1 Nail\n");
    const WorldSource world = read();
    ASSERT_TRUE(problems.isEmpty()) << problems.join(u'\n').toStdString();
    WorldPlaces places(world);
    places.collectors = {{50, 60}, {}};
    auto moor = campaignFiles(world, places, world.campaigns[1], problems);
    EXPECT_EQ(
        "; number, name, armour, level; whereabouts; request; rewards: name, hands, what they do; an empty "
        "line\r\n4\tAda\t1\t1\r\nAt home\r\n5 Pins\r\nCap\t8\tWarm\tNone\r\nHat\t8\r\n\r\n"
        "9\tBo\t0\t0\r\nGone\r\n1 Nail\r\n\r\n",
        moor[u"Collectors.txt"_s]);
    EXPECT_EQ("4\t1\t50\t60\t1\r\n", moor[u"CollectorsLocations.txt"_s]);
}

TEST_F(SourceTables, refuseLettersThatTheFilesCannotHold) {
    write("01/bosses.txt", "\xC5\xBBuk\tBend\t-\tHeath\n");
    const WorldSource world = read();
    ASSERT_TRUE(problems.isEmpty());
    files(world, 1);
    EXPECT_EQ(1, problems.size());
}

TEST_F(SourceTables, multipliedReferToTheirOwnCopies) {
    const WorldSource world = multiplied(read(), 3);
    ASSERT_EQ(6U, world.zones.size());
    ASSERT_EQ(6U, world.bosses.size());
    std::set<int> zoneIds;
    for (const SourceZone& zone : world.zones)
        zoneIds.insert(zone.id);
    EXPECT_EQ(6U, zoneIds.size());
    EXPECT_EQ(u"Nán 3"_s, world.bosses[4].name);
    EXPECT_EQ(u"Heath 3"_s, world.zones[std::size_t(world.bosses[4].zone)].name);
    EXPECT_EQ(world.skills[2].id, world.bosses[4].skill);
    EXPECT_EQ(0, world.bosses[5].skill);
    EXPECT_EQ(2U, recipeFor(world, world.regions[0]).sites.size());
}

using Lab = std::array<double, 3>;
using Matrix = std::array<std::array<double, 3>, 3>;

Lab perceived(QRgb colour, const Matrix& vision) {
    const auto linear = [](int part) { return std::pow((part / 255.0 + 0.055) / 1.055, 2.4); };
    const std::array<double, 3> light{linear(qRed(colour)), linear(qGreen(colour)), linear(qBlue(colour))};
    std::array<double, 3> seen{};
    for (std::size_t i = 0; i < 3; ++i) {
        seen[i] =
            std::clamp(vision[i][0] * light[0] + vision[i][1] * light[1] + vision[i][2] * light[2], 0.0, 1.0);
    }
    const double x = std::cbrt((0.4124 * seen[0] + 0.3576 * seen[1] + 0.1805 * seen[2]) / 0.9505);
    const double y = std::cbrt(0.2126 * seen[0] + 0.7152 * seen[1] + 0.0722 * seen[2]);
    const double z = std::cbrt((0.0193 * seen[0] + 0.1192 * seen[1] + 0.9505 * seen[2]) / 1.089);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double difference(const Lab& a, const Lab& b) {
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

TEST(ShippedTables, giveProfessionsColoursThatStayApartForColourBlindEyes) {
    // Full vision, then red-, green- and blue-blindness (Machado and others, 2009).
    const Matrix visions[] = {
        {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
        {{{0.152, 1.053, -0.205}, {0.115, 0.786, 0.099}, {-0.004, -0.048, 1.052}}},
        {{{0.367, 0.861, -0.228}, {0.280, 0.673, 0.047}, {-0.012, 0.043, 0.969}}},
        {{{1.256, -0.077, -0.179}, {-0.078, 0.931, 0.148}, {0.005, 0.691, 0.304}}},
    };
    QStringList problems;
    std::vector<QRgb> colours{qRgb(0xAA, 0xAA, 0xAA)}; // bosses without a skill
    const QString world = QString::fromUtf8(WORLDGEN_WORLD);
    for (const SourceProfession& profession : readWorldSource(world, u"None"_s, problems).professions)
        colours.push_back(profession.colour);
    ASSERT_EQ(11U, colours.size());
    for (const Matrix& vision : visions) {
        for (std::size_t i = 0; i < colours.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                EXPECT_GT(difference(perceived(colours[i], vision), perceived(colours[j], vision)), 18)
                    << "colours " << i << " and " << j;
            }
            EXPECT_GT(perceived(colours[i], visions[0])[0], 50) << "black codes stand on it";
        }
    }
}

} // namespace
} // namespace worldgen
