#include "app/ProgramState.h"
#include "layers/modTreasures.h"
#include "progress/OpenedTreasures.h"
#include "support/MemoryDisk.h"
#include "world/modCampaigns.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

// Two chests, and the characters 1 (Ada), 2 (free) and 3 (Bo).
struct Chests : testing::Test {
    MemoryDisk disk;
    PlayerFiles files{disk};
    ProgramState state;

    Chests() {
        state.AppPath = u"/o/"_s;
        state.Characters.grow(3) = u"Bo"_s;
        state.Characters[1] = u"Ada"_s;
        disk.put(u"/o/Campaign.03.Sunhollow/Regions.txt"_s, "1\tSands\r\n2\tRocks\r\n");
        disk.put(u"/o/Campaign.03.Sunhollow/Zones.txt"_s, "7\t1\t1\t1\t9\t9\tDune\r\n");
        disk.put(u"/o/Campaign.03.Sunhollow/Treasures.txt"_s,
                 ";c\r\nUrn\t20.5\t30\t1\t7\r\n\r\nshort\t1\t2\t1\r\nbad zone\t1\t2\t1\tx\r\n"
                 "Box\t100\t100\t2\t9\r\n");
        load();
    }
    void load() {
        LoadCampaigns(state, disk);
        LoadZones(state, disk);
        LoadTreasures(state, disk);
        LoadOpenedTreasures(state, files);
    }
    void putOpened(const QByteArray& content) {
        disk.put(u"/o/Personal/Char03OpenedTreasures.txt"_s, content);
        load();
    }
    QByteArray opened() const { return disk.content(u"/o/Personal/Char03OpenedTreasures.txt"_s); }
};

TEST_F(Chests, areListedWithTheirZone) {
    using Entries = std::vector<ListEntry>;
    EXPECT_EQ((Entries{{u"Urn (Dune)"_s, 1}, {u"Box ()"_s, 2}}), treasureEntries(state, {}));
    EXPECT_EQ((Entries{{u"Urn (Dune)"_s, 1}}), treasureEntries(state, {{3, 1, 1}}));
    EXPECT_EQ((Entries{{u"Box ()"_s, 2}}), treasureEntries(state, {{3, 2, 0}}));
    EXPECT_EQ(Entries{}, treasureEntries(state, {{1, 0, 0}}));
}

TEST_F(Chests, areDrawnAndFoundSevenPixelsAround) {
    const std::vector<int> all = {1, 2};
    EXPECT_EQ((std::vector<Marker>{Marker::picture(Sprite::Treasure, 13, 23)}),
              treasureMarkers(state, all, {3, 1, 7}));
    EXPECT_TRUE(treasureMarkers(state, all, {3, 1, 8}).empty());
    const HitIndex index(treasureHitAreas(state, all, {3, 1, 8}));
    ASSERT_TRUE(index.first({27, 23}));
    EXPECT_EQ(1, index.first({13, 37})->id);
    EXPECT_FALSE(index.first({28, 30}));
}

TEST_F(Chests, datesAreReadWithTheCalendarsRules) {
    const std::vector<std::pair<const char*, QDate>> cases = {
        {"1\t16102011\r\n", {2011, 10, 16}},
        {"0001\t05132011", {2012, 1, 5}},
        {"1x\t31022011", {2011, 3, 3}},
        {"1\t00012011", {2010, 12, 31}},
        {"1\t01002011", {2010, 12, 1}},
        {"1\t16102011\r\n1\r\n", {}},
        {"1\t16/10/2011", {}},
        {"1\t        ", {}},
        {"1\t0101    ", {}},
        {"1\t31129999\textra", {9999, 12, 31}},
        {"1\t32129999", {}},
        {"2\t16102011", {}},
    };
    for (const auto& [content, date] : cases) {
        putOpened(content);
        EXPECT_EQ(date, state.Treasures[1].openedBy(3)) << content;
    }
}

TEST_F(Chests, openingOneRewritesThatCharactersFile) {
    putOpened("0002\t01022010\r\n");
    ASSERT_TRUE(openTreasure(state, files, {1, 3, {2011, 10, 16}}).saved());
    EXPECT_EQ("0001\t16102011\r\n0002\t01022010\r\n", opened());
    EXPECT_EQ((std::vector<QString>{u"replace /o/Personal/Char03OpenedTreasures.txt"_s}), disk.log);
}

