#include "faults/Player.h"
#include "progress/CapturedSkills.h"
#include "progress/modCharacters.h"
#include "support/MemoryDisk.h"

#include <gtest/gtest.h>

#include <iostream>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int steps = 55; // every kind of save at least four times
constexpr int bulk = 40;
const QString folder = u"/o/"_s;

MemoryDisk newWorld() {
    MemoryDisk disk;
    for (const auto& [path, content] : faultWorld())
        disk.put(folder + path, content);
    return disk;
}

// Without what was put aside.
std::map<QString, QByteArray> playersFiles(const MemoryDisk& disk) {
    std::map<QString, QByteArray> files;
    for (const QString& name : disk.list(folder + u"Personal"_s))
        if (!name.endsWith(u".bak"_s))
            files[name] = disk.content(folder + u"Personal/"_s + name);
    files[u"Options.txt"_s] = disk.content(folder + u"Data/Options.txt"_s);
    return files;
}

// A game that was played up to a step, which is then tried with a disk that fails.
struct Trial {
    MemoryDisk disk = newWorld();
    Player player{disk, folder};
    std::map<QString, QByteArray> before;
    int step;

    explicit Trial(int upTo) : step(upTo) {
        for (int n = 0; n < step; ++n)
            EXPECT_TRUE(player.step(n, bulk));
        before = playersFiles(disk);
    }
    // From the n-th change of the step on, or only that one.
    bool runFailing(int nth, bool once) {
        disk.failAt = static_cast<int>(disk.log.size()) + nth;
        disk.failOnce = once;
        const bool saved = player.step(step, bulk);
        disk.failAt = 0;
        return saved;
    }
    QString reread() const {
        MemoryDisk copy = disk;
        return progressOf(Player(copy, folder).state);
    }
};

void expectOldOrNew(const Trial& trial, const std::map<QString, QByteArray>& after) {
    for (const auto& [name, content] : playersFiles(trial.disk)) {
        const auto old = trial.before.find(name);
        const auto fresh = after.find(name);
        EXPECT_TRUE((old != trial.before.end() && old->second == content) ||
                    (fresh != after.end() && fresh->second == content))
            << name.toStdString();
    }
    // What both the old and the new state have is never gone in between.
    for (const auto& [name, content] : trial.before)
        if (after.contains(name)) {
            EXPECT_TRUE(playersFiles(trial.disk).contains(name)) << name.toStdString();
        }
}

// Fails the nth change of the step; False when the step makes fewer changes.
bool tryFault(int step, int nth, bool once) {
    SCOPED_TRACE(testing::Message() << "step " << step << ", change " << nth
                                    << (once ? ", once" : ", from there on"));
    Trial whole(step);
    EXPECT_TRUE(whole.player.step(step, bulk));
    if (static_cast<int>(whole.disk.log.size()) < static_cast<int>(Trial(step).disk.log.size()) + nth)
        return false;
    Trial trial(step);
    trial.runFailing(nth, once);
    expectOldOrNew(trial, playersFiles(whole.disk));
    EXPECT_EQ(trial.reread().toStdString(), progressOf(trial.player.state).toStdString());
    // A deletion that could not even be taken back left files: they are put aside when the number is used
    // again.
    if (step % 11 == 10 && !once)
        return true;
    EXPECT_TRUE(trial.player.step(step, bulk)) << "a second try";
    EXPECT_EQ(playersFiles(whole.disk), playersFiles(trial.disk));
    return true;
}

TEST(Faults, everyChangeOfEverySaveMayFailAndNothingIsLost) {
    int faults = 0;
    for (int step = 0; step < steps && !HasFailure(); ++step)
        for (const bool once : {true, false})
            for (int nth = 1; tryFault(step, nth, once); ++nth)
                ++faults;
    EXPECT_LT(2 * steps, faults);
    std::cout << faults << " faults injected into " << steps << " saves\n";
}

// A character that could be deleted only in part leaves nothing to the next one of its number.
TEST(Faults, whatACharacterLeftBehindIsPutAside) {
    Trial trial(21); // the step before a deletion
    trial.step = 21;
    const auto named = namedCharacters(trial.player.state);
    const int number = named[named.size() / 2].data;
    EXPECT_FALSE(trial.runFailing(2, false));
    const QString captures = capturedPath(trial.player.state, number);
    ASSERT_TRUE(trial.disk.exists(captures));
    const QByteArray left = trial.disk.content(captures);
    ASSERT_TRUE(trial.player.step(22, bulk)); // a new one
    EXPECT_EQ(left, trial.disk.content(captures + u".bak"_s));
    EXPECT_EQ(trial.reread().toStdString(), progressOf(trial.player.state).toStdString());
}

} // namespace
} // namespace orvinel
