#include "app/modData.h"
#include "support/EliteWorld.h"
#include "tools/atlas/AtlasData.h"
#include "tools/atlas/AtlasFolder.h"
#include "tools/atlas/AtlasModel.h"
#include "tools/atlas/AtlasPages.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::HasSubstr;
using testing::Not;

struct AtlasTest : testing::Test, EliteWorld {
    AtlasTest() {
        file(1, "EliteList.txt",
             "1\t1\tOne\tFire\tSpell\t0\t0\t5\t1/4\t0\tBurns.\r\n2\t2\tTwo\r\n3\t2\tNobody's\r\n");
        file(1, "EliteLocations.txt",
             ";[Version]1."
             "1\r\n1\t1\t50\t60\tBorg\tP\t5\r\n0\t1\t90\t90\tUlf\t\t8\r\n2\t9\t1\t1\tNowhere\t\t1\r\n");
        file(1, "Greens.txt", "Borg's Tooth\tborg\tSword\t\tSharp\r\n");
        file(1, "Collectors.txt", "1\tGnut\t0\t1\r\nBy the well\r\n5 Skins\r\nMace\t1\tBlunt\r\n\r\n");
        file(1, "CollectorsLocations.txt", "1\t1\t70\t80\t5\r\n");
        file(1, "1.jpg", "the coast");
        disk.put(u"/o/Campaign.00.Core/imgElite/0001.jpg"_s, "not the skill's: another campaign's");
        disk.put(u"/o/Campaign.01.Ash/imgElite/0001.jpg"_s, "skill");
        disk.put(u"/o/Personal/Char01CapElite.txt"_s, "0001\r\n");
        disk.put(u"/o/Personal/Notes.txt"_s, "Cave\tDark\t5\t6\t1\t1\r\n");
        loadTables(state, files);
    }

    Atlas make(AtlasChoice choice = {}) const {
        return makeAtlas(state, choice, [this](const QString& path) { return disk.length(path) > 0; });
    }
    static const AtlasPlace* find(const Atlas& atlas, const QString& name) {
        for (const AtlasRegion& region : atlas.regions)
            for (const AtlasPlace& place : region.places)
                if (place.name == name)
                    return &place;
        return nullptr;
    }
};

TEST_F(AtlasTest, showsTheRegionsThatTheWorldHas) {
    const Atlas atlas = make();
    std::vector<QString> keys;
    for (const AtlasRegion& region : atlas.regions)
        keys.push_back(region.key() + u' ' + region.name);
    EXPECT_EQ((std::vector{u"1.1 Coast"_s, u"1.2 Hills"_s, u"2.1 Shallows"_s}), keys)
        << "the menus' order names more regions than there are";
    EXPECT_EQ(u"/o/Campaign.01.Ash/1.jpg"_s, disk.resolve(atlas.regions[0].picture));
    EXPECT_TRUE(atlas.regions[1].picture.isEmpty());
    ASSERT_EQ(2u, atlas.pictures.size());
    EXPECT_EQ(u"pictures/regions/1.1.jpg"_s, atlas.pictures[0].target);
    EXPECT_EQ(u"pictures/skills/1.jpg"_s, atlas.pictures[1].target);
}

TEST_F(AtlasTest, saysWhatTheInformationWindowsSay) {
    const Atlas atlas = make();
    const AtlasPlace* boss = find(atlas, u"Borg"_s);
    ASSERT_TRUE(boss);
    EXPECT_EQ(u"Mirefen"_s, boss->zone);
    EXPECT_EQ(u"P"_s, boss->code);
    ASSERT_EQ(2u, boss->parts.size());
    EXPECT_EQ(u"One"_s, boss->parts[0].heading);
    EXPECT_THAT(boss->parts[0].facts, testing::Contains(std::pair(u"Energy"_s, u"5"_s)));
    EXPECT_THAT(boss->parts[0].facts, Not(testing::Contains(testing::Key(u"Recharge"_s))));
    EXPECT_EQ(QStringList({u"Sword"_s, u"Sharp"_s}), boss->parts[1].lines);
    EXPECT_TRUE(find(atlas, u"Ulf"_s)->parts.empty()) << "a boss without a skill";
    EXPECT_EQ(noBossGrey, find(atlas, u"Ulf"_s)->fill);
    EXPECT_FALSE(find(atlas, u"Nowhere"_s)) << "a region that is not there";
    ASSERT_EQ(1u, atlas.homeless.size());
    EXPECT_EQ(u"Nobody's"_s, atlas.homeless[0].heading);
}

