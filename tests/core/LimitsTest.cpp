#include "app/ProgramState.h"
#include "app/modData.h"
#include "app/modUtility.h"
#include "base/PlayerFiles.h"
#include "layers/EliteFiles.h"
#include "progress/OpenedTreasures.h"
#include "support/MemoryDisk.h"
#include "world/MapView.h"
#include "world/modCampaigns.h"
#include "world/modZones.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct ComplaintList : Complaints {
    QStringList lines; // "Pets.txt 3", where something was not taken
    void add(const Complaint& complaint) override {
        lines << complaint.file.section(u'/', -1) + u' ' + QString::number(complaint.line);
    }
};

// In each file the odd lines hold the outermost numbers that are allowed, the even ones the next beyond.
const std::pair<const char*, const char*> outermost[] = {
    {"Campaign.00.Base/Professions.txt", "255\tA\t1\tA\r\n256\tB\t1\tB\r\n0\tC\t1\tC\r\n-1\tD\t1\tD\r\n"},
    {"Campaign.00.Base/PetsList.txt", "65535\tWolf\tx\r\n65536\tBear\tx\r\n0\tElk\tx\r\n-1\tYak\tx\r\n"},
    {"Campaign.00.Base/EliteList.txt", "7\t1\tA\t\t\t32767\t255\t255\t\t32767\tD\r\n"
                                       "8\t1\tB\t\t\t32768\t0\t0\t\t0\tD\r\n"
                                       "9\t1\tC\t\t\t-32768\t0\t0\t\t-32768\tD\r\n"
                                       "10\t1\tD\t\t\t-32769\t0\t0\t\t0\tD\r\n"
                                       "11\t255\tE\t\t\t0\t0\t0\t\t0\tD\r\n"
                                       "12\t256\tE\t\t\t0\t0\t0\t\t0\tD\r\n"
                                       "13\t0\tF\t\t\t0\t0\t0\t\t0\tD\r\n"
                                       "14\t1\tF\t\t\t0\t256\t0\t\t0\tD\r\n"
                                       "65535\t1\tG\r\n"
                                       "15\t1\tG\t\t\t0\t0\t256\t\t0\tD\r\n"
                                       "0\t1\tH\r\n"
                                       "16\t1\tH\t\t\t0\t0\t0\t\t32768\tD\r\n"},
    {"Campaign.01.A/Regions.txt", "255\tFar\r\n256\tToo far\r\n1\tNear\r\n-1\tNowhere\r\n"},
    {"Campaign.01.A/Zones.txt", "32767\t1\t1\t255\t9\t9\tA\r\n32768\t1\t1\t1\t9\t9\tB\r\n"
                                "-32768\t255\t6\t0\t1000000\t9\tC\r\n-32769\t1\t1\t1\t9\t9\tD\r\n"
                                "3\t1\t1\t1\t0.4\t0.1\tE\r\n3\t1\t0\t1\t9\t9\tF\r\n"
                                "3\t1\t1\t1\t9\t1000000\tG\r\n3\t1\t7\t1\t9\t9\tH\r\n"
                                "3\t1\t1\t1\t9\t0\tno place\r\n3\t1\t1\t256\t9\t9\tI\r\n"
                                "3\t1\t1\t1\t0\t9\tno place\r\n3\t1\t1\t1\t1000001\t9\tJ\r\n"},
    {"Campaign.01.A/PetsLocations.txt",
     "0\t255\t1\t9\t9\r\n7\t256\t1\t9\t9\r\n7\t0\t1\t-1000000\t9\r\n7\t-1\t1\t9\t9\r\n"
     "7\t1\t1\t9\t1000000\r\n7\t1\t1\t9\t1000001\r\n"},
    {"Campaign.03.Sunhollow/Treasures.txt",
     "A\t9\t9\t255\t1\r\nB\t9\t9\t256\t1\r\nC\t9\t9\t0\t1\r\nD\t9\t9\t-1\t1\r\n"},
    {"Personal/Notes.txt",
     "A\tx\t9\t9\t255\t255\r\nB\tx\t9\t9\t256\t1\r\nC\tx\t9\t9\t0\t0\r\nD\tx\t9\t9\t1\t256\r\n"
     "E\tx\t9\t9\t0\t0\r\nF\tx\t9\t9\t-1\t0\r\nG\tx\t9\t9\t0\t0\r\nH\tx\t9\t9\t0\t-1\r\n"}};

