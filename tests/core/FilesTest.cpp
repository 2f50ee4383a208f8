#include "app/ProgramState.h"
#include "app/modData.h"
#include "app/modLanguage.h"
#include "app/modUtility.h"
#include "base/FileDisk.h"
#include "progress/modCharacters.h"
#include "support/MemoryDisk.h"
#include "support/RecordingDesktop.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(Options, missingKeysKeepTheirDefaultsAndTheZoneStartsOnItsFirstEntry) {
    MemoryDisk disk;
    PlayerFiles files(disk);
    ProgramState state;
    state.AppPath = u"/o/"_s;
    LoadOptions(state, files);
    EXPECT_EQ(Options{}, state.AppOptions);
    disk.put(u"/o/Data/Options.txt"_s,
             "[OLD SELECTION]\r\n  Region=3.5x \r\nZone=5\r\nAllElite=0\r\nShowNotes = 0\r\n"
             "AlwaysOnTop=300\r\nRightClickNeeded=7\r\nPosX=-200\r\nregion=9\r\nCampaign=1\r\n"
             "Campaign=2\r\nCollectorLevel=1\r\nnonsense\r\n");
    LoadOptions(state, files);
    const Options expected{
        .Campaign = 2, .Region = 4, .Zone = 0, .AllElite = false, .PosX = -200, .CollectorLevel = 1};
    EXPECT_EQ(expected, state.AppOptions);
}

TEST(Options, areWrittenWholeInTheirOrder) {
    EXPECT_EQ(
        u"[OLD SELECTION]\r\nCampaign=0\r\nRegion=-1\r\nZone=-1\r\nProfession=0\r\nSecondaryProfession=0\r\n"
        "AllElite=-1\r\nCharacter=0\r\nLegend=-1\r\nPosX=-1\r\nPosY=-1\r\nDimX=-1\r\nDimY=-1\r\nShowElites="
        "1\r\n"
        "ShowCollectors=1\r\nShowGreens=1\r\nShowNotes=1\r\nLegendX=-1\r\nLegendY=-1\r\nRightClickNeeded="
        "2\r\n"
        "AlwaysOnTop=0\r\nCollectorLevel=2\r\n"_s,
        optionsFile({.Legend = true, .RightClickNeeded = 0}));
}

TEST(PlayerFiles, keepsWhatARewriteWouldLose) {
    MemoryDisk disk;
    disk.put(u"/o/Personal/Characters.txt"_s, "01\tAda\r\nbroken\r\n");
    PlayerFiles files(disk);
    ProgramState state;
    state.AppPath = u"/o/"_s;
    LoadCharacters(state, files);
    ASSERT_TRUE(SaveCharacters(state, files).saved());
    EXPECT_EQ("01\tAda\r\n", disk.content(u"/o/Personal/Characters.txt"_s));
    EXPECT_EQ("01\tAda\r\nbroken\r\n", disk.content(u"/o/Personal/Characters.txt.bak"_s));
    ASSERT_TRUE(SaveCharacters(state, files).saved());
    EXPECT_FALSE(disk.exists(u"/o/Personal/Characters.txt.bak2"_s));
}

TEST(PlayerFiles, keepsTheOldTableOfCharactersWhenALineOfItWouldNotBeWrittenAgain) {
    const QString path = u"/o/Personal/Characters.txt"_s;
    const std::pair<QByteArray, QByteArray> cases[] = {{"01\tAda\r\n01\tBert\r\n", "01\tBert\r\n"},
                                                       {"01\tAda\tof Ash\r\n", "01\tAda\r\n"},
                                                       {"01 once Ida\tAda\r\n", "01\tAda\r\n"},
                                                       {"\xEF\xBB\xBF"
                                                        "01\tAd\xE9\r\n",
                                                        "\xEF\xBB\xBF"
                                                        "01\tAd\xEF\xBF\xBD\r\n"},
                                                       {"1\tAda\r\n\r\n2\tBert", "01\tAda\r\n02\tBert\r\n"},
                                                       {"\xEF\xBB\xBF"
                                                        "01\tAd\xC3\xA9\r\n",
                                                        "01\tAd\xE9\r\n"}};
    for (size_t i = 0; i < std::size(cases); ++i) {
        const auto& [before, after] = cases[i];
        MemoryDisk disk;
        disk.put(path, before);
        PlayerFiles files(disk);
        ProgramState state;
        state.AppPath = u"/o/"_s;
        LoadCharacters(state, files);
        ASSERT_TRUE(SaveCharacters(state, files).saved());
        EXPECT_EQ(after, disk.content(path));
        EXPECT_EQ(i < 4 ? before : QByteArray(), disk.content(path + u".bak"_s)) << before.toStdString();
    }
}