TEST_F(AtlasTest, isPersonalOnlyWhereAsked) {
    EXPECT_TRUE(find(make(), u"Borg"_s)->won.isEmpty());
    EXPECT_FALSE(find(make(), u"Cave"_s));
    EXPECT_EQ(u"Captured by Ada"_s, find(make({.character = 1}), u"Borg"_s)->won);
    EXPECT_TRUE(find(make({.character = 2}), u"Borg"_s)->won.isEmpty());
    EXPECT_EQ(QStringList(u"Dark"_s), find(make({.notes = true}), u"Cave"_s)->parts.front().lines);
}

TEST_F(AtlasTest, searchesForWhoGivesAndWhoDrops) {
    const std::string rows = searchData(state, make()).toStdString();
    EXPECT_THAT(rows, HasSubstr(R"([3,"Mace","given by Gnut · 5 Skins",0,70,80,"Mirefen","Blunt"])"));
    EXPECT_THAT(rows, HasSubstr(R"([2,"Borg's Tooth","dropped by Borg",0,50,60,"Mirefen","Sword Sharp"])"));
    EXPECT_THAT(rows, HasSubstr(R"("Nobody's","",-1,)"));
}

TEST_F(AtlasTest, textsStayTextsInThePages) {
    state.Campaigns[1].Regions[1].RegionName = u"<b>\"&"_s;
    const std::string page = regionPage(state, make().regions[0]).toStdString();
    EXPECT_THAT(page, HasSubstr("<h1 class=\"name\">&lt;b&gt;&quot;&amp;</h1>"));
    EXPECT_THAT(page, Not(HasSubstr("<b>")));
}

struct AtlasFolderTest : testing::Test {
    QTemporaryDir work;
    QString out = work.path() + u"/out"_s;
    MemoryDisk disk;
    std::vector<AtlasFile> files{{u"index.html"_s, "page", {}}, {u"pictures/1.jpg"_s, {}, u"/o/1.jpg"_s}};

    AtlasFolderTest() { disk.put(u"/o/1.jpg"_s, "picture"); }

    DiskError write() const {
        return writeAtlasFolder(disk, out, files, [](int) {});
    }
    QByteArray content(const QString& name) const {
        QFile file(out + u'/' + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList beside() const {
        return QDir(work.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }
};

TEST_F(AtlasFolderTest, replacesAnEarlierAtlasWhole) {
    ASSERT_FALSE(write());
    EXPECT_EQ("picture", content(u"pictures/1.jpg"_s));
    files = {{u"index.html"_s, "new page", {}}};
    ASSERT_FALSE(write());
    EXPECT_EQ("new page", content(u"index.html"_s));
    EXPECT_FALSE(QFile::exists(out + u"/pictures"_s)) << "nothing of the old one is left";
    EXPECT_EQ(QStringList(u"out"_s), beside());
}

TEST_F(AtlasFolderTest, leavesWhatItCannotFinishAsItWas) {
    ASSERT_FALSE(write());
    files[0].bytes = "new page";
    disk.unreadable[u"/o/1.jpg"_s] = u"input/output error"_s;
    const DiskError error = write();
    ASSERT_TRUE(error);
    EXPECT_EQ(u"/o/1.jpg: input/output error"_s, QDir::fromNativeSeparators(*error));
    EXPECT_EQ("page", content(u"index.html"_s));
    EXPECT_EQ(QStringList(u"out"_s), beside());
    files.push_back({u"index.html/below a file"_s, "x", {}});
    disk.unreadable.clear();
    const DiskError unwritable = write();
    ASSERT_TRUE(unwritable) << "a file that cannot be written";
    EXPECT_TRUE(QDir::fromNativeSeparators(*unwritable).startsWith(out + u"/index.html/below a file: "_s))
        << unwritable->toStdString();
    EXPECT_EQ(QStringList(u"out"_s), beside());
}

TEST_F(AtlasFolderTest, touchesNobodyElsesFiles) {
    QDir().mkpath(out + u"/photos"_s);
    QFile photo(out + u"/photos/me.jpg"_s);
    ASSERT_TRUE(photo.open(QIODevice::WriteOnly));
    EXPECT_TRUE(write()) << "a folder that is no atlas";
    EXPECT_TRUE(photo.exists());
    QDir(out).removeRecursively();
    ASSERT_FALSE(write());
    QFile mine(out + u"/pictures/mine.txt"_s);
    ASSERT_TRUE(mine.open(QIODevice::WriteOnly));
    const DiskError error = write();
    ASSERT_TRUE(error) << "a file that somebody has put into the atlas";
    EXPECT_THAT(error->toStdString(), HasSubstr("mine.txt"));
    EXPECT_TRUE(mine.exists());
}

} // namespace
} // namespace orvinel
