#include "updater/Replacement.h"
#include "updater/Folders.h"

#include "base/UpdateMark.h"

#include <gtest/gtest.h>

#include <iostream>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

// A player's folder: something of nearly everything is the player's own.
MemoryDisk playersFolder() {
    MemoryDisk disk;
    Texts files = oldVersion();
    files.erase(u"Data/Characters.txt"_s);
    putAll(disk, files);
    disk.put(home + u"Personal/Notes.txt"_s, "mine");
    disk.put(home + u"Data/Options.txt"_s, "mine");
    disk.put(home + u"Data/Language.txt"_s, "old German");
    disk.put(home + u"Campaign.02.Marsh/Regions.txt"_s, "my marsh");
    return disk;
}

Replacement replacementOn(MemoryDisk& disk) {
    Package package = checkedPackage(entriesOf(newVersion()));
    UpdatePlan plan = planUpdate(disk, home, package.sums);
    return Replacement(disk, home, std::move(package), std::move(plan));
}

const Texts before = everything(playersFolder());

Texts afterwards() {
    MemoryDisk disk = playersFolder();
    Replacement replacement = replacementOn(disk);
    while (replacement.step()) {
    }
    EXPECT_FALSE(replacement.failure().has_value());
    return everything(disk);
}

TEST(Replacement, bringsTheNewVersionAndLeavesNothingBehind) {
    Texts expected = newVersion();
    expected.erase(u"Data/Characters.txt"_s);
    expected[u"update.exe"_s] = "old updater";
    expected[u"update.dat"_s] = "new updater";
    expected[u"Personal/Notes.txt"_s] = expected[u"Data/Options.txt"_s] = "mine";
    expected[u"Data/Language.txt"_s] = "new German";
    expected[u"Campaign.02.Marsh/Regions.txt"_s] = "my marsh";
    EXPECT_EQ(expected, afterwards());
}

TEST(Replacement, bringsEverythingToAnEmptyFolder) {
    MemoryDisk disk;
    disk.putFolder(u"/o"_s);
    Replacement replacement = replacementOn(disk);
    while (replacement.step()) {
    }
    EXPECT_EQ(newVersion(), everything(disk));
}

// A failure at the nth change: everything is as before, also when the disk works no more until a later start.
bool tryFailure(int nth, bool once) {
    SCOPED_TRACE(testing::Message() << "change " << nth << (once ? ", once" : ", from there on"));
    MemoryDisk disk = playersFolder();
    Replacement replacement = replacementOn(disk);
    disk.log.clear();
    disk.failAt = nth;
    disk.failOnce = once;
    while (replacement.step()) {
    }
    if (static_cast<int>(disk.log.size()) < nth)
        return false;
    disk.failAt = 0;
    if (replacement.failure()) {
        EXPECT_TRUE(once ? !replacement.leftHalf() : true);
        EXPECT_EQ(replacement.leftHalf().has_value(), isHalfUpdated(disk, home));
    }
    const bool undone = replacement.failure().has_value();
    EXPECT_FALSE(putBack(disk, home).has_value());
    removeLeftovers(disk, home);
    EXPECT_EQ(undone ? before : afterwards(), everything(disk));
    return true;
}

TEST(Replacement, takesEverythingBackWhateverFails) {
    int faults = 0;
    for (const bool once : {true, false})
        for (int nth = 1; tryFailure(nth, once) && !testing::Test::HasFailure(); ++nth)
            ++faults;
    EXPECT_LT(100, faults);
    std::cout << faults << " faults injected into an update\n";
}

// The machine goes off at a change: what is on the disk then.
MemoryDisk switchedOffAt(int nth, bool& reached) {
    MemoryDisk disk = playersFolder();
    Replacement replacement = replacementOn(disk);
    disk.log.clear();
    disk.failAt = nth;
    while (replacement.step()) {
    }
    reached = static_cast<int>(disk.log.size()) >= nth;
    disk.failAt = 0;
    return disk;
}

// While anything is neither old nor new, the player who starts the program gets it, or the repair.
void expectAWayBack(const MemoryDisk& disk) {
    const QByteArray program = disk.content(home + u"orvinel"_s);
    const bool guard = program.startsWith("#!/bin/sh");
    EXPECT_TRUE(guard || program == "old program" || program == "new program") << program.toStdString();
    if (isHalfUpdated(disk, home) || guard) {
        EXPECT_EQ("new updater", disk.content(repairingUpdater(home)));
        EXPECT_EQ("new A", disk.content(home + u"Update.tmp/repair/lib/libA.so"_s));
    }
    if (program == "old program" && disk.content(home + u"lib/libA.so"_s) != "old A") {
        EXPECT_TRUE(isHalfUpdated(disk, home));
    }
}

// Recovers; the machine goes off again at each change of that in turn.
void expectRecovery(const MemoryDisk& off, const Texts& after, int& cuts) {
    for (int nth = 1;; ++nth) {
        MemoryDisk disk = off;
        disk.log.clear();
        disk.failAt = nth;
        putBack(disk, home);
        removeLeftovers(disk, home);
        const bool reached = static_cast<int>(disk.log.size()) >= nth;
        disk.failAt = 0;
        expectAWayBack(disk);
        EXPECT_FALSE(putBack(disk, home).has_value());
        removeLeftovers(disk, home);
        const Texts now = everything(disk);
        EXPECT_TRUE(now == before || now == after) << "change " << nth << " of the recovery";
        ++cuts;
        if (!reached || testing::Test::HasFailure())
            return;
    }
}

TEST(Replacement, recoversWhereverTheMachineGoesOff) {
    const Texts after = afterwards();
    int cuts = 0;
    bool reached = true;
    for (int nth = 1; reached && !testing::Test::HasFailure(); ++nth) {
        SCOPED_TRACE(testing::Message() << "off at change " << nth);
        // The same disk, looked at before the update has tried to take itself back: its changes fail too.
        const MemoryDisk off = switchedOffAt(nth, reached);
        expectAWayBack(off);
        expectRecovery(off, after, cuts);
    }
    EXPECT_LT(400, cuts);
    std::cout << cuts << " times switched off during updates and recoveries\n";
}

TEST(Replacement, canBeEndedAtEachStep) {
    for (int steps = 0;; ++steps) {
        MemoryDisk disk = playersFolder();
        Replacement replacement = replacementOn(disk);
        bool more = true;
        for (int i = 0; i < steps && more; ++i)
            more = replacement.step();
        if (!more)
            break;
        replacement.takeBack(u"no more"_s);
        EXPECT_EQ(before, everything(disk)) << steps;
        EXPECT_FALSE(replacement.step());
    }
}

TEST(Replacement, leavesAloneWhatAJournalMayNotName) {
    MemoryDisk disk = playersFolder();
    disk.put(updateMark(home), "+../elsewhere\n");
    EXPECT_TRUE(putBack(disk, home).has_value());
    EXPECT_TRUE(isHalfUpdated(disk, home));
}

} // namespace
} // namespace orvinel
