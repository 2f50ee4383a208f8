#include "updater/SetupPlan.h"

#include "updater/Folders.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct SetupPlanTest : testing::Test {
    MemoryDisk disk;

    SetupPlanTest() {
        putAll(disk, oldVersion());
        for (const auto& [path, content] : newVersion())
            disk.put(home + setupNewFolder + u'/' + path, content);
    }
    QByteArray written(const char* name) const {
        return disk.content(u"/o/Setup.tmp/"_s + QLatin1String(name));
    }
};

TEST_F(SetupPlanTest, writesWhatTheSetupDoesThen) {
    disk.put(u"/o/Data/Language.txt"_s, "old German");
    disk.put(u"/o/update.dat"_s, "an older updater, which the next start would swap in");
    ASSERT_EQ(std::nullopt, planSetup(disk, home));
    const QByteArray bring = written("bring.txt");
    EXPECT_TRUE(bring.endsWith("\r\nUninstall.exe\r\nData\\Installed.txt\r\n")) << bring.toStdString();
    for (const char* path :
         {"orvinel\r\n", "update.exe\r\n", "lib\\plugins\\new.so\r\n", "Data\\Language.txt\r\n"})
        EXPECT_EQ(1, bring.count(path)) << path;
    EXPECT_FALSE(bring.contains("update.dat") || bring.contains("qt.conf"));
    EXPECT_EQ("Campaign.03.Dunes\\Regions.txt\r\nlib\\libGone.so\r\nupdate.dat\r\n", written("gone.txt"));
    EXPECT_EQ("new German", disk.content(u"/o/Setup.tmp/new/Data/Language.txt"_s));
    EXPECT_EQ("old German", disk.content(u"/o/Data/Language.txt"_s)) << "planning changes nothing yet";
}

TEST_F(SetupPlanTest, saysWhatIsInTheWay) {
    disk.remove(u"/o/docs/guide.md"_s);
    disk.put(u"/o/docs/guide.md/mine.txt"_s, "mine");
    ASSERT_EQ(std::nullopt, planSetup(disk, home));
    EXPECT_EQ("docs\\guide.md\r\n", written("inTheWay.txt"));
    EXPECT_TRUE(written("bring.txt").isNull());
}

TEST_F(SetupPlanTest, failsWithoutAListOrRoom) {
    disk.failAt = static_cast<int>(disk.log.size()) + 1;
    EXPECT_NE(std::nullopt, planSetup(disk, home));
    disk.failAt = 0;
    disk.put(u"/o/Setup.tmp/new/Data/Installed.txt"_s, "no list");
    EXPECT_NE(std::nullopt, planSetup(disk, home));
}

} // namespace
} // namespace orvinel
