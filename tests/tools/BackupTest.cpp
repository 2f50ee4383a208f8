#include "tools/Backup.h"
#include "support/MemoryDisk.h"
#include "tools/TarArchive.h"
#include "tools/ZipArchive.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

const QDateTime noon(QDate(2026, 3, 7), QTime(12, 0, 0));

struct BackupTest : testing::Test {
    MemoryDisk disk;
    Backup backup{disk, u"/o/"_s, [] { return noon; }};

    BackupTest() {
        disk.put(u"/o/Personal/Characters.txt"_s, "01\tAda\r\n");
        disk.put(u"/o/Personal/Notes.txt"_s, "");
        disk.put(u"/o/Personal/kept/Char01CapElite.txt.bak"_s, QByteArray(1500, 'x'));
        disk.put(u"/o/Data/Options.txt"_s, "Campaign=1\r\n");
        disk.put(u"/o/Data/Language.txt"_s, "1\tx\r\n");
    }
    QByteArray content(const char* name) const { return disk.content(u"/o/"_s + QLatin1String(name)); }
};

TEST_F(BackupTest, bringsEverythingBackThatWasThere) {
    ASSERT_TRUE(backup.save().good);
    EXPECT_EQ(QStringList{u"orvinel-20260307-120000"_s}, backup.list());
    const Backup::Result whole = backup.verify();
    EXPECT_TRUE(whole.good);
    EXPECT_TRUE(whole.text.contains(u"Personal/kept/Char01CapElite.txt.bak"_s));
    EXPECT_FALSE(whole.text.contains(u"Language"_s));
    for (const char* name : {"/o/Personal/Characters.txt", "/o/Personal/Notes.txt",
                             "/o/Personal/kept/Char01CapElite.txt.bak", "/o/Data/Options.txt"})
        disk.remove(QString::fromLatin1(name));
    EXPECT_TRUE(backup.restore({}, false).good);
    EXPECT_EQ("01\tAda\r\n", content("Personal/Characters.txt"));
    EXPECT_TRUE(disk.exists(u"/o/Personal/Notes.txt"_s));
    EXPECT_EQ(QByteArray(1500, 'x'), content("Personal/kept/Char01CapElite.txt.bak"));
    EXPECT_EQ("Campaign=1\r\n", content("Data/Options.txt"));
}

TEST_F(BackupTest, overwritesNothingUnaskedAndKeepsWhatItReplaces) {
    ASSERT_TRUE(backup.save(u"first"_s).good);
    EXPECT_FALSE(backup.save(u"first"_s).good);
    disk.put(u"/o/Personal/Characters.txt"_s, "01\tBert\r\n");
    disk.remove(u"/o/Data/Options.txt"_s);
    const Backup::Result refused = backup.restore(u"first"_s, false);
    EXPECT_FALSE(refused.good);
    EXPECT_TRUE(refused.text.endsWith(u"\nPersonal/Characters.txt"_s));
    EXPECT_EQ("01\tBert\r\n", content("Personal/Characters.txt"));
    EXPECT_FALSE(disk.exists(u"/o/Data/Options.txt"_s));
    ASSERT_TRUE(backup.restore(u"first"_s, true).good);
    EXPECT_EQ("01\tAda\r\n", content("Personal/Characters.txt"));
    ASSERT_EQ(2, backup.list().size());
    EXPECT_TRUE(backup.restore(backup.list()[0], true).good);
    EXPECT_EQ("01\tBert\r\n", content("Personal/Characters.txt"));
}

TEST_F(BackupTest, theSecondOfASecondIsTheLatest) {
    ASSERT_TRUE(backup.save().good);
    disk.put(u"/o/Personal/Notes.txt"_s, "n");
    ASSERT_TRUE(backup.save().good);
    EXPECT_EQ(u"orvinel-20260307-120000-2"_s, backup.list().last());
    EXPECT_TRUE(backup.restore({}, false).text.startsWith(u"nothing to restore"_s));
}

TEST_F(BackupTest, isNeverHalfABackup) {
    disk.unreadable[u"/o/Personal/Notes.txt"_s] = u"input/output error"_s;
    EXPECT_EQ(u"Personal/Notes.txt: input/output error"_s, backup.save().text);
    disk.unreadable.clear();
    disk.failAt = 1;
    EXPECT_FALSE(backup.save().good);
    EXPECT_TRUE(backup.list().isEmpty());
}

