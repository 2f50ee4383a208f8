#include "tools/WorldCheck.h"
#include "support/MemoryDisk.h"
#include "support/NumberedCaptions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

// A world of one campaign, without a fault until a test puts one in.
struct WorldCheckTest : testing::Test {
    MemoryDisk disk;

    WorldCheckTest() {
        disk.put(u"/o/Data/Language.txt"_s, numberedCaptions("Text"));
        put("00.Core", "Professions.txt", "1\tMage\t&HFF\tM\tFire\r\n");
        put("00.Core", "PetsList.txt", "1\tWolf\tPine\r\n");
        put("00.Core", "imgPets/1.jpg", "jpeg");
        put("03.Sunhollow", "Regions.txt", "1\tFjord\r\n");
        put("03.Sunhollow", "1.jpg", "jpeg");
        put("03.Sunhollow", "Zones.txt", "5\t1\t2\t1\t300\t300\tHarbour\r\n");
        put("03.Sunhollow", "EliteList.txt", "7\t1\tSpark\r\n");
        put("03.Sunhollow", "EliteLocations.txt", ";[Version]1.1\r\n7\t1\t50\t50\tBorg\t\t5\r\n");
        put("03.Sunhollow", "Greens.txt", "Borg's Ring\tBorg\r\n");
        put("03.Sunhollow", "Collectors.txt", "; comment\r\n4\tSmith\t1\r\nHarbour\r\n3 Claws\r\n\r\n");
        put("03.Sunhollow", "CollectorsLocations.txt", "4\t1\t80\t50\t5\r\n");
        put("03.Sunhollow", "Treasures.txt", "Urn\t110\t50\t1\t5\r\n");
        put("03.Sunhollow", "PetsLocations.txt", "1\t1\t5\t140\t50\r\n");
    }

    void put(const char* campaign, const char* name, const QByteArray& text) {
        disk.put(u"/o/Campaign."_s + QLatin1String(campaign) + u'/' + QLatin1String(name), text);
    }
    void add(const char* name, const QByteArray& text) {
        const QString path = u"/o/Campaign.03.Sunhollow/"_s + QLatin1String(name);
        disk.put(path, disk.content(path) + text);
    }
    std::vector<std::string> findings() {
        std::vector<std::string> lines;
        for (const Finding& finding : checkWorld(disk, u"/o/"_s).findings)
            lines.push_back(findingLine(finding).remove(u"Campaign.03.Sunhollow/"_s).toStdString());
        return lines;
    }
};

TEST_F(WorldCheckTest, aWorldInOrderHasNoFindings) {
    EXPECT_THAT(findings(), testing::ElementsAre());
    EXPECT_FALSE(checkWorld(disk, u"/o/"_s).unreadable);
    EXPECT_TRUE(summaryText(checkWorld(disk, u"/o/"_s)).contains(u"      1 chests\n"_s));
}

TEST_F(WorldCheckTest, warnsOfWhatWorksButLooksBad) {
    add("EliteLocations.txt", "7\t1\t3000\t3000\tAlone\t1a\t5\r\n7\t1\t6000\t3000\tTwice\t\t5\r\n"
                              "7\t1\t6000\t3000\tTwice\tPPP\t5\r\n");
    QByteArray note;
    for (int line = 0; line < 70; ++line)
        note += "line\\n";
    add("EliteLocations.txt", "7\t1\t9000\t3000\tTall\t\t5\t" + note + "\r\n");
    const auto putPicture = [&](const QByteArray& size) {
        disk.put(u"/o/Campaign.03.Sunhollow/1.jpg"_s,
                 QByteArray::fromHex("ffd8ffe0000400ffffc0000b08" + size) + QByteArray(40000, '\0'));
    };
    putPicture("20002000"); // 8192 x 8192, the largest that is shown
    EXPECT_EQ(4u, findings().size());
    putPicture("20002001");
    const WorldFindings result = checkWorld(disk, u"/o/"_s);
    EXPECT_EQ(0, result.counts.errors);
    const std::vector<std::string> lines = findings();
    ASSERT_EQ(5u, lines.size()) << testing::PrintToString(lines);
    EXPECT_THAT(lines[0], testing::HasSubstr("1.jpg:0: warning: picture: 8193 x 8192"));
    EXPECT_THAT(lines[1], testing::HasSubstr("warning: marker: Alone is one of several places"));
    EXPECT_THAT(lines[2], testing::HasSubstr("warning: marker: \"PPP\""));
    EXPECT_THAT(lines[3], testing::HasSubstr("warning: place: Twice stands there a second time"));
    EXPECT_THAT(lines[4], testing::HasSubstr("the information window of Tall"));
    EXPECT_TRUE(findingsJson(result).contains(u"\"severity\": \"warning\""_s));
}