TEST(Limits, theOutermostNumbersAreTakenAndTheNextBeyondAreTold) {
    MemoryDisk disk;
    QStringList beyond;
    for (const auto& [path, content] : outermost) {
        const QString name = QString::fromLatin1(path);
        disk.put(u"/o/"_s + name, content);
        for (int line = 2; line <= QByteArray(content).count('\n'); line += 2)
            beyond << name.section(u'/', -1) + u' ' + QString::number(line);
    }
    ProgramState state;
    state.AppPath = u"/o/"_s;
    PlayerFiles files(disk);
    ComplaintList complaints;
    loadTables(state, files, &complaints);
    beyond.sort();
    complaints.lines.sort();
    complaints.lines.removeDuplicates();
    EXPECT_EQ(beyond.join(u'\n').toStdString(), complaints.lines.join(u'\n').toStdString());
    EXPECT_EQ(32767, state.EliteSkills[7].Recharge);
    EXPECT_EQ(-32768, state.EliteSkills[9].Upkeep);
    EXPECT_EQ(4,
              findRegion(state, 1, 1)->RegionZones.count() + findRegion(state, 1, 255)->RegionZones.count());
}

TEST(Limits, aNameThatLeadsOutOfItsFolderIsNone) {
    for (const char16_t c : {u'/', u'\\', u':', u'\x1F', u'\t', u'\x7F'})
        EXPECT_FALSE(isPlainFileName(u"a"_s + QChar(c) + u'b')) << int(c);
    EXPECT_TRUE(isPlainFileName(u"a b.\u0080~!9"));
}

