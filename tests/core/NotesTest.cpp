#include "app/ProgramState.h"
#include "layers/modNotes.h"
#include "support/MemoryDisk.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct NoteBook : testing::Test {
    MemoryDisk disk;
    PlayerFiles files{disk};
    ProgramState state;
    const QString path = u"/o/Personal/Notes.txt"_s;

    NoteBook() { state.AppPath = u"/o/"_s; }
    void put(const QByteArray& content) {
        disk.put(path, content);
        LoadNotes(state, files);
    }
    QString listed(const NoteChoice& choice) const {
        QString indexes;
        for (const ListEntry& entry : noteEntries(state, choice))
            indexes += QString::number(entry.data);
        return indexes;
    }
};

TEST_F(NoteBook, isReadAsItWasWritten) {
    const char* content =
        "Merchant\tSells dyes{#ENTER#}open at night\t412\t233\t1\t5\r\nb\t \t-3\t0\t255\t0\r\n";
    put(content);
    ASSERT_EQ(2, state.Notes.count());
    EXPECT_EQ(u"Sells dyes\r\nopen at night"_s, state.Notes[1].Body);
    EXPECT_EQ((HitArea{405, 226, 419, 240, 1, 0}), noteHitAreas(state, std::vector<int>{1}, {1, 5, 9})[0]);
    EXPECT_EQ(content, notesFile(state).toStdString());
}

TEST_F(NoteBook, linesThatAreNoNotesLeaveABackup) {
    const QByteArray broken =
        "a\tb\t1\t2\t3\r\na\tb\t1\t2\t3\t4\t5\r\na\tb\t1\t2\t300\t4\r\n\tb\t1\t2\t3\t4\r\n";
    put(broken + " Kept \tb\t1x\t2.5\t3\t4\r\n");
    ASSERT_EQ(1, state.Notes.count());
    EXPECT_EQ(u"Kept"_s, state.Notes[1].ShortDesc);
    EXPECT_EQ(QPoint(1, 2), QPoint(state.Notes[1].At.X, state.Notes[1].At.Y));
    ASSERT_TRUE(SaveNotes(state, files).saved());
    EXPECT_TRUE(disk.content(path + u".bak"_s).startsWith(broken));
}

TEST_F(NoteBook, textBehindAPlacesNumberLeavesABackup) {
    const QByteArray pointed = "Gate\tb\t12 or so\t-2\t3\t4\r\n";
    put(pointed);
    ASSERT_TRUE(SaveNotes(state, files).saved());
    EXPECT_EQ("Gate\tb\t12\t-2\t3\t4\r\n", disk.content(path));
    EXPECT_EQ(pointed, disk.content(path + u".bak"_s));
}

TEST_F(NoteBook, commentsAndEmptyLinesLeaveNoBackup) {
    put(";x\ty\r\n\r\n  \r\n  ; z\r\nTitle\t\t1\t2\t3\t4");
    ASSERT_TRUE(SaveNotes(state, files).saved());
    EXPECT_EQ("Title\t\t1\t2\t3\t4\r\n", disk.content(path));
    EXPECT_FALSE(disk.exists(path + u".bak"_s));
}

