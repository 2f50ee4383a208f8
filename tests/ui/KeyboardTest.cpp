#include "support/ProgramFixture.h"
#include "ui/map/CreditsList.h"
#include "ui/panel/PanelAccessibility.h"
#include "ui/panel/WindowKeys.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

// The panel and the map as somebody without a mouse finds them.
struct KeyboardTest : ProgramFixture {
    void SetUp() override {
        installPanelAccessibility();
        start();
        activate(*panel);
    }
    static void activate(QWidget& window) {
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QWidget* focus() { return panel->focusWidget(); }
    void key(Qt::Key k, Qt::KeyboardModifiers held = {}) { QTest::keyClick(focus(), k, held); }
    template <typename Control>
    Control* control(const char* name) {
        return on<Control>(*panel, name);
    }
};

TEST_F(KeyboardTest, tabGoesFromTopToBottomAndPassesByNothing) {
    chooseCampaign(u"Frost"_s);
    QStringList stops;
    for (QWidget* first = focus(); stops.size() < 40;) {
        EXPECT_FALSE(focus()->accessibleName().isEmpty() &&
                     QAccessible::queryAccessibleInterface(focus())->text(QAccessible::Name).isEmpty())
            << focus()->objectName().toStdString();
        stops << focus()->objectName();
        key(Qt::Key_Tab);
        if (focus() == first)
            break;
    }
    EXPECT_EQ((QStringList{u"cmbCampaign"_s, u"cmbRegion"_s, u"cmbProfession"_s, u"lblTab(0)"_s,
                           u"chkShowObject(0)"_s, u"chkShowObject(1)"_s, u"chkShowObject(2)"_s,
                           u"chkShowObject(3)"_s, u"chkShowObject(4)"_s, u"optCapture(0)"_s,
                           u"txtEliteName"_s, u"txtEliteBossName"_s, u"lstElite"_s, u"cmdQuit"_s,
                           u"lblMenu(0)"_s, u"lblMenu(1)"_s, u"lblMenu(2)"_s}),
              stops);
}

TEST_F(KeyboardTest, everyStopShowsThatItHasTheFocus) {
    for (const char* name : {"cmbCampaign", "lblTab(0)", "chkShowObject(2)", "optCapture(0)", "txtEliteName",
                             "lstElite", "cmdQuit"}) {
        auto* stop = control<QWidget>(name);
        panel->selection().cmbProfession->setFocus();
        const QImage without = stop->grab().toImage();
        stop->setFocus(Qt::TabFocusReason);
        EXPECT_NE(without, stop->grab().toImage()) << name;
    }
}

TEST_F(KeyboardTest, theMapsMarginTellsOfItsFocus) {
    showFjord();
    const auto corners = [this] {
        const QImage seen = map->grab().toImage();
        return std::pair(seen.pixelColor(1, 1), seen.pixelColor(seen.width() - 1, seen.height() - 1));
    };
    const QColor mark = map->palette().color(QPalette::Highlight);
    const auto unmarked = corners();
    map->picMap().setFocus();
    QApplication::setActiveWindow(map.get());
    EXPECT_EQ(std::pair(mark, mark), corners());
    QApplication::setActiveWindow(panel.get());
    EXPECT_EQ(unmarked, corners());
    EXPECT_NE(mark, unmarked.first);
}

TEST_F(KeyboardTest, arrowsGoThroughTheTabsAndRoundTheirEnds) {
    TabStrip& tabs = panel->tabs();
    tabs.activateWithFocus(Tab::Elites);
    key(Qt::Key_Left);
    EXPECT_EQ(Tab::Various, tabs.active());
    EXPECT_EQ(tabs.lblTab[4], focus());
    key(Qt::Key_Down);
    EXPECT_EQ(Tab::Elites, tabs.active());
    key(Qt::Key_Tab);
    key(Qt::Key_Backtab);
    EXPECT_EQ(tabs.lblTab[0], focus()) << "Tab stops at the active header only";
}

TEST_F(KeyboardTest, theWordsOfTheMenuBarAreLedThroughAndOpened) {
    QSignalSpy wanted(&panel->menuBar(), &MenuBar::menuWantedByKey);
    panel->menuBar().lblMenu[0]->setFocus();
    key(Qt::Key_Left);
    EXPECT_EQ(panel->menuBar().lblMenu[2], focus());
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    ASSERT_EQ(1, wanted.size());
    EXPECT_EQ(1, wanted[0][0].toInt());
}

TEST_F(KeyboardTest, enterInASearchLeadsToWhatItFound) {
    ListBox* list = panel->greensPage().lstGreens;
    panel->tabs().activate(Tab::Greens);
    auto* field = panel->greensPage().txtGreensName;
    field->setFocus();
    key(Qt::Key_Return);
    EXPECT_EQ(list, focus());
    EXPECT_EQ(-1, list->selectedIndex()) << "nothing was found";
    list->setEntries({{u"x"_s, 1}, {u"y"_s, 2}});
    const QSignalBlocker alone(list);
    field->setFocus();
    key(Qt::Key_Return);
    EXPECT_EQ(0, list->selectedIndex());
}

TEST_F(KeyboardTest, theSameKeysWorkInPanelAndMap) {
    WindowKeys keys({panel.get(), map.get()});
    QSignalSpy menus(&keys, &WindowKeys::menuBarWanted);
    QSignalSpy pages(&keys, &WindowKeys::pageWanted);
    QSignalSpy steps(&keys, &WindowKeys::pageStepWanted);
    for (QWidget* target :
         {static_cast<QWidget*>(panel->selection().cmbCampaign), static_cast<QWidget*>(&map->picMap())}) {
        QTest::keyClick(target, Qt::Key_F10);
        QTest::keyClick(target, Qt::Key_Alt);
        QTest::keyClick(target, Qt::Key_4, Qt::AltModifier);
        QTest::keyClick(target, Qt::Key_6, Qt::AltModifier);
        QTest::keyClick(target, Qt::Key_Tab, Qt::ControlModifier);
        QTest::keyClick(target, Qt::Key_PageUp, Qt::ControlModifier);
    }
    EXPECT_EQ(4, menus.size());
    ASSERT_EQ(2, pages.size());
    EXPECT_EQ(3, pages[1][0].toInt());
    ASSERT_EQ(4, steps.size());
    EXPECT_EQ(1, steps[0][0].toInt());
    EXPECT_EQ(-1, steps[1][0].toInt());
}

TEST_F(KeyboardTest, altThatWasHeldForSomethingElseOpensNothing) {
    WindowKeys keys({panel.get(), map.get()});
    QSignalSpy menus(&keys, &WindowKeys::menuBarWanted);
    QWidget* target = panel->selection().cmbCampaign;
    QTest::keyPress(target, Qt::Key_Alt);
    QTest::keyClick(target, Qt::Key_2, Qt::AltModifier);
    QTest::keyRelease(target, Qt::Key_Alt);
    QTest::keyPress(target, Qt::Key_Alt);
    QTest::mouseClick(panel->tabs().lblTab[0], Qt::LeftButton, Qt::AltModifier);
    QTest::keyRelease(target, Qt::Key_Alt);
    EXPECT_EQ(0, menus.size());
}

TEST_F(KeyboardTest, screenReadersHearLabelsRolesAndTheRegion) {
    const auto read = [](QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); };
    EXPECT_EQ(QAccessible::MenuBar, read(&panel->menuBar())->role());
    EXPECT_EQ(QAccessible::MenuItem, read(panel->menuBar().lblMenu[0])->role());
    EXPECT_EQ(QAccessible::PageTab, read(panel->tabs().lblTab[0])->role());
    const auto relations = read(panel->selection().cmbZone)->relations();
    ASSERT_FALSE(relations.isEmpty());
    EXPECT_EQ(panel->selection().lblZone, relations.front().first->object());
    EXPECT_EQ(u"Text 48"_s, read(panel->collectorsPage().optCollType[0])->text(QAccessible::Description));
    map->InizializzaVariabili({}, -1, -1);
    EXPECT_TRUE(read(&map->picMap())->text(QAccessible::Description).contains(creditsText()));
    showFjord();
    EXPECT_EQ(QAccessible::Graphic, read(&map->picMap())->role());
    EXPECT_EQ(u"Fjord"_s, read(&map->picMap())->text(QAccessible::Name));
    EXPECT_EQ(u"Frost"_s, read(&map->picMap())->text(QAccessible::Description));
}

} // namespace
} // namespace orvinel