TEST(Limits, numbersOfAnyLengthAreReadWhole) {
    const int most = std::numeric_limits<int>::max();
    EXPECT_EQ(999'999'999, leadingInteger(u"999999999", 0, most));
    EXPECT_EQ(2'147'483'647, leadingInteger(u"2147483647", 0, most));
    EXPECT_EQ(std::nullopt, leadingInteger(u"2147483648", 0, most));
    EXPECT_EQ(std::nullopt, leadingInteger(u"9999999999", 0, most));
    for (const QStringView text : {u"5e", u"5e+", u"5e-", u"5d", u"5.", u"+5", u" 5"})
        EXPECT_EQ(5, leadingNumber(text)) << text.toString().toStdString();
    EXPECT_EQ(255, wholeNumber(u"&HFF&", 0, 255));
    EXPECT_EQ(std::nullopt, wholeNumber(u"&H+F", 0, 255));
    for (const QStringView text : {u"12", u"-1", u"+7", u" 3 "})
        EXPECT_TRUE(isBareNumber(text)) << text.toString().toStdString();
    for (const QStringView text : {u"", u"-", u"+", u"1.5", u"- 1", u"--1"})
        EXPECT_FALSE(isBareNumber(text)) << text.toString().toStdString();
}

TEST(Limits, kindsOfZonesHaveTheMarkersOfTheirCampaignsSet) {
    const auto kind = [](int type) { return Zone{1, u"Z"_s, type, 1, 9, 9}; };
    EXPECT_EQ(Sprite::Outpost1, zoneSprite(1, kind(2)));
    EXPECT_EQ(Sprite::Mission3, zoneSprite(3, kind(3)));
    EXPECT_EQ(Sprite::Outpost1, zoneSprite(4, kind(2)));
    EXPECT_EQ(std::nullopt, zoneSprite(5, kind(2)));
    EXPECT_EQ(std::nullopt, zoneSprite(1, kind(5)));
    EXPECT_EQ(std::nullopt, zoneSprite(4, kind(5)));
    EXPECT_EQ(Sprite::Challenge3, zoneSprite(3, kind(5)));
    EXPECT_EQ(Sprite::DungeonEntrance0, zoneSprite(1, kind(6)));
    EXPECT_EQ(std::nullopt, zoneSprite(1, kind(7)));
    EXPECT_NE(QPoint(), zoneMarkerOffset(4, 6));
    for (const auto& [campaign, type] : {std::pair(-1, 2), {5, 2}, {1, -1}, {1, 7}, {0, 2}})
        EXPECT_EQ(QPoint(), zoneMarkerOffset(campaign, type)) << campaign << ' ' << type;
}

// Before the marker, else behind it, else pulled back by half, else at the edge.
TEST(Limits, anInformationWindowStaysInTheView) {
    const QSize view(1000, 1000);
    EXPECT_EQ(QPoint(419, 401), PlaceTooltip({100, 100}, QRect(500, 500, 20, 20), view));
    EXPECT_EQ(QPoint(0, 0), PlaceTooltip({100, 100}, QRect(81, 99, 20, 20), view)) << "just fits before it";
    EXPECT_EQ(QPoint(50, 70), PlaceTooltip({100, 100}, QRect(50, 50, 20, 20), view));
    EXPECT_EQ(QPoint(200, 220), PlaceTooltip({600, 600}, QRect(500, 500, 20, 20), view));
    EXPECT_EQ(QPoint(200, 40), PlaceTooltip({800, 960}, QRect(600, 500, 20, 20), view)) << "just fits";
    EXPECT_EQ(QPoint(0, 0), PlaceTooltip({2000, 2000}, QRect(500, 500, 20, 20), view));
}

TEST(Limits, theMapIsCentredOnAPoint) {
    MapView view;
    view.setViewport({600, 900});
    view.setPicture({5000, 4000});
    view.centreOn({2000, 1500});
    EXPECT_EQ(QPoint(-1700, -1050), QPoint(view.scrollX(), view.scrollY()));
}

TEST(Limits, datesInBoxesAreDigitsOfTheirLength) {
    EXPECT_EQ(QDate(2026, 4, 3), enteredDate({u"0003"_s, u"0004"_s, u"2026"_s}));
    for (const DateFields& wrong : {DateFields{u"00003"_s, u"4"_s, u"2026"_s},
                                    {u"3"_s, u"00004"_s, u"2026"_s},
                                    {u""_s, u"4"_s, u"2026"_s},
                                    {u"3"_s, u""_s, u"2026"_s},
                                    {u"3"_s, u"4"_s, u"202"_s},
                                    {u"-3"_s, u"4"_s, u"2026"_s},
                                    {u"3"_s, u"x"_s, u"2026"_s}})
        EXPECT_EQ(std::nullopt, enteredDate(wrong)) << wrong.day.toStdString() << wrong.month.toStdString();
    EXPECT_EQ(u"31"_s, stepDate(DatePart::Day, u"0"_s, -1));
    EXPECT_EQ(u"31"_s, stepDate(DatePart::Day, u"1"_s, -1));
    EXPECT_EQ(u"01"_s, stepDate(DatePart::Day, u"2"_s, -1));
}

TEST(Limits, olderCopiesAreNeverOverwritten) {
    const QString path = u"/o/Personal/Notes.txt"_s;
    MemoryDisk disk;
    disk.put(path, "mine").put(path + u".bak"_s, "older");
    EXPECT_EQ(SaveResult::Outcome::ChangedOutside, PlayerFiles(disk).save(path, u"new"_s).outcome);
    EXPECT_TRUE(PlayerFiles(disk).save(path, u"new"_s, true).saved());
    EXPECT_EQ("older", disk.content(path + u".bak"_s));
    EXPECT_EQ("mine", disk.content(path + u".bak2"_s));
    EXPECT_TRUE(PlayerFiles(disk).putAside(path).saved());
    EXPECT_EQ("new", disk.content(path + u".bak3"_s));
    for (int n = 4; n <= 99; ++n)
        disk.put(path + u".bak"_s + QString::number(n), "full");
    disk.put(path, "last");
    EXPECT_FALSE(PlayerFiles(disk).putAside(path).saved());
    EXPECT_EQ("last", disk.content(path));
}

} // namespace
} // namespace orvinel