TEST_F(WorldCheckTest, tellsOfEveryLineThatALoaderPassesOver) {
    add("Regions.txt", "300\tNowhere\r\n");
    add("Zones.txt", "6\t1\t9\t1\t30\t30\tOdd\r\n");
    add("EliteList.txt", "8\tx\tBroken\r\n");
    EXPECT_THAT(findings(),
                testing::ElementsAre("EliteList.txt:2: profession: \"x\" is not a number in its range",
                                     "Regions.txt:2: region: \"300\" is not a number in its range",
                                     "Zones.txt:2: type: no zone type 9"));
}

TEST_F(WorldCheckTest, tellsOfWhatPointsNowhere) {
    add("Zones.txt", "6\t0\t2\t1\t30\t30\tLost\r\n");
    add("EliteList.txt", "8\t9\tFrost\r\n");
    add("EliteLocations.txt", "6\t1\t50\t90\tEir\t\t5\r\n8\t1\t50\t120\tUlf\t\t6\r\n"
                              "0\t2\t50\t150\tOdd\t\t5\r\n0\t1\t50\t180\tBo\t\t0\r\n");
    add("Greens.txt", "Nobody's Axe\tSven\r\n");
    add("Collectors.txt", "5\tBaker\t1\r\nHarbour\r\n3 Eggs\r\n\r\n");
    EXPECT_THAT(findings(),
                testing::ElementsAre(
                    "Collectors.txt:6: collector: Baker has no place",
                    "EliteList.txt:2: profession: no profession 9", "EliteLocations.txt:3: skill: no skill 6",
                    "EliteLocations.txt:4: zone: Ulf stands in zone 6, which Fjord lacks",
                    "EliteLocations.txt:5: region: Odd stands in no region 2",
                    "EliteLocations.txt:6: zone: Bo has no zone",
                    "Greens.txt:2: boss: no boss \"Sven\" carries it", "Zones.txt:2: region: no region 0"));
}

TEST_F(WorldCheckTest, tellsOfMarkersThatCoverEachOtherOnce) {
    add("EliteLocations.txt",
        "7\t1\t80\t62\tUlf\t\t5\r\n7\t1\t80\t63\tEir\t\t5\r\n7\t1\t50\t50\tBorg\t\t5\r\n");
    EXPECT_THAT(findings(), testing::ElementsAre(
                                "CollectorsLocations.txt:1: place: the marker of Smith covers that of Ulf "
                                "(EliteLocations.txt:3)",
                                "EliteLocations.txt:4: place: the marker of Eir covers that of Ulf "
                                "(EliteLocations.txt:3)"));
}

TEST_F(WorldCheckTest, tellsOfMissingPicturesCaptionsAndRegions) {
    disk.remove(u"/o/Campaign.03.Sunhollow/1.jpg"_s);
    disk.remove(u"/o/Campaign.00.Core/imgPets/1.jpg"_s);
    add("Regions.txt", "3\tGlacier\r\n");
    put("03.Sunhollow", "3.jpg", "jpeg");
    add("EliteList.txt", "7\t1\tSpark\tFire\tSpell\t0\t0\t5\t1\t10\tBurns.\r\n");
    disk.put(u"/o/Data/Language.txt"_s, disk.content(u"/o/Data/Language.txt"_s).replace("\r\n77\tText", ""));
    EXPECT_THAT(findings(), testing::ElementsAre("Campaign.00.Core/PetsList.txt:1: picture: no picture 1.jpg",
                                                 "EliteList.txt:1: picture: no picture imgElite/0007.jpg",
                                                 "EliteList.txt:2: skill: a second line of skill 7",
                                                 "Regions.txt:0: region: region 2 has no line",
                                                 "Regions.txt:1: picture: no picture 1.jpg",

                                                 "Data/Language.txt:0: number: no caption 77"));
}

TEST_F(WorldCheckTest, tellsOfAPlayersProgressThatBelongsToNothing) {
    disk.put(u"/o/Personal/Characters.txt"_s, "01\tAda\r\n");
    disk.put(u"/o/Personal/Char01CapElite.txt"_s, "0007\r\n0008\r\n");
    disk.put(u"/o/Personal/Char01OpenedTreasures.txt"_s, "0002\t01012026\r\n");
    disk.put(u"/o/Personal/Notes.txt"_s, "Here\t\t1\t1\t3\t1\r\nThere\t\t1\t1\t3\t2\r\n");
    EXPECT_THAT(findings(), testing::ElementsAre("Personal/Char01CapElite.txt:2: skill: no skill 0008",
                                                 "Personal/Char01OpenedTreasures.txt:1: chest: no chest 0002",
                                                 "Personal/Notes.txt:2: region: no region 2 of campaign 3"));
}

TEST_F(WorldCheckTest, cannotReadAFolderWithoutDataOrABrokenFile) {
    MemoryDisk empty;
    EXPECT_TRUE(checkWorld(empty, u"/o/"_s).unreadable);
    disk.unreadable[u"/o/Campaign.03.Sunhollow/Zones.txt"_s] = u"input/output error"_s;
    EXPECT_TRUE(checkWorld(disk, u"/o/"_s).unreadable);
}

} // namespace
} // namespace orvinel
