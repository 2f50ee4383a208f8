#include "app/modOrvinel.h"
#include "support/MemoryDisk.h"
#include "support/RecordingDesktop.h"
#include "ui/dialogs/frmMarkEliteAsCaptured.h"
#include "ui/platform/ListBox.h"

#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <optional>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

struct ProgramTest : testing::Test {
    MemoryDisk disk;
    RecordingDesktop desktop;
    std::optional<int> exitCode;
    std::unique_ptr<Program> program;

    ProgramTest() { disk.put(u"/o/Data/Language.txt"_s, "9\tAll\r\n"); }

    bool start() {
        program = std::make_unique<Program>(u"/o/"_s, disk, desktop, [this](int code) { exitCode = code; });
        return program->Main();
    }
    QString option(const char* key) const {
        for (const QString& line :
             QString::fromLatin1(disk.content(u"/o/Data/Options.txt"_s)).split(u"\r\n"_s))
            if (line.startsWith(QLatin1String(key) + u'='))
                return line.section(u'=', 1);
        return u"missing"_s;
    }
};

TEST_F(ProgramTest, withoutALanguageFileItSaysSoAndEnds) {
    disk = MemoryDisk();
    EXPECT_FALSE(start());
    ASSERT_EQ(3, desktop.log.size());
    EXPECT_TRUE(desktop.log[1].startsWith(u"message Critical Orvinel|Can't load language file."_s));
    EXPECT_EQ((QStringList{u"hourglass 1"_s, u"hourglass 0"_s}),
              (QStringList{desktop.log[0], desktop.log[2]}));
    EXPECT_TRUE(disk.log.empty());
}

TEST_F(ProgramTest, boxesSpeakItsLanguageFromTheStart) {
    disk.put(u"/o/Data/Language.txt"_s, disk.content(u"/o/Data/Language.txt"_s) + "301\tit\r\n");
    disk.putFolder(u"/o/Campaign.05.Late"_s);
    EXPECT_FALSE(start());
    EXPECT_EQ(u"it"_s, desktop.language);
}

TEST_F(ProgramTest, anUnknownCampaignEndsIt) {
    disk.putFolder(u"/o/Campaign.05.Late"_s);
    EXPECT_FALSE(start());
    EXPECT_TRUE(
        desktop.log.contains(u"warn Orvinel|I haven't released chapert 5 yet... how can you have it?"_s));
}

TEST_F(ProgramTest, theFirstStartFillsTheWorkAreaAndIsForgottenAtTheEnd) {
    desktop.work = {0, 0, 1280, 1000};
    ASSERT_TRUE(start());
    EXPECT_EQ(QRect(0, 0, 217, 1000), program->panel().geometry());
    EXPECT_EQ(QRect(217, 0, 1063, 1000), program->map().geometry());
    program->QuitProgram();
    EXPECT_EQ(0, exitCode);
    EXPECT_EQ(u"-1"_s, option("PosX"));
    EXPECT_EQ(u"-1"_s, option("DimY"));
}

TEST_F(ProgramTest, thePairIsInsetByATwentiethOfTheRightEdgeAndRemembered) {
    desktop.work = {0, 0, 1280, 1000};
    ASSERT_TRUE(start());
    program->places().ToggleMapMaximised();
    EXPECT_EQ(QRect(64, 64, 217, 872), program->panel().geometry());
    EXPECT_EQ(QRect(281, 64, 935, 872), program->map().geometry());
    program->QuitProgram();
    EXPECT_EQ(u"960"_s, option("PosX"));
    EXPECT_EQ(u"960"_s, option("PosY"));
    EXPECT_EQ(u"14025"_s, option("DimX"));
    EXPECT_EQ(u"13080"_s, option("DimY"));
}

