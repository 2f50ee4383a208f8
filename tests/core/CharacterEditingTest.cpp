#include "progress/CharacterEditing.h"
#include "support/EliteWorld.h"

#include <gtest/gtest.h>

#include <array>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

const QString table = u"/o/Personal/Characters.txt"_s;

QString captures(int number) {
    return u"/o/Personal/Char"_s + fixedDigits(number, 2) + u"CapElite.txt"_s;
}
QString chests(int number) {
    return u"/o/Personal/Char"_s + fixedDigits(number, 2) + u"OpenedTreasures.txt"_s;
}

// Ada has captured skill 2, Bert has opened the chest.
struct Editing : testing::Test, EliteWorld {
    Editing() {
        file(0, "EliteList.txt", "1\t1\tAmber\r\n2\t2\tBrook\r\n");
        file(1, "EliteList.txt", "3\t1\tCinder\r\n");
        disk.put(captures(1), "0002\r\n");
        disk.put(captures(2), "0001\r\n").put(chests(2), "0001\t16102011\r\n");
        load();
        Treasure chest;
        chest.OpenedOn = {{}, {}, QDate(2011, 10, 16)};
        state.Treasures.append(chest);
    }
    SaveResult create(const QString& name, SkillSelection selection, bool evenIfChanged = false) {
        CharacterEdit edit{-1, name, std::move(selection)};
        return saveCharacter(state, files, edit, evenIfChanged);
    }
};

TEST_F(Editing, namesAreNeitherBlankNorTaken) {
    const std::tuple<const char16_t*, int, NameProblem> cases[] = {
        {u"  ", -1, NameProblem::Empty}, {u"\t\n", 1, NameProblem::Empty}, {u"ADA", -1, NameProblem::Taken},
        {u"ADA", 2, NameProblem::Taken}, {u"ADA", 1, NameProblem::None},   {u" Ada", -1, NameProblem::None},
    };
    for (const auto& [name, edited, problem] : cases)
        EXPECT_EQ(problem, checkName(state, QString::fromUtf16(name), edited));
}

TEST_F(Editing, aNewCharacterTakesTheLowestFreeNumberAndAllTablesGrow) {
    ASSERT_TRUE(create(u" Cora\tof\nAsh"_s, {false, false, true, true}).saved());
    EXPECT_EQ("01\tAda\r\n02\tBert\r\n03\t Cora of Ash\r\n", disk.content(table));
    EXPECT_EQ("0002\r\n0003\r\n", disk.content(captures(3)));
    EXPECT_EQ((SkillSelection{false, false, true, true}), characterSelection(state, 3));
    EXPECT_EQ(4u, state.Treasures[1].OpenedOn.size());
    ASSERT_TRUE(deleteCharacter(state, files, 1).saved());
    EXPECT_EQ(1, freeCharacterNumber(state));
}

TEST_F(Editing, changingACharacterWritesNameAndSelection) {
    CharacterEdit edit{1, u"ADA"_s, {false, true, false, true}};
    ASSERT_TRUE(saveCharacter(state, files, edit).saved());
    EXPECT_EQ("01\tADA\r\n02\tBert\r\n", disk.content(table));
    EXPECT_EQ("0001\r\n0003\r\n", disk.content(captures(1)));
    EXPECT_FALSE(state.EliteSkills[2].capturedBy(1));
}

TEST_F(Editing, filesOfANumberWithoutACharacterArePutAside) {
    disk.put(captures(3), "0001\r\n").put(chests(3), "0001\t16102011\r\n");
    ASSERT_TRUE(create(u"Cora"_s, {}).saved());
    EXPECT_EQ("0001\r\n", disk.content(captures(3) + u".bak"_s));
    EXPECT_EQ("0001\t16102011\r\n", disk.content(chests(3) + u".bak"_s));
    EXPECT_FALSE(disk.exists(chests(3)));
    EXPECT_EQ("", disk.content(captures(3)));
}

TEST_F(Editing, aCharacterThatCannotBeSavedWholeIsNotCreated) {
    const QByteArray before = disk.content(table);
    disk.failOnce = true;
    for (disk.failAt = 1; disk.failAt <= 2; ++disk.failAt) {
        disk.log.clear();
        EXPECT_EQ(SaveResult::Outcome::Failed, create(u"Cora"_s, {false, true, true, true}).outcome);
        EXPECT_EQ(before, disk.content(table));
        EXPECT_FALSE(disk.exists(captures(3)));
        EXPECT_EQ(2, state.Characters.highest());
        EXPECT_FALSE(state.EliteSkills[1].capturedBy(3));
    }
    disk.failAt = 0;
    EXPECT_TRUE(create(u"Cora"_s, {false, true, true, true}).saved());
    EXPECT_EQ("0001\r\n0002\r\n0003\r\n", disk.content(captures(3)));
}

TEST_F(Editing, whenOnlyTheNameCannotBeSavedTheCapturesAreAsOnTheDisk) {
    disk.failAt = 2;
    CharacterEdit edit{1, u"Zoe"_s, {false, true, false, false}};
    EXPECT_EQ(SaveResult::Outcome::Failed, saveCharacter(state, files, edit).outcome);
    EXPECT_EQ(u"Ada"_s, state.Characters[1]);
    EXPECT_EQ("0001\r\n", disk.content(captures(1)));
    EXPECT_EQ((SkillSelection{false, true, false, false}), characterSelection(state, 1));
}

