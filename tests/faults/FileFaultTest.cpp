#include "base/FileDisk.h"
#include "base/PlayerFiles.h"
#include "base/SingleInstance.h"
#include "support/MemoryDisk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

const QString path = u"/o/Personal/Notes.txt"_s;

struct SavingTest : testing::Test {
    MemoryDisk disk;
    PlayerFiles files{disk};

    void load() {
        TextFile file(disk, path);
        while (file.nextLine())
            if (file.line() == u"?")
                file.skip({}, u"odd"_s);
        files.loaded(path, file);
    }
};

TEST_F(SavingTest, aChangeFromOutsideIsAskedAboutEvenWhereLinesWereSkipped) {
    disk.put(path, "?\r\n");
    load();
    disk.put(path, "theirs\r\n");
    EXPECT_EQ(SaveResult::Outcome::ChangedOutside, files.save(path, u"mine"_s).outcome);
    EXPECT_TRUE(files.save(path, u"mine"_s, true).saved());
    EXPECT_EQ("theirs\r\n", disk.content(path + u".bak"_s));
}

TEST_F(SavingTest, aFileThatCouldNotBeReadAtTheStartButCanBeNowIsAskedAbout) {
    disk.put(path, "old\r\n").unreadable[path] = u"input/output error"_s;
    load();
    disk.unreadable.clear();
    EXPECT_EQ(SaveResult::Outcome::ChangedOutside, files.save(path, u"mine"_s).outcome);
}

TEST_F(SavingTest, aFileThatCannotBeReadAnyMoreIsPutAsideFirst) {
    disk.put(path, "old\r\n");
    load();
    disk.unreadable[path] = u"input/output error"_s;
    EXPECT_TRUE(files.save(path, u"mine"_s).saved());
    EXPECT_EQ("old\r\n", disk.content(path + u".bak"_s));
}

TEST_F(SavingTest, whatWasPutAsideComesBackWhenTheSaveFails) {
    disk.put(path, "old\r\n").unreadable[path] = u"input/output error"_s;
    load();
    disk.failAt = 2; // the file is aside by then
    disk.failOnce = true;
    EXPECT_EQ(u"the disk is full"_s, files.save(path, u"mine"_s).reason);
    EXPECT_EQ("old\r\n", disk.content(path));
    EXPECT_FALSE(disk.exists(path + u".bak"_s));
    EXPECT_TRUE(files.save(path, u"mine"_s).saved());
    EXPECT_EQ("old\r\n", disk.content(path + u".bak"_s));
}

struct RealFiles : testing::Test {
    QTemporaryDir temporary;
    QString base = temporary.path() + u'/';
    FileDisk disk{base};

    QByteArray content(const QString& name) const {
        QFile file(base + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }
    void write(const QString& name, const QByteArray& bytes) const {
        QFile file(base + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    mode_t mode(const QString& name) const {
        struct stat status = {};
        ::stat(QFile::encodeName(base + name).constData(), &status);
        return status.st_mode & 07777;
    }
};

TEST_F(RealFiles, keepTheirPermissions) {
    write(u"a"_s, "old");
    for (const mode_t wanted : {0600u, 0664u, 0640u}) {
        ::chmod(QFile::encodeName(base + u'a').constData(), wanted);
        ASSERT_FALSE(disk.replace(base + u'a', "new"));
        EXPECT_EQ(wanted, mode(u"a"_s));
    }
    const mode_t mask = ::umask(022);
    ASSERT_FALSE(disk.replace(base + u'b', "new"));
    ::umask(mask);
    EXPECT_EQ(0644u, mode(u"b"_s));
}

TEST_F(RealFiles, areWrittenThroughSymbolicLinks) {
    QDir(base).mkpath(u"elsewhere"_s);
    write(u"elsewhere/real"_s, "old");
    ASSERT_TRUE(QFile::link(u"elsewhere/real"_s, base + u"link"_s));
    ASSERT_TRUE(QFile::link(u"link"_s, base + u"second"_s));
    ASSERT_TRUE(QFile::link(u"elsewhere/fresh"_s, base + u"dangling"_s));
    ASSERT_FALSE(disk.replace(base + u"second"_s, "new"));
    EXPECT_EQ("new", content(u"elsewhere/real"_s));
    ASSERT_FALSE(disk.replace(base + u"dangling"_s, "made"));
    EXPECT_EQ("made", content(u"elsewhere/fresh"_s));
    for (const QString& name : {u"link"_s, u"second"_s, u"dangling"_s})
        EXPECT_TRUE(QFileInfo(base + name).isSymLink()) << name.toStdString();
    ASSERT_TRUE(QFile::link(u"loop"_s, base + u"loop"_s));
    EXPECT_TRUE(disk.replace(base + u"loop"_s, "new"));
}

TEST_F(RealFiles, haveTheirFolderMadeAgain) {
    ASSERT_FALSE(disk.replace(base + u"Personal/x"_s, "1"));
    ASSERT_TRUE(QDir(base + u"Personal"_s).removeRecursively());
    ASSERT_FALSE(disk.replace(base + u"Personal/x"_s, "2"));
    EXPECT_EQ("2", content(u"Personal/x"_s));
    write(u"file"_s, "in the way");
    EXPECT_TRUE(disk.replace(base + u"file/x"_s, "3"));
}

TEST_F(RealFiles, areReplacedThoughASaveWasCutOffBefore) {
    write(u"x"_s, "old");
    write(u"x"_s + unfinishedSuffix, QByteArray(5000, '?'));
    ASSERT_FALSE(disk.replace(base + u'x', "new"));
    EXPECT_EQ("new", content(u"x"_s));
    EXPECT_EQ(1u, disk.list(base).size());
    QDir(base).mkpath(u"folder"_s);
    EXPECT_TRUE(disk.replace(base + u"folder"_s, "new"));
}

// Many pairs of processes ask at the same instant for the right to run.
TEST(Starts, ofTwoAtTheSameInstantExactlyOneRuns) {
    const QTemporaryDir folder;
    for (int round = 0; round < 50; ++round) {
        int gate[2];
        int answers[2];
        ASSERT_TRUE(::pipe(gate) == 0 && ::pipe(answers) == 0);
        pid_t children[2] = {};
        for (pid_t& child : children)
            if ((child = ::fork()) == 0) {
                char byte = 0;
                ::close(gate[1]);
                ::close(answers[0]);
                (void)!::read(gate[0], &byte, 1); // until the gate opens
                const SingleInstance instance(folder.path() + u'/');
                (void)!::write(answers[1], instance.first() ? "1" : "0", 1);
                ::pause(); // as long as the other one may still be asking
                ::_exit(0);
            }
        ::close(gate[0]);
        ::close(gate[1]);
        char said[2] = {};
        EXPECT_EQ(1, ::read(answers[0], &said[0], 1));
        EXPECT_EQ(1, ::read(answers[0], &said[1], 1));
        EXPECT_EQ('0' + '1', said[0] + said[1]) << round;
        ::close(answers[0]);
        ::close(answers[1]);
        for (const pid_t child : children) {
            ::kill(child, SIGKILL);
            ::waitpid(child, nullptr, 0);
        }
    }
}

} // namespace
} // namespace orvinel