TEST_F(ProgramTest, aRememberedPlaceComesBackAndIsWrittenAsTheWindowsStand) {
    disk.put(u"/o/Data/Options.txt"_s, "PosX=1507\r\nPosY=300\r\nDimX=9000\r\nDimY=300\r\n");
    ASSERT_TRUE(start());
    EXPECT_EQ(QRect(100, 20, 217, 872), program->panel().geometry());
    EXPECT_EQ(QRect(317, 20, 600, 80), program->map().geometry());
    program->QuitProgram();
    EXPECT_EQ(u"1500"_s, option("PosX"));
    EXPECT_EQ(u"1200"_s, option("DimY"));
}

TEST_F(ProgramTest, aPlaceWiderThanTheScreensGivesTheFullWorkArea) {
    const int widest = desktop.screens.width() * 15 - 217 * 15;
    disk.put(u"/o/Data/Options.txt"_s,
             "PosX=0\r\nPosY=0\r\nDimY=7500\r\nDimX=" + QByteArray::number(widest + 1));
    ASSERT_TRUE(start());
    EXPECT_EQ(desktop.work.height(), program->map().height());
    program->QuitProgram();
    EXPECT_EQ(u"-1"_s, option("PosX"));
}

TEST_F(ProgramTest, theMapIsNeverLargerThanTheScreens) {
    disk.put(u"/o/Data/Options.txt"_s, "PosX=0\r\nPosY=0\r\nDimX=9000\r\nDimY=2000000000\r\n");
    ASSERT_TRUE(start());
    EXPECT_EQ(QSize(600, desktop.screens.height()), program->map().size());
    program->QuitProgram();
    EXPECT_EQ(QString::number(desktop.screens.height() * 15), option("DimY"));
}

TEST_F(ProgramTest, aPlaceOutOfReachIsNotUsedButKept) {
    disk.put(u"/o/Data/Options.txt"_s, "PosX=-90000\r\nPosY=-90000\r\nDimX=9000\r\nDimY=7500\r\n");
    ASSERT_TRUE(start());
    EXPECT_EQ(QPoint(0, 0), program->panel().pos());
    program->QuitProgram();
    EXPECT_EQ(u"-90000"_s, option("PosX"));
}

TEST_F(ProgramTest, theMapFollowsThePanelUnlessTheyFillTheScreen) {
    ASSERT_TRUE(start());
    program->places().ToggleMapMaximised();
    program->panel().move(30, 40);
    EXPECT_EQ(QPoint(247, 40), program->map().pos());
}

struct OneWindowTest : ProgramTest {
    OneWindow* joined() {
        disk.put(u"/o/Data/Options.txt"_s, "PosX=1500\r\nPosY=300\r\nDimX=7200\r\nDimY=7500\r\nLegend=0\r\n");
        if (start())
            program->joinWindows();
        QCoreApplication::processEvents();
        return program->joined();
    }
    QRect partPlace(const QWidget& part) {
        return {part.mapTo(program->joined(), QPoint(0, 0)), part.size()};
    }
};

TEST_F(OneWindowTest, thePanelKeepsItsWidthAndTheMapHasTheRest) {
    OneWindow* window = joined();
    ASSERT_TRUE(window);
    EXPECT_EQ(697, window->width());
    for (const QSize size : {QSize(817, 500), QSize(1500, 900), window->minimumSize()}) {
        window->resize(size);
        EXPECT_EQ(QRect(0, 0, 217, size.height()), partPlace(program->panel()));
        EXPECT_EQ(QRect(217, 0, size.width() - 217, size.height()), partPlace(program->map()));
    }
    // Neither a press on the panel's background nor what places windows elsewhere moves a part.
    QTest::mousePress(&program->panel(), Qt::LeftButton, {}, {100, 8});
    QTest::mouseMove(&program->panel(), {160, 80});
    QTest::mouseRelease(&program->panel(), Qt::LeftButton, {}, {160, 80});
    program->places().attachMap();
    program->places().ToggleMapMaximised();
    EXPECT_EQ(QPoint(0, 0), program->panel().pos());
    EXPECT_EQ(QPoint(217, 0), program->map().pos());
}

