#include "app/ProgramState.h"
#include "app/modData.h"
#include "app/modLanguage.h"
#include "fuzz/HostileWorld.h"
#include "layers/modNotes.h"
#include "support/MemoryDisk.h"
#include "support/RecordingDesktop.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <sys/resource.h>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;
namespace {

// Pieces that readers decide on.
const std::array<QByteArray, 24> pieces = {
    "\t",   "\r\n",         "\r",       "\n",          ";",          "0",   "-1", "65536",
    "256",  "1e9",          "&HFF&",    "&H",          "\\n",        "=",   "/",  "{#ENTER#}",
    "\x81", "\xEF\xBB\xBF", "\xFF\xFE", "99999999999", ";[Version]", "0.5", "  ", QByteArray(1, '\0')};

// The same texts every time.
class Mutator {
  public:
    QByteArray mutated(QByteArray bytes) {
        for (int i = 1 + below(6); i > 0; --i)
            mutateOnce(bytes);
        return bytes;
    }

  private:
    int below(qsizetype limit) {
        return static_cast<int>(random_() % static_cast<quint32>(std::max<qsizetype>(1, limit)));
    }

    void mutateOnce(QByteArray& bytes) {
        const int at = below(bytes.size() + 1);
        switch (below(6)) {
        case 0:
            bytes.insert(at, pieces[static_cast<size_t>(below(pieces.size()))]);
            break;
        case 1:
            bytes.replace(at, 1 + below(4), pieces[static_cast<size_t>(below(pieces.size()))]);
            break;
        case 2:
            bytes.remove(at, 1 + below(8));
            break;
        case 3:
            bytes.truncate(at);
            break;
        case 4:
            bytes.insert(at, bytes.mid(below(bytes.size()), below(40)));
            break;
        default:
            if (at < bytes.size())
                bytes[at] = static_cast<char>(below(256));
        }
    }