TEST_F(Chests, aFailedSaveNotesNothing) {
    putOpened("0001\t01022010\r\n");
    disk.failAt = 1;
    EXPECT_EQ(SaveResult::Outcome::Failed, openTreasure(state, files, {1, 3, {2011, 10, 16}}).outcome);
    EXPECT_EQ(QDate(2010, 2, 1), state.Treasures[1].openedBy(3));
    EXPECT_EQ("0001\t01022010\r\n", opened());
}

TEST_F(Chests, thoseBeyondTheTableAreKept) {
    putOpened("0300\t01022010\r\n12345\t02022010\r\n0044\t03022010\r\n0044\r\n2\t04022010\r\n");
    ASSERT_TRUE(openTreasure(state, files, {1, 3, {2011, 10, 16}}).saved());
    EXPECT_EQ("0001\t16102011\r\n0002\t04022010\r\n0300\t01022010\r\n12345\t02022010\r\n", opened());
    forgetOpenedTreasures(state, 3);
    EXPECT_EQ(QString(), openedTreasuresFile(state, 3));
}

TEST_F(Chests, linesThatMarkNothingSurviveInABackup) {
    putOpened("1\t16/10/2011\r\n");
    ASSERT_TRUE(openTreasure(state, files, {2, 3, {2011, 10, 16}}).saved());
    EXPECT_EQ("1\t16/10/2011\r\n", disk.content(u"/o/Personal/Char03OpenedTreasures.txt.bak"_s));
    ASSERT_TRUE(openTreasure(state, files, {2, 1, {2011, 10, 16}}).saved());
    EXPECT_FALSE(disk.exists(u"/o/Personal/Char01OpenedTreasures.txt.bak"_s));
}

TEST_F(Chests, whatARewriteWouldNotWriteAgainSurvivesInABackup) {
    for (const QByteArray content :
         {"0001\t16102011\tby the mill\r\n", "0001 urn\t16102011\r\n", "0001\t32102011\r\n",
          "0001\t16102011\r\n0001\t17102011\r\n", "0300\t16102011\r\n0300\t17102011\r\n"}) {
        putOpened(content);
        ASSERT_TRUE(openTreasure(state, files, {2, 3, {2011, 10, 16}}).saved());
        EXPECT_EQ(content, disk.content(u"/o/Personal/Char03OpenedTreasures.txt.bak"_s));
        disk.remove(u"/o/Personal/Char03OpenedTreasures.txt.bak"_s);
    }
    putOpened("1\t16102011\r\n0001\t16102011\r\n");
    ASSERT_TRUE(openTreasure(state, files, {2, 3, {2011, 10, 16}}).saved());
    EXPECT_FALSE(disk.exists(u"/o/Personal/Char03OpenedTreasures.txt.bak"_s));
}

TEST_F(Chests, aNewCharacterHasOpenedNothing) {
    state.Characters.grow(5) = u"Eva"_s;
    EXPECT_FALSE(state.Treasures[1].openedBy(5).isValid());
    growOpenedTreasures(state);
    EXPECT_EQ(6u, state.Treasures[1].OpenedOn.size());
}

TEST_F(Chests, tooltipsNameEveryCharacter) {
    using Lines = std::vector<TreasureTooltip::Line>;
    putOpened("1\t16102011");
    EXPECT_EQ((Lines{{u"Ada"_s, {}}, {u""_s, {}}, {u"Bo"_s, {2011, 10, 16}}}),
              treasureTooltip(state, 1).lines);
    state.Characters[1].clear();
    EXPECT_EQ((Lines{{u"Bo"_s, {2011, 10, 16}}}), treasureTooltip(state, 1).lines);
}

TEST_F(Chests, tooltipsSayWhyTheyNameNobody) {
    state.LanguageTable.grow(88) = u"nobody"_s;
    state.LanguageTable[87] = u"no characters"_s;
    state.Characters[1].clear();
    state.Characters[3].clear();
    EXPECT_EQ(u"nobody"_s, treasureTooltip(state, 2).instead);
    state.Characters.reset();
    EXPECT_EQ(u"no characters"_s, treasureTooltip(state, 2).instead);
}

TEST(PadBetween, equalsAddingOneBlankAfterTheOther) {
    const auto width = [](const QString& text) { return static_cast<int>(text.size()) * 3; };
    for (int target = -5; target < 400; ++target) {
        QString plain = u"left right"_s;
        while (width(plain) < target)
            plain.insert(4, u' ');
        ASSERT_EQ(plain, padBetween(u"left"_s, u"right"_s, target, width)) << target;
    }
}

