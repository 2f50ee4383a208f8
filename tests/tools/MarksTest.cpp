#include "tools/Marks.h"

#include "app/modData.h"
#include "layers/modNotes.h"
#include "support/EliteWorld.h"
#include "tools/Csv.h"
#include "tools/NoteExchange.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

const QDate today(2026, 3, 7);

struct MarksTest : testing::Test, EliteWorld {
    MarksTest() {
        file(1, "EliteList.txt", "1\t1\tOne\r\n2\t2\tTwo\r\n3\t2\tTwo\r\n12000\t2\tFar\r\n");
        disk.put(u"/o/Campaign.03.Sunhollow/Regions.txt"_s, "1\tDunes\r\n2\tCoast\r\n");
        disk.put(u"/o/Campaign.03.Sunhollow/Treasures.txt"_s,
                 "Urn\t9\t9\t1\t1\r\nBox, big\t40\t40\t1\t1\r\n");
        disk.put(u"/o/Personal/Char01CapElite.txt"_s, "0001\r\n4711\r\n");
        loadTables(state, files);
    }
    QByteArray captured() const { return disk.content(u"/o/Personal/Char01CapElite.txt"_s); }
    QByteArray opened() const { return disk.content(u"/o/Personal/Char01OpenedTreasures.txt"_s); }
};

TEST_F(MarksTest, findsWhatThePlayerMeansOrSaysWhyNot) {
    QString reason;
    EXPECT_EQ(1, skillMeant(state, u"oNE"_s, reason));
    EXPECT_EQ(2, skillMeant(state, u"2"_s, reason));
    EXPECT_EQ(2, chestMeant(state, u"box, BIG"_s, reason));
    EXPECT_FALSE(skillMeant(state, u"Two"_s, reason));
    EXPECT_EQ(u"several are called \"Two\": give the number (2, 3)"_s, reason);
    EXPECT_FALSE(skillMeant(state, u"Far"_s, reason));
    EXPECT_TRUE(reason.contains(u"9999"_s));
    EXPECT_FALSE(skillMeant(state, u"0"_s, reason));
    EXPECT_FALSE(chestMeant(state, u"3"_s, reason));
    for (const QString& bad : {u"2026-02-30"_s, u"07.03.2026"_s, u""_s})
        EXPECT_FALSE(dateMeant(bad)) << bad.toStdString();
}

TEST_F(MarksTest, marksThroughTheProgramsWritersAndTakesBack) {
    int changed = 0;
    const std::vector<Mark> marks = {{Mark::Kind::Skill, 1, {}, false},
                                     {Mark::Kind::Skill, 3, {}, false},
                                     {Mark::Kind::Chest, 2, today, false}};
    ASSERT_TRUE(applyMarks(state, files, 1, marks, changed).saved());
    EXPECT_EQ(2, changed);
    EXPECT_EQ("0001\r\n0003\r\n4711\r\n", captured()); // what the tables lack stays
    EXPECT_EQ("0002\t07032026\r\n", opened());
    EXPECT_EQ(marks, readMarks(state, marksCsv(state, 1), today).marks);
    ASSERT_TRUE(applyMarks(state, files, 1, {{Mark::Kind::Chest, 2, {}, true}}, changed).saved());
    EXPECT_EQ("", opened());
}

TEST_F(MarksTest, leavesNothingHalfMarkedWhenTheDiskFails) {
    const std::vector<Mark> marks = {{Mark::Kind::Skill, 2, {}, false}, {Mark::Kind::Chest, 1, today, false}};
    disk.log.clear();
    disk.failAt = 2;
    disk.failOnce = true;
    int changed = 0;
    EXPECT_FALSE(applyMarks(state, files, 1, marks, changed).saved());
    EXPECT_EQ("0001\r\n4711\r\n", captured());
    EXPECT_FALSE(state.EliteSkills[2].capturedBy(1));
    EXPECT_FALSE(state.Treasures[1].openedBy(1).isValid());
}

TEST_F(MarksTest, namesTheLinesOfATableThatMakeNoSense) {
    const MarkList list = readMarks(state,
                                    u"kind;id;name;date\nskill;;one;\nchest;9;;\n\n"
                                    "chest;;\"box,\nbig\";\nboss;1;;\nchest;1;;yesterday\n"_s,
                                    today);
    EXPECT_EQ(1u, list.marks.size());
    ASSERT_EQ(4, list.problems.size());
    EXPECT_EQ(u"line 3: there is no chest \"9\""_s, list.problems[0]);
    EXPECT_TRUE(list.problems[1].startsWith(u"line 5: "_s));
    EXPECT_TRUE(list.problems[2].startsWith(u"line 7: "_s));
    EXPECT_EQ(u"line 8: \"yesterday\" is not a day (2026-03-07)"_s, list.problems[3]);
    EXPECT_EQ(u"b\u00e4r"_s, tableText("b\xe4r"));
    EXPECT_EQ(u"b\u00e4r"_s, tableText("b\xc3\xa4r"));
}

TEST_F(MarksTest, mergesNotesWithoutDoubles) {
    disk.put(u"/o/Personal/Notes.txt"_s, "Here\tone{#ENTER#}two\t5\t6\t3\t1\r\n");
    LoadNotes(state, files);
    const QByteArray exported = "Here\tone{#ENTER#}two\t5\t6\t3\t1\r\nHere\tother\t5\t6\t3\t1\r\n"
                                "There\t\t7\t8\t3\t2\r\nThere\t\t7\t8\t3\t2\r\n";
    MergedNotes merged = mergeNotes(state, files, exported, std::pair(3, 2));
    EXPECT_EQ(1, merged.added);
    EXPECT_EQ(1, merged.known);
    merged = mergeNotes(state, files, exported, {});
    EXPECT_EQ(1, merged.added);
    EXPECT_EQ(3, merged.known);
    EXPECT_EQ("Here\tone{#ENTER#}two\t5\t6\t3\t1\r\nThere\t\t7\t8\t3\t2\r\nHere\tother\t5\t6\t3\t1\r\n",
              disk.content(u"/o/Personal/Notes.txt"_s));
    int count = 0;
    QString reason;
    EXPECT_FALSE(regionMeant(state, u"Coast"_s, reason)); // of two campaigns
    EXPECT_EQ(u"There\t\t7\t8\t3\t2\r\n"_s,
              exportedNotes(state, regionMeant(state, u"3:2"_s, reason), count));

    merged = mergeNotes(state, files, "Good\t\t1\t1\t3\t1\r\nBroken\t\tx\r\n", {});
    EXPECT_EQ(1, merged.problems.size());
    EXPECT_TRUE(merged.problems.value(0).startsWith(u"line 2: "_s));
    EXPECT_EQ(3, state.Notes.count());
}

} // namespace
} // namespace orvinel
