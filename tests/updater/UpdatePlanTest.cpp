#include "updater/UpdatePlan.h"
#include "updater/Folders.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct UpdatePlanTest : testing::Test {
    MemoryDisk disk;
    FileSums sums = *readInstalledList(newVersion().at(installedListPath));

    UpdatePlanTest() {
        putAll(disk, oldVersion());
        put("Personal/Notes.txt", "mine");
    }
    void put(const char* path, const QByteArray& content) { disk.put(home + QLatin1String(path), content); }
    UpdatePlan plan() { return planUpdate(disk, home, sums); }
    // Where the plan brings the file from; null when it does not.
    QString from(const UpdatePlan& plan, const char* path) const {
        const auto found = plan.bring.find(QString::fromLatin1(path));
        return found == plan.bring.end() ? QString() : found->second;
    }
};

TEST_F(UpdatePlanTest, followsTheNewVersionWhereNothingIsThePlayers) {
    const UpdatePlan plan = this->plan();
    for (const char* path :
         {"orvinel", "lib/libA.so", "lib/plugins/new.so", "docs/guide.md", "Campaign.01.Vale/Regions.txt",
          "Campaign.04.Peaks/Regions.txt", "Data/Language.txt", "Data/Languages/Italiano.txt",
          "Data/Installed.txt", "Data/Version.txt"})
        EXPECT_EQ(QString::fromLatin1(path), from(plan, path)) << path;
    EXPECT_EQ(u"update.exe"_s, from(plan, "update.dat"));
    for (const char* path : {"update.exe", "qt.conf", "Campaign.01.Vale/01.jpg", "Data/Characters.txt"})
        EXPECT_TRUE(from(plan, path).isNull()) << path << " is as it should be, or the player's";
    EXPECT_EQ((std::vector<QString>{u"Campaign.03.Dunes/Regions.txt"_s, u"lib/libGone.so"_s}), plan.gone);
    EXPECT_TRUE(plan.kept.isEmpty());
}

TEST_F(UpdatePlanTest, keepsCampaignsThatThePlayerHasTouchedWhole) {
    put("Campaign.01.Vale/Regions.txt", "my vale");
    put("Campaign.02.Marsh/added.jpg", "mine");
    disk.remove(u"/o/Campaign.03.Dunes/Regions.txt"_s);
    put("Campaign.04.Mine/Regions.txt", "mine");
    const UpdatePlan plan = this->plan();
    for (const auto& [to, from] : plan.bring)
        EXPECT_FALSE(to.startsWith(u"Campaign."_s)) << to.toStdString();
    EXPECT_EQ(std::vector<QString>{u"lib/libGone.so"_s}, plan.gone);
    EXPECT_EQ((QStringList{u"Campaign.01.Vale"_s, u"Campaign.02.Marsh"_s, u"Campaign.03.Dunes"_s,
                           u"Campaign.04.Mine"_s}),
              plan.kept);
}

// The world in other languages lies beside it, and players copy it over the campaigns.
struct TranslatedWorldTest : UpdatePlanTest {
    Texts old = oldVersion();
    Texts fresh = newVersion();

    TranslatedWorldTest() {
        add(old, "old ");
        add(fresh, "new ");
        fresh[u"Data/Worlds/Deutsch/Campaign.01.Vale/Pets.txt"_s] = "neue Tiere";
        fresh[u"Campaign.01.Vale/Pets.txt"_s] = "new pets";
        old.erase(u"Data/Version.txt"_s);
        fresh.erase(u"Data/Version.txt"_s);
        old.erase(installedListPath);
        fresh.erase(installedListPath);
        old = packaged(old, "4.0.0");
        fresh = packaged(fresh, "4.1.0");
        sums = *readInstalledList(fresh.at(installedListPath));
        putAll(disk, old);
    }
    // "Same.txt" is alike in all languages of the old version, and no more in the new one.
    static void add(Texts& texts, const QByteArray& age) {
        for (const char* at : {"", "Data/Worlds/Deutsch/", "Data/Worlds/Italiano/"}) {
            const QString vale = QLatin1String(at) + u"Campaign.01.Vale/"_s;
            texts[vale + u"Elites.txt"_s] = age + at;
            texts[vale + u"Same.txt"_s] = age == "old " ? "same" : age + at;
        }
        texts[u"Campaign.01.Vale/Gone.txt"_s] = "in the old one only";
        if (age == "old ")
            texts[u"Data/Worlds/Deutsch/Campaign.01.Vale/Gone.txt"_s] = "nur im alten";
        else
            texts.erase(u"Campaign.01.Vale/Gone.txt"_s);
    }
    void copy(const char* language, const char* name) {
        const QString path = u"Campaign.01.Vale/"_s + QLatin1String(name);
        disk.put(home + path, old.at(u"Data/Worlds/"_s + QLatin1String(language) + u'/' + path));
    }
    // The language in which the plan brings a file of the campaign.
    QString language(const UpdatePlan& plan, const char* name) {
        const QString path = from(plan, (QByteArray("Campaign.01.Vale/") + name).constData());
        return path.startsWith(u"Data/Worlds/"_s) ? path.section(u'/', 2, 2) : path.section(u'/', 0, 0);
    }
};

