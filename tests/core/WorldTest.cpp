#include "app/ProgramState.h"
#include "app/modLanguage.h"
#include "base/TextFile.h"
#include "support/MemoryDisk.h"
#include "world/MapView.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"
#include "world/modZones.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct World : testing::Test {
    MemoryDisk disk;
    ProgramState state;

    World() {
        state.AppPath = u"/o/"_s;
        state.LanguageTable.grow(9) = u"All"_s;
        state.LanguageTable.grow(45) = u"No attribute"_s;
        state.LanguageTable.grow(96) = u"None"_s;
    }
};

TEST_F(World, languageLinesGiveTheirFirstTwoFields) {
    disk.put(u"/o/data/language.TXT"_s, "5\tfive\textra\r\n2\ttwo\\nlines\r\n\r\nnothing\r\n2.4\tround\r\n");
    ASSERT_TRUE(LoadLanguage(state, disk));
    EXPECT_EQ(5, state.LanguageTable.highest());
    EXPECT_EQ(u"five"_s, state.text(Caption::Profession));
    EXPECT_EQ(u"round"_s, state.text(Caption::Campaign));
    EXPECT_EQ(QString(), state.text(Caption::AnyCharacter));
    EXPECT_EQ(QString(), state.text(Caption::PetLocations)); // beyond the table
    EXPECT_EQ(u"A title cannot begin with a semicolon (;)."_s, state.text(Caption::TitleIsComment));
}

TEST_F(World, anEmptyLanguageFileIsAMissingOne) {
    EXPECT_FALSE(LoadLanguage(state, disk.put(u"/o/Data/Language.txt"_s, "")));
}

TEST_F(World, campaignFoldersAreFoundByTheirExactPrefix) {
    disk.putFolder(u"/o/Campaign.01.Ash"_s).putFolder(u"/o/campaign.02.Small"_s);
    disk.putFolder(u"/o/Campaign.3.Short"_s).put(u"/o/Campaign.04.File"_s, "x");
    disk.putFolder(u"/o/Campaign.01.Zweiter"_s).putFolder(u"/o/Campaign.xx.Y"_s).putFolder(u"/o/Campaign."_s);
    LoadCampaigns(state, disk);
    ASSERT_EQ(4, state.Campaigns.highest());
    EXPECT_EQ(u"Ash"_s, state.Campaigns[1].CampaignName);
    EXPECT_EQ(QString(), state.Campaigns[2].CampaignName);
    EXPECT_EQ(u"/o/Campaign.03.Short"_s, campaignFolder(state, 3));
    EXPECT_EQ(u"File"_s, state.Campaigns[4].CampaignName);
    EXPECT_EQ(
        (std::vector<ListEntry>{{u"<<< All >>>"_s, -1}, {u"Ash"_s, 1}, {u"Short"_s, 3}, {u"File"_s, 4}}),
        campaignEntries(state));
}

TEST_F(World, ofSeveralEntriesOfOneNumberTheOneThatCanBeUsedCounts) {
    disk.put(u"/o/Campaign.01.Backup.zip"_s, "x")
        .put(u"/o/Campaign.01.Eldermere/Regions.txt"_s, "1\tSea\r\n");
    disk.put(u"/o/Campaign.02.Aside.old/Regions.txt"_s, "1\tx\r\n");
    disk.put(u"/o/Campaign.02.Bay/EliteList.txt"_s, "1\t1\tA\r\n").putFolder(u"/o/Campaign.02.Zest"_s);
    disk.put(u"/o/Campaign.03.Ash/Regions.txt"_s, "1\tx\r\n")
        .put(u"/o/Campaign.03.Elm/Pets.txt"_s, "1\tElk\r\n");
    disk.unreadable[u"/o/Campaign.03.Ash/Regions.txt"_s] = u"permission denied"_s;
    disk.put(u"/o/Campaign.04.File"_s, "x").putFolder(u"/o/Campaign.04.Folder"_s);
    LoadCampaigns(state, disk);
    EXPECT_EQ(u"Sea"_s, regionName(state, 1, 1));
    EXPECT_EQ(u"Bay"_s, campaignName(state, 2));
    EXPECT_EQ(u"Elm"_s, campaignName(state, 3));
    EXPECT_EQ(u"Folder"_s, campaignName(state, 4));
}

TEST_F(World, anUnknownCampaignGrowsNoTable) {
    LoadCampaigns(state, disk.putFolder(u"/o/Campaign.99.Z"_s));
    EXPECT_EQ(firstUnknownCampaign, state.Campaigns.highest());
}