TEST_F(Editing, aTableThatSomebodyElseWroteIsReplacedOnlyOnDemand) {
    disk.put(table, "01\tTheirs\r\n");
    EXPECT_EQ(SaveResult::Outcome::ChangedOutside, create(u"Cora"_s, {}).outcome);
    EXPECT_FALSE(disk.exists(captures(3)));
    EXPECT_TRUE(create(u"Cora"_s, {}, true).saved());
    EXPECT_EQ("01\tTheirs\r\n", disk.content(table + u".bak"_s));
}

TEST_F(Editing, aHundredthCharacterIsRefused) {
    state.Characters.grow(mostCharacters);
    for (int n = 1; n <= mostCharacters; ++n)
        state.Characters[n] = QString::number(n);
    const SaveResult result = create(u"Cora"_s, {});
    EXPECT_EQ(SaveResult::Outcome::Refused, result.outcome);
    EXPECT_EQ(0u, disk.log.size());
}

TEST_F(Editing, deletingFreesTheNumberAndLeavesNothingBehind) {
    ASSERT_TRUE(deleteCharacter(state, files, 2).saved());
    EXPECT_EQ("01\tAda\r\n", disk.content(table));
    EXPECT_FALSE(disk.exists(captures(2)) || disk.exists(chests(2)));
    EXPECT_EQ(2, state.Characters.highest());
    EXPECT_FALSE(state.EliteSkills[1].capturedBy(2));
    EXPECT_FALSE(state.Treasures[1].openedBy(2).isValid());
    disk.put(captures(1), "");
    ASSERT_TRUE(deleteCharacter(state, files, 1).saved());
    EXPECT_TRUE(disk.exists(captures(1)));
}

TEST_F(Editing, aDeletionThatCannotBeWrittenDeletesNothing) {
    disk.failAt = 1;
    EXPECT_EQ(SaveResult::Outcome::Failed, deleteCharacter(state, files, 2).outcome);
    EXPECT_EQ(u"Bert"_s, state.Characters[2]);
    EXPECT_TRUE(disk.exists(captures(2)) && disk.exists(chests(2)));
    EXPECT_TRUE(state.EliteSkills[1].capturedBy(2) && state.Treasures[1].openedBy(2).isValid());
}

TEST_F(Editing, aDeletionThatMeetsAFileThatStaysIsTakenBack) {
    const auto onDisk = [this] {
        return std::array{disk.content(table), disk.content(captures(2)), disk.content(chests(2))};
    };
    const auto before = onDisk();
    disk.failOnce = true;
    for (const auto& [change, file] :
         {std::pair(2, u"Char02CapElite.txt"_s), std::pair(3, u"Char02OpenedTreasures.txt"_s)}) {
        disk.failAt = static_cast<int>(disk.log.size()) + change;
        EXPECT_EQ(file, deleteCharacter(state, files, 2).file);
        EXPECT_EQ(u"Bert"_s, state.Characters[2]);
        EXPECT_TRUE(state.EliteSkills[1].capturedBy(2) && state.Treasures[1].openedBy(2).isValid());
        EXPECT_EQ(before, onDisk());
    }
    EXPECT_TRUE(deleteCharacter(state, files, 2).saved());
    EXPECT_FALSE(disk.exists(captures(2)) || disk.exists(chests(2)));
}

TEST_F(Editing, aFileThatCannotBeRemovedDoesNotBecomeTheNextCharacters) {
    disk.failAt = 2; // and everything from there on: the character cannot come back either
    EXPECT_EQ(u"Char02CapElite.txt"_s, deleteCharacter(state, files, 2).file);
    EXPECT_EQ(QString(), state.Characters[2]);
    EXPECT_FALSE(state.EliteSkills[1].capturedBy(2));
    disk.failAt = 0;
    ASSERT_TRUE(create(u"Cora"_s, {}).saved());
    EXPECT_EQ("0001\r\n", disk.content(captures(2) + u".bak"_s));
    EXPECT_EQ("16102011", disk.content(chests(2) + u".bak"_s).sliced(5, 8));
}

TEST_F(Editing, theSelectionOutlivesTheFilters) {
    EXPECT_EQ((std::vector<ListEntry>{{u"Amber [W]"_s, 1}, {u"Brook [M]"_s, 2}, {u"Cinder [W]"_s, 3}}),
              editorSkillEntries(state, -1, -1));
    EXPECT_EQ((std::vector<int>{3}), dataOf(editorSkillEntries(state, 1, -1)));
    EXPECT_EQ((std::vector<int>{1}), dataOf(editorSkillEntries(state, 0, 1)));
    SkillSelection selection = characterSelection(state, 1);
    selectListed(selection, dataOf(editorSkillEntries(state, 1, -1)), true);
    EXPECT_EQ((SkillSelection{false, false, true, true}), selection);
    invertListed(selection, dataOf(editorSkillEntries(state, -1, 1)));
    EXPECT_EQ((SkillSelection{false, true, true, false}), selection);
    EXPECT_EQ((std::vector<int>{-1, 1, 2, 3}), dataOf(editorProfessionEntries(state)));
}

} // namespace
} // namespace orvinel