TEST_F(TranslatedWorldTest, followsInItsLanguageAndBringsNewFilesInIt) {
    for (const char* name : {"Elites.txt", "Same.txt", "Gone.txt"})
        copy("Deutsch", name);
    const UpdatePlan plan = this->plan();
    EXPECT_EQ(QStringList(), plan.kept);
    for (const char* name : {"Elites.txt", "Same.txt", "Pets.txt"})
        EXPECT_EQ(u"Deutsch"_s, language(plan, name)) << name;
    EXPECT_EQ(u"Campaign.01.Vale"_s, language(plan, "Regions.txt"));
    EXPECT_EQ(1, std::count(plan.gone.begin(), plan.gone.end(), u"Campaign.01.Vale/Gone.txt"_s))
        << "else the campaign would be the player's from the next update on";
}

TEST_F(TranslatedWorldTest, followsFileByFileWhereOnlySomeWereCopied) {
    copy("Italiano", "Elites.txt");
    copy("Deutsch", "Gone.txt");
    const UpdatePlan plan = this->plan();
    EXPECT_EQ(QStringList(), plan.kept);
    EXPECT_EQ(u"Italiano"_s, language(plan, "Elites.txt"));
    EXPECT_EQ(u"Italiano"_s, language(plan, "Same.txt")) << "all that there was in Italian is there";
    put("Campaign.01.Vale/Same.txt", "mine");
    EXPECT_EQ(QStringList{u"Campaign.01.Vale"_s}, this->plan().kept);
}

TEST_F(TranslatedWorldTest, becomesTheOriginalWhereTheNewVersionHasNotTheLanguage) {
    copy("Italiano", "Elites.txt");
    std::erase_if(sums, [](const auto& entry) { return entry.first.startsWith(u"Data/Worlds/Italiano/"_s); });
    EXPECT_EQ(u"Campaign.01.Vale"_s, language(plan(), "Elites.txt"));
}

TEST_F(TranslatedWorldTest, staysAsItIsWhenTheVersionIsTheSame) {
    copy("Italiano", "Elites.txt");
    sums = *readInstalledList(old.at(installedListPath));
    const UpdatePlan plan = this->plan();
    EXPECT_EQ(QString(), language(plan, "Elites.txt"));
    EXPECT_EQ(QStringList(), plan.kept);
}

TEST_F(UpdatePlanTest, letsTheChosenLanguageFollowAndKeepsAnOwnOne) {
    put("Data/Language.txt", "old German");
    put("Data/Languages/Deutsch.txt", "my German");
    put("Data/Languages/Latina.txt", "mine");
    UpdatePlan plan = this->plan();
    EXPECT_EQ(u"Data/Languages/Deutsch.txt"_s, from(plan, "Data/Language.txt"));
    EXPECT_TRUE(from(plan, "Data/Languages/Deutsch.txt").isNull());
    EXPECT_EQ(QStringList{u"Data/Languages/Deutsch.txt"_s}, plan.kept);
    put("Data/Language.txt", "my own");
    plan = this->plan();
    EXPECT_TRUE(from(plan, "Data/Language.txt").isNull());
    EXPECT_TRUE(plan.kept.contains(u"Data/Language.txt"_s));
}

TEST_F(UpdatePlanTest, replacesNothingOfDoubtWithoutAnOldList) {
    disk.remove(u"/o/Data/Installed.txt"_s);
    const UpdatePlan plan = this->plan();
    EXPECT_FALSE(from(plan, "lib/libA.so").isNull());
    EXPECT_TRUE(from(plan, "Campaign.01.Vale/Regions.txt").isNull());
    EXPECT_TRUE(from(plan, "Data/Language.txt").isNull());
    EXPECT_TRUE(plan.gone.empty());
    EXPECT_TRUE(plan.kept.contains(u"Data/Language.txt"_s));
}

TEST_F(UpdatePlanTest, bringsTheFirstCharactersOnlyBeforeTheFirstStart) {
    sums[u"Data/Char01CapElite.txt"_s] = QByteArray(64, '0');
    for (const char* path : {"Data/Characters.txt", "Data/Char01CapElite.txt"}) {
        put("Personal/Notes.txt", "mine");
        EXPECT_TRUE(from(plan(), path).isNull()) << path;
        disk.remove(u"/o/Personal/Notes.txt"_s);
        disk.removeFolder(u"/o/Personal"_s);
        EXPECT_FALSE(from(plan(), path).isNull()) << path;
    }
}

TEST_F(UpdatePlanTest, swapsInNoUpdaterOlderThanTheOneThere) {
    put("update.exe", "new updater");
    put("update.dat", "an older one");
    const UpdatePlan plan = this->plan();
    EXPECT_TRUE(from(plan, "update.dat").isNull());
    EXPECT_EQ(u"update.dat"_s, plan.gone.front());
}

TEST_F(UpdatePlanTest, refusesWhereAFolderIsInTheWay) {
    disk.remove(u"/o/docs/guide.md"_s);
    put("docs/guide.md/mine.txt", "mine");
    EXPECT_EQ(u"docs/guide.md"_s, plan().inTheWay);
}

// What the package does not bring to the folder stays, whatever its list says.
TEST_F(UpdatePlanTest, neverTouchesWhatIsThePlayers) {
    put("Data/Options.txt", "mine");
    sums[u"Data/Options.txt"_s] = sums[u"Personal/Notes.txt"_s] = sums[u"Backups/a.zip"_s] =
        QByteArray(64, '0');
    const UpdatePlan plan = this->plan();
    for (const char* path : {"Data/Options.txt", "Personal/Notes.txt", "Backups/a.zip"})
        EXPECT_TRUE(from(plan, path).isNull()) << path;
}

} // namespace
} // namespace orvinel