TEST(PadBetween, measuresOnlyAFewTimes) {
    int measured = 0;
    padBetween(u"a"_s, u"b"_s, 4000, [&](const QString& text) {
        ++measured;
        return static_cast<int>(text.size());
    });
    EXPECT_LT(measured, 30);
    EXPECT_EQ(12, padBetween(u"a"_s, u"b"_s, 10, [](const QString&) { return 0; }).size());
}

TEST(DateBoxes, followThePlayersShortDate) {
    const DateOrder dayFirst = {DatePart::Day, DatePart::Month, DatePart::Year};
    const DateOrder monthFirst = {DatePart::Month, DatePart::Day, DatePart::Year};
    const DateOrder yearFirst = {DatePart::Year, DatePart::Month, DatePart::Day};
    EXPECT_EQ(dayFirst, detectDateOrder(u"16/10/2011"_s));
    EXPECT_EQ(dayFirst, detectDateOrder(u"16.10.11"_s));
    EXPECT_EQ(monthFirst, detectDateOrder(u"10/16/2011"_s));
    EXPECT_EQ(yearFirst, detectDateOrder(u"2011-10-16"_s));
    EXPECT_EQ(yearFirst, detectDateOrder(u"11. 10. 16"_s));
    EXPECT_EQ((DateOrder{DatePart::Month, DatePart::Year, DatePart::Day}), detectDateOrder(u""_s));
    EXPECT_EQ((DateOrder{DatePart::Month, DatePart::Day, DatePart::Year}), detectDateOrder(u"16 Oct 2011"_s));
}

TEST(DateBoxes, stepAroundTheirExactLimitsOnly) {
    EXPECT_EQ(u"01"_s, stepDate(DatePart::Day, u"31"_s, 1));
    EXPECT_EQ(u"12"_s, stepDate(DatePart::Month, u"01"_s, -1));
    EXPECT_EQ(u"2100"_s, stepDate(DatePart::Year, u"2006"_s, -1));
    EXPECT_EQ(u"2006"_s, stepDate(DatePart::Year, u"2100"_s, 1));
    EXPECT_EQ(u"2004"_s, stepDate(DatePart::Year, u"2005"_s, -1));
    EXPECT_EQ(u"2006"_s, stepDate(DatePart::Year, u"2005"_s, 1));
    EXPECT_EQ(u"01"_s, stepDate(DatePart::Day, u""_s, 1));
    EXPECT_EQ(u"31"_s, stepDate(DatePart::Day, u""_s, -1)) << "below the limits";
    EXPECT_EQ(u"12"_s, stepDate(DatePart::Month, u"00"_s, -1));
    EXPECT_EQ(u"100"_s, stepDate(DatePart::Day, u"99"_s, 1));
}

TEST(DateBoxes, takeDatesThatExistAsWrittenOrSwapped) {
    EXPECT_EQ(QDate(2011, 10, 16), enteredDate({u"16"_s, u"10"_s, u"2011"_s}));
    EXPECT_EQ(QDate(2011, 10, 6), enteredDate({u"6"_s, u"010"_s, u"2011"_s}));
    EXPECT_EQ(QDate(2012, 1, 5), enteredDate({u"05"_s, u"13"_s, u"2011"_s}));
    EXPECT_EQ(QDate(2012, 2, 29), enteredDate({u"29"_s, u"02"_s, u"2012"_s}));
    const std::vector<DateFields> refused = {
        {u"31"_s, u"02"_s, u"2011"_s}, {u"29"_s, u"02"_s, u"2011"_s}, {u"13"_s, u"13"_s, u"2011"_s},
        {u"1"_s, u"1"_s, u"11"_s},     {u"1"_s, u"1"_s, u"0011"_s},   {u"1"_s, u"1"_s, u"20111"_s},
        {u"1."_s, u"1"_s, u"2011"_s},  {u""_s, u"1"_s, u"2011"_s},    {u"0"_s, u"1"_s, u"2011"_s},
        {u"05"_s, u"13"_s, u"9999"_s}, {u"٣"_s, u"1"_s, u"2011"_s},
    };
    for (const DateFields& fields : refused)
        EXPECT_FALSE(isEnteredDateValid(fields))
            << (fields.day + u'-' + fields.month + u'-' + fields.year).toStdString();
}

TEST_F(Chests, theDialogListsEveryNumberWithItsDay) {
    putOpened("1\t06102011");
    EXPECT_EQ((std::vector<ListEntry>{{u"Ada"_s, 1}, {u""_s, 2}, {u"Bo (10-06-2011)"_s, 3}}),
              chestCharacterEntries(state, 1, {DatePart::Month, DatePart::Day, DatePart::Year}));
}

} // namespace
} // namespace orvinel