TEST_F(BackupTest, aRestoreThatFailsHalfWayIsTakenBack) {
    ASSERT_TRUE(backup.save(u"first"_s).good);
    for (int failing = 1;; ++failing) {
        MemoryDisk broken = disk;
        broken.put(u"/o/Personal/Characters.txt"_s, "01\tBert\r\n").put(u"/o/Data/Options.txt"_s, "other");
        broken.remove(u"/o/Personal/Notes.txt"_s);
        broken.log.clear();
        broken.failAt = failing + 2; // the backup and the removal were changes too
        broken.failOnce = true;
        Backup there(broken, u"/o/"_s, [] { return noon; });
        if (there.restore(u"first"_s, true).good) {
            EXPECT_EQ(5, failing); // what is there, then three files
            break;
        }
        EXPECT_EQ("01\tBert\r\n", broken.content(u"/o/Personal/Characters.txt"_s)) << failing;
        EXPECT_EQ("other", broken.content(u"/o/Data/Options.txt"_s)) << failing;
        EXPECT_FALSE(broken.exists(u"/o/Personal/Notes.txt"_s)) << failing;
    }
}

TEST_F(BackupTest, everyDamageIsFound) {
    for (const QString& name : {u"a.zip"_s, u"b.tar"_s}) {
        ASSERT_TRUE(backup.save(name).good);
        const QString path = u"/o/Backups/"_s + name;
        const bool isTar = name.endsWith(u".tar"_s);
        const QByteArray whole = disk.content(path);
        int undetected = 0;
        for (qsizetype at = 0; at < whole.size(); at += isTar ? 7 : 1) {
            QByteArray damaged = whole;
            damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
            disk.put(path, damaged);
            // The padding between the files of a .tar means nothing.
            undetected += backup.verify(name).good && (!isTar || whole[at] != '\0') ? 1 : 0;
        }
        EXPECT_EQ(0, undetected) << name.toStdString();
        for (qsizetype size = 0; size < whole.size() - (isTar ? 512 : 0); size += isTar ? 256 : 1) {
            disk.put(path, whole.first(size));
            EXPECT_FALSE(backup.verify(name).good) << size;
        }
    }
}

TEST_F(BackupTest, readsWhatEarlierVersionsSaved) {
    ASSERT_TRUE(backup.save(u"old.tar"_s).good);
    EXPECT_EQ(QStringList{u"old"_s}, backup.list());
    EXPECT_FALSE(backup.save(u"old"_s).good); // a name stands for one archive
    disk.remove(u"/o/Personal/Characters.txt"_s);
    EXPECT_TRUE(backup.restore(u"old"_s, false).good);
    EXPECT_EQ("01\tAda\r\n", content("Personal/Characters.txt"));
}

TEST_F(BackupTest, anArchiveFromElsewhereCannotWriteOutsideThePlayersFiles) {
    for (const QString& name : {u"Personal/../update.exe"_s, u"/etc/x"_s, u"Data/Language.txt"_s,
                                u"Personal"_s, u"Personal/a\\b"_s, u"Personal//x"_s}) {
        const QByteArray sums =
            QByteArray("2d711642b726b04401627ca9fbac32f5c8530fb1903cc4db02258717921a4881  ") + name.toUtf8() +
            '\n';
        disk.put(u"/o/Backups/evil.tar"_s, *writeTar({{name, "x"}, {u"SHA256SUMS"_s, sums}}, noon));
        disk.put(u"/o/Backups/evil.zip"_s, writeZip({{name, "x"}, {u"SHA256SUMS"_s, sums}}, noon));
        for (const QString& archive : {u"evil.tar"_s, u"evil.zip"_s}) {
            const Backup::Result result = backup.restore(archive, true);
            EXPECT_FALSE(result.good) << name.toStdString();
            EXPECT_TRUE(result.text.contains(u"does not belong"_s)) << result.text.toStdString();
        }
    }
    EXPECT_FALSE(backup.restore(u"../Data/x"_s, true).good);
}

TEST(TarArchive, keepsLongNamesAndRefusesThoseThatDoNotFit) {
    const QString deep = u"Personal/"_s + QString(90, u'd') + u'/' + QString(90, u'f');
    const std::vector<ArchivedFile> files = {{deep, "1"}, {u"Personal/\u00e9"_s, QByteArray(512, '\0')}};
    const auto archive = writeTar(files, noon);
    ASSERT_TRUE(archive);
    EXPECT_EQ(files, readTar(*archive).files);
    EXPECT_EQ(files, readZip(writeZip(files, noon)).files);
    EXPECT_FALSE(writeTar({{QString(101, u'x'), {}}}, noon));
}

} // namespace
} // namespace orvinel