TEST(PlayerFiles, refusesToSaveWhenTheOldFileCannotBeKept) {
    MemoryDisk disk;
    disk.put(u"/o/Personal/Characters.txt"_s, "broken\r\n").failAt = 1;
    PlayerFiles files(disk);
    ProgramState state;
    state.AppPath = u"/o/"_s;
    LoadCharacters(state, files);
    const SaveResult result = SaveCharacters(state, files);
    EXPECT_EQ(SaveResult::Outcome::Failed, result.outcome);
    EXPECT_EQ(u"the disk is full"_s, result.reason);
    EXPECT_EQ("broken\r\n", disk.content(u"/o/Personal/Characters.txt"_s));
}

TEST(PlayerFiles, asksBeforeReplacingWhatSomebodyElseWrote) {
    MemoryDisk disk;
    PlayerFiles files(disk);
    ASSERT_TRUE(files.save(u"/o/x"_s, u"mine"_s).saved());
    disk.put(u"/o/x"_s, "theirs");
    EXPECT_EQ(SaveResult::Outcome::ChangedOutside, files.save(u"/o/x"_s, u"mine 2"_s).outcome);
    EXPECT_EQ("theirs", disk.content(u"/o/x"_s));
    EXPECT_TRUE(files.save(u"/o/x"_s, u"mine 2"_s, true).saved());
    EXPECT_EQ("theirs", disk.content(u"/o/x.bak"_s));
}

TEST(FirstStart, bringsTheOldFilesIntoPersonal) {
    MemoryDisk disk;
    disk.put(u"/o/Data/Characters.txt"_s, "01\tAda\r\n").put(u"/o/Data/Char07CapElite.txt"_s, "0001\r\n");
    disk.put(u"/o/Data/Char08CapElite.txt"_s, "");
    ProgramState state;
    state.AppPath = u"/o/"_s;
    MoveToPersonalFolder(state, disk);
    EXPECT_EQ("01\tAda\r\n", disk.content(u"/o/Personal/Characters.txt"_s));
    EXPECT_EQ("0001\r\n", disk.content(u"/o/Personal/Char07CapElite.txt"_s));
    EXPECT_TRUE(disk.exists(u"/o/Data/Char08CapElite.txt"_s));
}

