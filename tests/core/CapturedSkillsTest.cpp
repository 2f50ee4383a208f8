#include "support/EliteWorld.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

const QString adasFile = u"/o/Personal/Char01CapElite.txt"_s;

struct Captures : testing::Test, EliteWorld {
    Captures() { file(0, "EliteList.txt", "3\t1\tA\r\n7\t1\tB\r\n120\t1\tC\r\n"); }
};

TEST_F(Captures, markingASkillRewritesTheCharactersFileInOrder) {
    disk.put(adasFile, "120\r\n0003\r\n");
    load();
    ASSERT_TRUE(captureSkill(state, files, 7, 1).saved());
    EXPECT_EQ("0003\r\n0007\r\n0120\r\n", disk.content(adasFile));
    EXPECT_EQ((std::vector<ListEntry>{{u"Bert"_s, 2}}), charactersToCapture(state, 7));
    EXPECT_EQ(0u, disk.content(u"/o/Personal/Char02CapElite.txt"_s).size());
}

TEST_F(Captures, aSaveThatFailsMarksNothing) {
    disk.put(adasFile, "0003\r\n").failAt = 1;
    load();
    EXPECT_EQ(SaveResult::Outcome::Failed, captureSkill(state, files, 7, 1).outcome);
    EXPECT_FALSE(state.EliteSkills[7].capturedBy(1));
    EXPECT_EQ(SaveResult::Outcome::Failed, captureSkill(state, files, 3, 1).outcome);
    EXPECT_TRUE(state.EliteSkills[3].capturedBy(1));
    EXPECT_EQ("0003\r\n", disk.content(adasFile));
}

TEST_F(Captures, ofSkillsThatAreNotHereTodayAreWrittenBackInOrderAndOnce) {
    disk.put(adasFile, "0500\r\n0120\r\n12345\r\n0400\r\n0500\r\n");
    load();
    ASSERT_TRUE(captureSkill(state, files, 3, 1).saved());
    EXPECT_EQ("0003\r\n0120\r\n0400\r\n0500\r\n12345\r\n", disk.content(adasFile));
    EXPECT_FALSE(disk.exists(adasFile + u".bak"_s));
}

TEST_F(Captures, aFileWithLinesThatNameNoSkillIsKeptBeforeItIsRewritten) {
    disk.put(adasFile, "3\r\n\r\nwhat\r\n-7\r\n1e99\r\n");
    load();
    ASSERT_TRUE(captureSkill(state, files, 7, 1).saved());
    EXPECT_EQ("0003\r\n0007\r\n", disk.content(adasFile));
    EXPECT_EQ("3\r\n\r\nwhat\r\n-7\r\n1e99\r\n", disk.content(adasFile + u".bak"_s));
}

TEST_F(Captures, whatStandsBesideANumberIsKeptBeforeItIsRewritten) {
    for (const char* content : {"0003 my first one\r\n", "0003\tat the ford\r\n", "3.4\r\n"}) {
        disk.put(adasFile, content);
        load();
        EXPECT_TRUE(state.EliteSkills[3].capturedBy(1));
        ASSERT_TRUE(captureSkill(state, files, 7, 1).saved());
        EXPECT_EQ("0003\r\n0007\r\n", disk.content(adasFile));
        EXPECT_EQ(content, disk.content(adasFile + u".bak"_s).toStdString());
        disk.remove(adasFile + u".bak"_s);
    }
    disk.put(adasFile, " 3 \r\n3\r\n");
    load();
    ASSERT_TRUE(captureSkill(state, files, 7, 1).saved());
    EXPECT_FALSE(disk.exists(adasFile + u".bak"_s)); // said otherwise, but nothing of it is lost
}

TEST_F(Captures, aSkillWithFiveDigitsIsRefusedForItWouldNameAnother) {
    file(1, "EliteList.txt", "10003\t1\tD\r\n");
    disk.put(adasFile, "10003\r\n");
    load();
    EXPECT_TRUE(state.EliteSkills[10003].capturedBy(1));
    const SaveResult refused = captureSkill(state, files, 10003, 2);
    EXPECT_EQ(SaveResult::Outcome::Refused, refused.outcome);
    EXPECT_FALSE(state.EliteSkills[10003].capturedBy(2));
    EXPECT_EQ(u"10003\r\n"_s, capturedFile(state, 1));
}

} // namespace
} // namespace orvinel
