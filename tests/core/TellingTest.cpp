#include "app/Opening.h"
#include "app/ProgramState.h"
#include "app/Saving.h"
#include "app/modLanguage.h"
#include "support/MemoryDisk.h"
#include "support/RecordingDesktop.h"

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;
using Outcome = SaveResult::Outcome;

struct Telling : testing::Test {
    ProgramState state;
    RecordingDesktop desktop;
    std::vector<bool> asked; // how the save was asked for

    // Saves where the first try and, once the player has agreed, the second give these.
    bool save(Outcome first, Outcome second = Outcome::Failed) {
        return saveAndTell(state, desktop, [&, first, second](bool evenIfChanged) {
            asked.push_back(evenIfChanged);
            return SaveResult{evenIfChanged ? second : first, u"Notes.txt"_s, u"disk full"_s};
        });
    }
};

TEST_F(Telling, aSaveThatWorksIsSilent) {
    EXPECT_TRUE(save(Outcome::Saved));
    EXPECT_EQ(QStringList(), desktop.log);
    EXPECT_EQ(std::vector<bool>{false}, asked);
}

TEST_F(Telling, whatSomebodyElseWroteIsReplacedOnlyWhenThePlayerAgrees) {
    desktop.answer = false;
    EXPECT_FALSE(save(Outcome::ChangedOutside, Outcome::Saved));
    EXPECT_EQ(std::vector<bool>{false}, asked);
    EXPECT_EQ(1, desktop.log.size()) << "an answer needs no message";
    desktop.answer = true;
    EXPECT_TRUE(save(Outcome::ChangedOutside, Outcome::Saved));
    EXPECT_EQ((std::vector<bool>{false, false, true}), asked);
    EXPECT_EQ(2, desktop.log.size());
    EXPECT_FALSE(save(Outcome::ChangedOutside, Outcome::Failed));
    EXPECT_EQ(4, desktop.log.size()) << "asked, then told";
}

TEST_F(Telling, aSaveThatFailsNamesFileAndReason) {
    EXPECT_FALSE(save(Outcome::Failed));
    ASSERT_EQ(1, desktop.log.size());
    EXPECT_TRUE(desktop.log[0].startsWith(u"message Critical "_s));
    EXPECT_TRUE(desktop.log[0].contains(u"Notes.txt"_s) && desktop.log[0].contains(u"disk full"_s));
}

TEST_F(Telling, whatCannotBeOpenedIsNamed) {
    openAndTell(state, desktop, u"/o/guide.html"_s);
    EXPECT_EQ(QStringList{u"open /o/guide.html"_s}, desktop.log);
    desktop.shellWorks = false;
    openAndTell(state, desktop, u"/o/guide.html"_s);
    ASSERT_EQ(3, desktop.log.size());
    EXPECT_TRUE(desktop.log[2].contains(u"/o/guide.html"_s));
}

TEST_F(Telling, pagesAreThoseOfTheLanguageElseEnglishElseTheOtherPage) {
    state.AppPath = u"/o/"_s;
    MemoryDisk disk;
    const QString guides = u"/o/Data/Guide/"_s;
    disk.put(guides + u"guide.html"_s, "x");
    EXPECT_EQ(guides + u"guide.html"_s, addressOf(Page::Start, state, disk));
    disk.put(guides + u"start.html"_s, "x").put(guides + u"en/start.html"_s, "x");
    disk.put(guides + u"de/start.html"_s, "x").put(guides + u"de/guide.html"_s, "x");
    EXPECT_EQ(guides + u"en/start.html"_s, addressOf(Page::Start, state, disk));
    EXPECT_EQ(guides + u"guide.html"_s, addressOf(Page::Guide, state, disk));
    QString& code = state.LanguageTable.grow(static_cast<int>(Caption::LanguageCode));
    code = u"de"_s;
    EXPECT_EQ(guides + u"de/guide.html"_s, addressOf(Page::Guide, state, disk));
    EXPECT_EQ(guides + u"de/start.html"_s, addressOf(Page::Start, state, disk));
    code = u"../de"_s; // leads out of the folder: taken for English
    EXPECT_EQ(guides + u"en/start.html"_s, addressOf(Page::Start, state, disk));
}

} // namespace
} // namespace orvinel