// Where the move was cut off, refused, or found a file of the folder's name.
TEST(FirstStart, whatAnEarlierOneGatheredIsNotStranded) {
    ProgramState state;
    state.AppPath = u"/o/"_s;
    MemoryDisk blocked;
    blocked.put(u"/o/Personal"_s, "a shopping list").put(u"/o/Data/Characters.txt"_s, "01\tAda\r\n");
    MoveToPersonalFolder(state, blocked);
    EXPECT_EQ("01\tAda\r\n", blocked.content(u"/o/Personal/Characters.txt"_s));
    EXPECT_EQ("a shopping list", blocked.content(u"/o/Personal.bak"_s));

    MemoryDisk refused;
    refused.put(u"/o/Personal"_s, "a shopping list").put(u"/o/Data/Characters.txt"_s, "01\tAda\r\n");
    refused.failAt = 1;
    MoveToPersonalFolder(state, refused);
    EXPECT_EQ("01\tAda\r\n", refused.content(u"/o/Data/Characters.txt"_s));

    MemoryDisk saved; // by a session after the last rename had failed
    saved.put(u"/o/Personal.new/Characters.txt"_s, "01\tAda\r\n")
        .put(u"/o/Personal.new/Char01CapElite.txt"_s, "0001\r\n");
    saved.put(u"/o/Personal/characters.txt"_s, "01\tBert\r\n");
    MoveToPersonalFolder(state, saved);
    EXPECT_EQ("01\tBert\r\n", saved.content(u"/o/Personal/Characters.txt"_s));
    EXPECT_EQ("0001\r\n", saved.content(u"/o/Personal/Char01CapElite.txt"_s));
    EXPECT_EQ("01\tAda\r\n", saved.content(u"/o/Personal.new/Characters.txt"_s));
    saved.remove(u"/o/Personal/Characters.txt"_s);
    MoveToPersonalFolder(state, saved);
    EXPECT_EQ("01\tAda\r\n", saved.content(u"/o/Personal/Characters.txt"_s));
    EXPECT_FALSE(saved.folderExists(u"/o/Personal.new"_s));
}