TEST_F(World, regionsLeaveGapsAndKeepTheirFieldAsPictureName) {
    disk.put(u"/o/Campaign.03.C/Regions.txt"_s,
             "1\tOne\r\n02\tTwo\tx\r\n5\tFive\r\n../7\tEvil\r\n4/../6\tEvil\r\n");
    disk.put(u"/o/Campaign.01.A/Regions.txt"_s, "1\tOne\r\n");
    disk.putFolder(u"/o/Campaign.02.B"_s);
    LoadCampaigns(state, disk);
    const auto& regions = state.Campaigns[3].Regions;
    ASSERT_EQ(5, regions.highest());
    EXPECT_EQ(u"/o/Campaign.03.C/02.jpg"_s, regions[2].RegionPicture);
    EXPECT_EQ(QString(), regions[4].RegionPicture);
    EXPECT_EQ(
        (std::vector<ListEntry>{
            {u"<<< All >>>"_s, 0}, {u"One"_s, 1}, {u"Two"_s, 2}, {u""_s, 3}, {u"Evil"_s, 4}, {u"Five"_s, 5}}),
        regionEntries(state, 3));
    EXPECT_EQ(9u, regionEntries(state, 1).size());
    for (const int without : {0, 2, 4})
        EXPECT_EQ(1u, regionEntries(state, without).size()) << without;
}

TEST_F(World, zonesAreReadInFileOrderAndListedByName) {
    disk.put(u"/o/Campaign.01.A/Regions.txt"_s, "1\tOne\r\n");
    disk.put(u"/o/Campaign.01.A/Zones.txt"_s,
             ";no\r\n7\t1\t4\t1\t100.5\t50\tzebra\r\n7\t1\t2\t1\t9\t9\tApple\r\n"
             "8\t1\t2\t1\t0\t9\tnowhere\r\n9\t2\t2\t1\t9\t9\tno region\r\n"
             "x\t1\t2\t1\t9\t9\tno id\r\n9\t1\t7\t1\t9\t9\tno kind\r\n");
    LoadCampaigns(state, disk);
    LoadZones(state, disk);
    EXPECT_EQ((std::vector<ListEntry>{{u"<<< All >>>"_s, 0}, {u"Apple"_s, 2}, {u"zebra"_s, 1}}),
              zoneEntries(state, 1, 1));
    EXPECT_EQ(100, findRegion(state, 1, 1)->RegionZones[1].X);
    EXPECT_EQ(u"zebra"_s, ZoneName(state, 1, 1, 7));
    EXPECT_EQ(QString(), ZoneName(state, 1, 9, 7));
    EXPECT_EQ(7, zoneIdentifier(state, 1, 1, 2));
    EXPECT_EQ(0, zoneIdentifier(state, 1, 1, 3));
}

TEST_F(World, zoneNamesStandBelowTheirMarkerOrOnThePoint) {
    const Zone town{1, u"T"_s, 4, 0, 200, 100};
    EXPECT_EQ(QRect(QPoint(180, 74), QSize(40, 26 + 16 + 26)), zoneLabelRect(2, town, 41, 16));
    const Zone area{1, u"T"_s, 1, 0, 200, 100};
    EXPECT_EQ(QRect(QPoint(180, 92), QSize(40, 16)), zoneLabelRect(2, area, 41, 16));
    EXPECT_EQ(Sprite::Town1, zoneSprite(4, town));
    EXPECT_EQ(std::nullopt, zoneSprite(1, area));
    EXPECT_EQ(std::nullopt, zoneSprite(0, town));
}

TEST_F(World, laterProfessionsReplaceEarlierOnes) {
    disk.put(u"/o/Campaign.00.A/Professions.txt"_s,
             "2\tMage\t&HFF\tM\tFire\tIce\r\n5\tBard\t16711680\tB\r\n");
    disk.put(u"/o/Campaign.01.B/Professions.txt"_s, "2\tSage\t7\tS\tAir\r\n1\tx\tred\tX\r\n1\tx\r\n");
    LoadCampaigns(state, disk);
    LoadProfessions(state, disk);
    EXPECT_EQ((Profession{u"Sage"_s, u"S"_s, 7, {u"Air"_s}}), state.Professions[2]);
    EXPECT_EQ((Profession{u"No profession"_s, u"#"_s, 0xAAAAAA, {}}), state.Professions[0]);
    EXPECT_EQ(
        (std::vector<ListEntry>{
            {u"<<< None >>>"_s, 0}, {u""_s, 1}, {u""_s, 3}, {u""_s, 4}, {u"Bard"_s, 5}, {u"Sage"_s, 2}}),
        professionEntries(state, Caption::None));
    EXPECT_EQ((std::vector<ListEntry>{{u"<<< All >>>"_s, 0}, {u"Air"_s, 1}, {u"No attribute"_s, 99}}),
              attributeEntries(state, 2));
    EXPECT_EQ(1u, attributeEntries(state, 0).size());
}

TEST(MapView, scrollsWithinThePicture) {
    MapView view;
    view.setViewport({600, 900});
    view.setPicture({1000, 800});
    view.centreOn({10, 10});
    EXPECT_EQ(QPoint(0, 0), QPoint(view.scrollX(), view.scrollY()));
    view.centreOn({990, 790});
    EXPECT_EQ(QPoint(-400, 0), QPoint(view.scrollX(), view.scrollY()));
    EXPECT_EQ(QRect(400, 0, 600, 800), view.visible());
    view.dragTo(-50, -50);
    EXPECT_EQ(QPoint(-50, 0), QPoint(view.scrollX(), view.scrollY()));
    EXPECT_EQ((MapPoint{52, 4}), view.toMap({2.5, 3.5}));
    view.setViewport({980, 900});
    EXPECT_EQ(-20, view.scrollX());
}

} // namespace
} // namespace orvinel