TEST_F(OneWindowTest, theMapsButtonsActOnItAndTheRememberedPlaceStays) {
    OneWindow* window = joined();
    ASSERT_TRUE(window);
    emit program->map().maximiseWanted();
    EXPECT_TRUE(window->isMaximized());
    emit program->map().maximiseWanted();
    EXPECT_FALSE(window->isMaximized());
    emit program->map().minimiseWanted();
    EXPECT_TRUE(window->isMinimized());
    EXPECT_TRUE(program->panel().isVisible());
    window->showNormal();
    window->resize(1500, 900);
    window->close();
    EXPECT_EQ(0, exitCode);
    EXPECT_EQ((QStringList{u"1500"_s, u"300"_s, u"7200"_s, u"7500"_s}),
              (QStringList{option("PosX"), option("PosY"), option("DimX"), option("DimY")}));
}

TEST_F(OneWindowTest, f6GoesOnBetweenItsParts) {
    OneWindow* window = joined();
    ASSERT_TRUE(window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    EXPECT_TRUE(program->panel().isAncestorOf(window->focusWidget()));
    QTest::keyClick(window->focusWidget(), Qt::Key_F6);
    EXPECT_EQ(&program->map().picMap(), window->focusWidget());
}

TEST_F(ProgramTest, failingToSaveTheOptionsIsToldAndTheProgramStaysIfThePlayerWants) {
    ASSERT_TRUE(start());
    disk.failAt = static_cast<int>(disk.log.size()) + 1;
    desktop.answer = false;
    program->QuitProgram();
    EXPECT_FALSE(exitCode);
    EXPECT_TRUE(desktop.log.last().contains(u"Could not save Options.txt:\nthe disk is full"_s));
    desktop.answer = true;
    program->QuitProgram();
    EXPECT_EQ(0, exitCode);
}

TEST_F(ProgramTest, whenTheSystemEndsItTheOptionsAreWrittenAndNothingIsAsked) {
    ASSERT_TRUE(start());
    program->places().ToggleMapMaximised();
    program->saveUnasked();
    EXPECT_NE(u"-1"_s, option("PosX"));
    EXPECT_FALSE(exitCode);
    disk.put(u"/o/Data/Options.txt"_s, "PosX=77\r\n");
    desktop.log.clear();
    program->endUnasked();
    EXPECT_EQ(0, exitCode);
    EXPECT_EQ(u"77"_s, option("PosX")) << "somebody else's";
    EXPECT_TRUE(desktop.log.isEmpty());
}

TEST_F(ProgramTest, theUpdaterIsFoundWhateverItsCaseAndEndsTheProgram) {
    disk.put(u"/o/update.exe"_s, "x");
    ASSERT_TRUE(start());
    program->RunUpdater();
    EXPECT_TRUE(desktop.log.contains(u"open /o/update.exe"_s));
    EXPECT_EQ(0, exitCode);
}

TEST_F(ProgramTest, aLegendThatNoScreenShowsStandsAtTheMapsCornerAndItsPlaceIsKept) {
    desktop.work = {0, 0, 1280, 1000};
    disk.put(u"/o/Data/Options.txt"_s, "[OLD SELECTION]\r\nLegendX=75000\r\nLegendY=1500\r\n");
    ASSERT_TRUE(start());
    const auto* legend = program->map().findChild<QWidget*>(u"frmLegenda"_s);
    ASSERT_TRUE(legend);
    EXPECT_EQ(QPoint(217, 1000 - legend->height()), legend->pos());
    program->QuitProgram();
    EXPECT_EQ(u"75000"_s, option("LegendX"));
    EXPECT_EQ(u"1500"_s, option("LegendY"));
}

TEST_F(ProgramTest, oneCaptureDialogTakesOneSkillAfterTheOtherBesideTheList) {
    disk.putFolder(u"/o/Campaign.00.Core"_s);
    const auto putFile = [this](const char* name, const char* text) {
        disk.put(u"/o/Campaign.01.Ash/"_s + QLatin1String(name), text);
    };
    putFile("Regions.txt", "1\tCoast\r\n");
    putFile("Professions.txt", "1\tMage\t1\tM\tFire\r\n");
    putFile("EliteList.txt", "1\t1\tFlare\tFire\tSpell\t0\t0\t5\t1/4\t120\tBurns.\r\n"
                             "2\t1\tGust\tFire\tSpell\t0\t0\t5\t1/4\t120\tBlows.\r\n");
    putFile("EliteLocations.txt", ";[Version]=2.0\r\n1\t1\t9\t9\tBront\t\t0\r\n2\t1\t9\t9\tGrim\t\t0\r\n");
    disk.put(u"/o/Personal/Characters.txt"_s, "01\tAda\r\n");
    ASSERT_TRUE(start());
    ListBox& list = *program->panel().elitePage().lstElite;
    ASSERT_EQ(2, list.count());
    const auto capture = [&](int row) {
        list.select(row);
        emit list.activatedEntry();
        return program->panel().findChildren<frmMarkEliteAsCaptured*>();
    };
    const auto dialogs = capture(0);
    ASSERT_EQ(1, dialogs.size());
    EXPECT_GE(dialogs[0]->x(), program->panel().x() + program->panel().width());
    EXPECT_EQ(dialogs, capture(1));
    EXPECT_EQ(u"Elite: Gust"_s, dialogs[0]->windowTitle());
    dialogs[0]->findChild<ListBox*>(u"lstCharacters"_s)->select(0);
    dialogs[0]->findChild<QPushButton*>(u"cmdSave"_s)->click();
    EXPECT_FALSE(dialogs[0]->isVisible());
    EXPECT_TRUE(program->state().EliteSkills[2].capturedBy(1));
    ASSERT_FALSE(capture(0).isEmpty());
    EXPECT_TRUE(capture(0).last()->isVisible());
}

TEST_F(ProgramTest, helpAndHomeOpenThePagesThatCameWithTheProgramAndSayWhereOneIsMissing) {
    ASSERT_TRUE(start());
    desktop.shellWorks = false;
    program->showGuide();
    EXPECT_EQ(u"message Critical Orvinel|/o/Data/Guide/guide.html could not be opened."_s,
              desktop.log.last());
    disk.put(u"/o/Data/Guide/start.html"_s, "<html>");
    desktop.shellWorks = true;
    program->showGuide();
    EXPECT_EQ(u"open /o/Data/Guide/start.html"_s, desktop.log.last());
    disk.put(u"/o/Data/Guide/guide.html"_s, "<html>");
    program->showGuide();
    EXPECT_EQ(u"open /o/Data/Guide/guide.html"_s, desktop.log.last());
    program->showStartPage();
    EXPECT_EQ(u"open /o/Data/Guide/start.html"_s, desktop.log.last());
}

TEST_F(ProgramTest, helpSpeaksTheLanguageOfTheTextsWhereItCan) {
    disk.put(u"/o/Data/Guide/guide.html"_s, "<html>").put(u"/o/Data/Guide/de/guide.html"_s, "<html>");
    disk.put(u"/o/Data/Language.txt"_s, disk.content(u"/o/Data/Language.txt"_s) + "301\tde\r\n");
    ASSERT_TRUE(start());
    program->showGuide();
    EXPECT_EQ(u"open /o/Data/Guide/de/guide.html"_s, desktop.log.last());
    program->showStartPage(); // not translated: the German guide is no start page, the English one is missing
    EXPECT_EQ(u"open /o/Data/Guide/guide.html"_s, desktop.log.last());
}

} // namespace
} // namespace orvinel