TEST(LoadAll, namesTheFilesThatAreTooMuch) {
    MemoryDisk disk;
    const QByteArray remarks = ";" + QByteArray(50'000, 'x') + "\r\n";
    const QByteArray half = remarks.repeated(largestDataSum / 2 / remarks.size() + 1);
    disk.put(u"/o/Campaign.01.Ash/Regions.txt"_s, "1\tCoast\r\n");
    disk.put(u"/o/Campaign.01.Ash/Zones.txt"_s, half).put(u"/o/Campaign.01.Ash/EliteLocations.txt"_s, half);
    disk.put(u"/o/Personal/Notes.txt"_s, "Gate\tb\t1\t2\t1\t1\r\n");
    PlayerFiles files(disk);
    ProgramState state;
    state.AppPath = u"/o/"_s;
    RecordingDesktop desktop;
    LoadAll(state, files, desktop);
    ASSERT_EQ(1, desktop.log.size());
    EXPECT_TRUE(desktop.log[0].endsWith(u"\n\nCampaign.01.Ash/EliteLocations.txt"_s))
        << desktop.log[0].toStdString();
    EXPECT_EQ(1, state.Notes.count());
}

TEST(LoadAll, tellsOnceWhereNothingCanBeSaved) {
    const auto told = [](std::set<QString> closed, bool started) {
        MemoryDisk disk;
        disk.put(u"/o/Data/Language.txt"_s, "219\tClosed: %1\r\n");
        if (started)
            disk.put(u"/o/Personal/Characters.txt"_s, "01\tAda\r\n");
        else
            disk.failAt = 1;
        disk.closed = std::move(closed);
        PlayerFiles files(disk);
        ProgramState state;
        state.AppPath = u"/o/"_s;
        LoadLanguage(state, disk);
        RecordingDesktop desktop;
        LoadAll(state, files, desktop);
        return desktop.log.join(u'|');
    };
    const QString closed = u"Closed: "_s;
    EXPECT_EQ(QString(), told({}, true));
    EXPECT_EQ(QString(), told({u"/o/"_s}, true)); // where both folders are the player's
    EXPECT_TRUE(told({u"/o/"_s, u"/o/Personal"_s, u"/o/Data"_s}, true).endsWith(closed + u"/o/Personal"_s));
    EXPECT_TRUE(told({u"/o/Data"_s}, true).endsWith(closed + u"/o/Data"_s));
    EXPECT_TRUE(told({u"/o/"_s}, false).endsWith(closed + u"/o/"_s));
}

TEST(FirstStart, aPendingUpdaterReplacesTheOldOne) {
    MemoryDisk disk;
    disk.put(u"/o/update.dat"_s, "new").put(u"/o/Update.exe"_s, "old");
    ProgramState state;
    state.AppPath = u"/o/"_s;
    RecordingDesktop desktop;
    InstallPendingUpdater(state, disk, desktop);
    EXPECT_EQ("new", disk.content(u"/o/update.exe"_s));
    EXPECT_EQ((QStringList{u"wait 1000"_s, u"wait 1000"_s}), desktop.log);
    disk.put(u"/o/update.dat"_s, "");
    InstallPendingUpdater(state, disk, desktop);
    EXPECT_EQ("new", disk.content(u"/o/update.exe"_s));
}

TEST(Tooltips, standAboveTheirMarkerOrWhereThereIsRoom) {
    const QSize view(400, 300);
    EXPECT_EQ(QPoint(112, 101), PlaceTooltip({100, 50}, QRect(QPoint(200, 150), QPoint(212, 162)), view));
    EXPECT_EQ(QPoint(5, 23), PlaceTooltip({100, 50}, QRect(QPoint(5, 10), QPoint(17, 22)), view));
    EXPECT_EQ(QPoint(0, 0), PlaceTooltip({500, 400}, QRect(QPoint(5, 10), QPoint(17, 22)), view));
}

TEST(FileDisk, matchesNamesWithoutRegardToCase) {
    QTemporaryDir folder;
    FileDisk disk(folder.path() + u'/');
    const QString base = folder.path();
    ASSERT_FALSE(disk.replace(base + u"/Data/a[1].txt"_s, "x"));
    EXPECT_EQ("x", disk.read(base + u"/data/A[1].TXT"_s).bytes);
    ASSERT_FALSE(disk.replace(base + u"/DATA/A[1].txt"_s, "y"));
    EXPECT_EQ("y", disk.read(base + u"/Data/a[1].txt"_s).bytes);
    EXPECT_EQ(1u, disk.list(base).size());
    EXPECT_EQ(std::vector<QString>{u"a[1].txt"_s}, disk.list(base + u"/DATA"_s));
    EXPECT_EQ(0, disk.length(base + u"/Data"_s));
    EXPECT_EQ(ReadResult::Outcome::Failed, disk.read(base + u"/Data"_s).outcome);
    EXPECT_TRUE(disk.rename(base + u"/Data/a[1].txt"_s, base + u"/data/a[1].TXT"_s));
}

TEST(FileDisk, letsASwappedInUpdaterRun) {
    QTemporaryDir folder;
    const QString base = folder.path() + u'/';
    FileDisk disk(base);
    ASSERT_FALSE(disk.replace(base + u"update.dat"_s, "#!/bin/sh\n"));
    QFile::setPermissions(base + u"update.dat"_s, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    ProgramState state;
    state.AppPath = base;
    RecordingDesktop desktop;
    disk.replace(base + u"update.exe"_s, "old");
    InstallPendingUpdater(state, disk, desktop);
    EXPECT_TRUE(QFileInfo(base + u"update.exe"_s).isExecutable());
    EXPECT_TRUE(QFile::permissions(base + u"update.exe"_s).testFlag(QFile::ExeGroup));
    EXPECT_FALSE(QFile::permissions(base + u"update.exe"_s).testFlag(QFile::ExeOther));
}

TEST(FileDisk, aFailingWriteLeavesTheOldFile) {
    QTemporaryDir folder;
    FileDisk disk(folder.path() + u'/');
    const QString path = folder.path() + u"/x.txt"_s;
    ASSERT_FALSE(disk.replace(path, "old"));
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit unlimited{};
    getrlimit(RLIMIT_FSIZE, &unlimited);
    const rlimit none{0, unlimited.rlim_max};
    setrlimit(RLIMIT_FSIZE, &none);
    const DiskError error = disk.replace(path, "new");
    setrlimit(RLIMIT_FSIZE, &unlimited);
    std::signal(SIGXFSZ, before);
    EXPECT_TRUE(error);
    EXPECT_EQ("old", disk.read(path).bytes);
    EXPECT_EQ(1u, disk.list(folder.path()).size());
}

} // namespace
} // namespace orvinel