TEST_F(NoteBook, isListedByTitleAndSearchedInBothTexts) {
    put("zoo\tEast Gate\t1\t1\t1\t1\r\nApple\twest\t1\t1\t1\t2\r\nbee\tgate\t1\t1\t2\t1\r\n");
    const std::vector<std::pair<NoteChoice, QString>> cases = {
        {{}, u"231"_s},
        {{{1, 0, 0}, {}, {}}, u"21"_s},
        {{{1, 2, 1}, {}, {}}, u"2"_s},
        {{{}, u"  ZO "_s, {}}, u"1"_s},
        {{{}, {}, u" GATE"_s}, u"31"_s},
        {{{}, u"b"_s, u"gate"_s}, u"3"_s},
        {{{}, u"b"_s, u"west"_s}, u""_s},
    };
    for (size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(cases[i].second, listed(cases[i].first)) << "case " << i;
}

TEST_F(NoteBook, isDrawnInListOrderOnItsRegionWhateverTheZone) {
    put("b\t\t10\t10\t1\t1\r\na\t\t12\t10\t1\t1\r\nc\t\t12\t10\t1\t2\r\n");
    const std::vector<int> order = {2, 1, 3, 7};
    EXPECT_EQ((std::vector<Marker>{Marker::picture(Sprite::Note, 5, 3), Marker::picture(Sprite::Note, 3, 3)}),
              noteMarkers(state, order, {1, 1, 44}));
    const HitIndex index(noteHitAreas(state, order, {1, 1, 44}));
    EXPECT_EQ(2, index.first({11, 10})->id);
    EXPECT_EQ(1, index.first({3, 10})->id);
    EXPECT_FALSE(index.first({2, 10}));
}

TEST_F(NoteBook, aNewNoteIsStoredAsTheFileCanHoldIt) {
    NoteEdit edit{-1, u" My\ttitle\r\nhere "_s, u" one\ntwo\rthree\r\n\u2028\tfour  "_s, 1, 5, 40, 50};
    ASSERT_TRUE(storeNote(state, files, edit).saved());
    EXPECT_EQ(1, edit.index);
    EXPECT_EQ("My title here\tone{#ENTER#}two{#ENTER#}three{#ENTER#}{#ENTER#} four\t40\t50\t1\t5\r\n",
              disk.content(path));
    const List1<Note> stored = state.Notes;
    LoadNotes(state, files);
    EXPECT_EQ(stored, state.Notes);
    EXPECT_EQ(u"1"_s, listed({{}, u"TITLE"_s, {}}));
}

TEST_F(NoteBook, aChangedNoteKeepsItsPlaceAndIsSortedAnew) {
    put("a\told\t10\t11\t1\t1\r\nb\t\t12\t10\t1\t1\r\n");
    NoteEdit edit{1, u"c"_s, u"new"_s, 2, 3, 900, 900};
    ASSERT_TRUE(storeNote(state, files, edit).saved());
    EXPECT_EQ("c\tnew\t10\t11\t2\t3\r\nb\t\t12\t10\t1\t1\r\n", disk.content(path));
    EXPECT_EQ(u"21"_s, listed({}));
    EXPECT_EQ(u"1"_s, listed({{}, {}, u"new"_s}));
}

TEST_F(NoteBook, aDeletedNoteLeavesItsSlot) {
    put("a\tx\t10\t11\t1\t1\r\nb\ty\t12\t10\t1\t1\r\n");
    ASSERT_TRUE(deleteNote(state, files, 1).saved());
    EXPECT_EQ("b\ty\t12\t10\t1\t1\r\n", disk.content(path));
    EXPECT_EQ(u"2"_s, listed({}));
    EXPECT_EQ(2, state.Notes.count());
}

TEST_F(NoteBook, aFailedSaveChangesNothing) {
    put("a\tx\t10\t11\t1\t1\r\n");
    const List1<Note> before = state.Notes;
    disk.failAt = 1;
    NoteEdit edit{-1, u"new"_s, {}, 1, 1, 1, 1};
    EXPECT_EQ(u"the disk is full"_s, storeNote(state, files, edit).reason);
    EXPECT_EQ(SaveResult::Outcome::Failed, deleteNote(state, files, 1).outcome);
    EXPECT_EQ(-1, edit.index);
    EXPECT_EQ(before, state.Notes);
    EXPECT_EQ(u"1"_s, listed({}));
}

TEST_F(NoteBook, theOtherWritersNotesAreNotReplacedUnasked) {
    put("a\tx\t10\t11\t1\t1\r\n");
    disk.put(path, "theirs\t\t1\t1\t1\t1\r\n");
    EXPECT_EQ(SaveResult::Outcome::ChangedOutside, deleteNote(state, files, 1).outcome);
    EXPECT_EQ(u"1"_s, listed({}));
    EXPECT_TRUE(deleteNote(state, files, 1, true).saved());
    EXPECT_EQ("theirs\t\t1\t1\t1\t1\r\n", disk.content(path + u".bak"_s));
}

TEST(NoteTitles, thatCouldNotBeReadBackAreRefused) {
    EXPECT_EQ(NoteProblem::EmptyTitle, checkNote(u" \t\n "_s));
    EXPECT_EQ(NoteProblem::CommentTitle, checkNote(u"  ;x"_s));
    EXPECT_EQ(NoteProblem::None, checkNote(u"x;"_s));
}

} // namespace
} // namespace orvinel