    std::mt19937 random_{20260307};
};

TEST(HostileData, mutatedFilesBreakNothing) {
    constexpr int perFile = 130;
    constexpr int looksAround = 26; // that take longer
    Mutator mutator;
    for (const HostileFile& file : hostileFiles())
        for (int i = 0; i < perFile; ++i) {
            const QByteArray bytes = mutator.mutated(file.good);
            if (i % looksAround != 0)
                readAlone(file, bytes);
            else
                EXPECT_EQ("", startWith(file, bytes).toStdString())
                    << file.reader << ": " << bytes.toPercentEncoding().toStdString();
        }
}

TEST(HostileData, listsEndWhereNoWorldNeedsThem) {
    MemoryDisk disk;
    disk.put(u"/o/Personal/Notes.txt"_s, QByteArray("a\t\t0\t0\t0\t0\n").repeated(66'000));
    disk.put(u"/o/Campaign.01.Ash/Greens.txt"_s,
             "Ring\tUlf" + QByteArray("\t").repeated(300) + "\nBow\tUlf\n");
    ProgramState state;
    state.AppPath = u"/o/"_s;
    PlayerFiles files(disk);
    loadTables(state, files);
    EXPECT_EQ(largestIdentifier, state.Notes.count());
    EXPECT_EQ(2, state.GreenItems.count());
    EXPECT_LE(state.GreenItems[1].Stats.size(), 253u);
    ASSERT_TRUE(SaveNotes(state, files).saved());
    EXPECT_TRUE(disk.exists(u"/o/Personal/Notes.txt.bak"_s)); // the notes that found no room
}

TEST(HostileData, longLinesArePassedOverAndNoNoteGrowsThatLong) {
    MemoryDisk disk;
    const QByteArray texts(longestLine, 'x');
    disk.put(u"/o/Personal/Notes.txt"_s, "a\t" + texts + "\t0\t0\t0\t0\nb\t\t0\t0\t0\t0\n");
    ProgramState state;
    state.AppPath = u"/o/"_s;
    PlayerFiles files(disk);
    loadTables(state, files);
    ASSERT_EQ(1, state.Notes.count());
    NoteEdit edit{1, u"b"_s, QString(longestLine, u'\n'), 0, 0, 0, 0};
    EXPECT_EQ(u"the note is too long"_s, storeNote(state, files, edit).reason);
    edit.body = u"short"_s;
    ASSERT_TRUE(storeNote(state, files, edit).saved());
    EXPECT_TRUE(disk.exists(u"/o/Personal/Notes.txt.bak"_s)); // the long one
}

TEST(HostileData, manyLargeFilesAreLeftOutTogetherAndToldOnce) {
    MemoryDisk disk;
    const QByteArray comments = QByteArray(";").repeated(99'999) + '\n';
    for (const char* name :
         {"Campaign.01.A/Zones.txt", "Campaign.01.A/Greens.txt", "Campaign.02.B/Greens.txt"})
        disk.put(u"/o/"_s + QString::fromLatin1(name), comments.repeated(100));
    const QString notes = u"/o/Personal/Notes.txt"_s;
    disk.put(notes, "a\tdeep\t1\t1\t1\t1\n" + comments.repeated(100));
    disk.put(u"/o/Personal/Characters.txt"_s, "01\tAda\r\n");
    const QByteArray before = disk.content(notes);
    ProgramState state;
    state.AppPath = u"/o/"_s;
    PlayerFiles files(disk);
    RecordingDesktop desktop;
    LoadAll(state, files, desktop);
    EXPECT_EQ(1, desktop.log.size());
    EXPECT_TRUE(desktop.log[0].contains(u"larger than"_s));
    EXPECT_EQ(u"Ada"_s, state.Characters[1]);
    EXPECT_EQ(0, state.Notes.count());
    // Notes that were not read are not taken for none: nobody replaces them unasked, and then they are kept.
    EXPECT_EQ(SaveResult::Outcome::ChangedOutside, SaveNotes(state, files).outcome);
    ASSERT_TRUE(SaveNotes(state, files, true).saved());
    EXPECT_EQ(before, disk.content(notes + u".bak"_s));
}

// In kB; what the process has held at most so far.
long peakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

TEST(HostileData, longFilesDoNotMultiplyEachOther) {
    constexpr int lines = 20'000;
    MemoryDisk disk;
    disk.put(u"/o/Campaign.01.Ash/EliteLocations.txt"_s,
             QByteArray("0\t1\t9\t9\tUlf\t\t5\r\n").repeated(lines));
    disk.put(u"/o/Campaign.01.Ash/Greens.txt"_s, QByteArray("Ring\tUlf\r\n").repeated(lines));
    const long before = peakMemory();
    ProgramState state;
    state.AppPath = u"/o/"_s;
    PlayerFiles files(disk);
    loadTables(state, files);
    EXPECT_EQ(lines, state.EliteSkills[0].Locations.count());
    EXPECT_GT(200'000, peakMemory() - before);
}

TEST(HostileData, oneLineWithTheHighestNumberDoesNotEatTheMemory) {
    MemoryDisk disk;
    disk.put(u"/o/Data/Language.txt"_s, "65535\tx\r\n");
    for (const char* folder : {"/o/Campaign.00.A/", "/o/Campaign.04.B/"}) {
        const QString at = QString::fromLatin1(folder);
        disk.put(at + u"EliteList.txt"_s, "65535\t255\tSpark\r\n");
        disk.put(at + u"Collectors.txt"_s, "65535\tSmith\t1\r\nx\r\n1 y\r\n");
        disk.put(at + u"PetsList.txt"_s, "65535\tWolf\tx\r\n");
        disk.put(at + u"Regions.txt"_s, "255\tFar\r\n");
        disk.put(at + u"Professions.txt"_s, "255\tMage\t1\tM\r\n");
    }
    disk.put(u"/o/Personal/Characters.txt"_s, "99\tAda\r\n");
    const long before = peakMemory();
    ProgramState state;
    state.AppPath = u"/o/"_s;
    PlayerFiles files(disk);
    LoadLanguage(state, disk);
    loadTables(state, files);
    EXPECT_EQ(65535, state.EliteSkills.highest());
    EXPECT_GT(300'000, peakMemory() - before);
}

} // namespace
} // namespace orvinel
