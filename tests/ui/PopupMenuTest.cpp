#include "app/ProgramState.h"
#include "support/NumberedCaptions.h"
#include "support/Printing.h"
#include "ui/panel/PanelAccessibility.h"
#include "ui/panel/frmPopupMenu.h"
#include "ui/platform/SpokenRole.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

ProgramState numberedTexts() {
    ProgramState state;
    numberCaptions(state, u"T"_s);
    return state;
}

struct PopupMenuTest : testing::Test {
    ProgramState state = numberedTexts();
    QWidget panel;
    Label label{u"lblMenu"_s, &panel};
    frmPopupMenu menu{state, &panel};
    std::vector<std::pair<int, int>> chosen;
    QSignalSpy closed{&menu, &frmPopupMenu::closed};

    PopupMenuTest() {
        installPanelAccessibility();
        setSpokenRole(panel, QAccessible::Window);
        panel.setGeometry(100, 50, 217, 400);
        label.move(46, 18);
        label.setCaption(u"Options"_s);
        panel.show();
        menu.OnMenuEntryClick = [this](int m, int e) { chosen.emplace_back(m, e); };
        QObject::connect(&menu, &frmPopupMenu::switchWanted, &menu,
                         [this](int other) { menu.OpenMenu(other, label); });
    }
    template <typename Control>
    Control* control(const QString& name) const {
        return menu.findChild<Control*>(name);
    }
    Label* caption(int e) const { return control<Label>(u"lblEntry(%1)"_s.arg(e)); }
    void key(Qt::Key k) { QTest::keyClick(menu.focusWidget(), k); }
    void moveOver(QWidget* widget) { QTest::mouseMove(widget, widget->rect().center()); }
    // What the shown menu says, with the state of its boxes.
    QStringList rows() const {
        QStringList found;
        for (int e = 0; caption(e); ++e)
            found << (caption(e)->isVisible() ? caption(e)->text() : u"-"_s);
        return found;
    }
    QList<bool> states(const QString& box) const {
        QList<bool> found;
        for (int i = 0; auto* button = control<QAbstractButton>(u"%1(%2)"_s.arg(box).arg(i)); ++i)
            found << button->isChecked();
        return found;
    }
};

TEST_F(PopupMenuTest, showsTheRowsOfEachMenuAndNoneOfTheOneBefore) {
    menu.OpenMenu(1, label);
    EXPECT_EQ(
        (QStringList{u"T62"_s, u"T95"_s, u"-"_s, u"T74"_s, u"T91"_s, u"T75"_s, u"T76"_s, u"-"_s, u"T14"_s}),
        rows());
    EXPECT_EQ(2, states(u"chkEntry"_s).size());
    EXPECT_EQ(3, states(u"optEntry"_s).size());
    EXPECT_EQ(QSize(menu.width(), 190), menu.size());
    menu.OpenMenu(0, label);
    EXPECT_EQ((QStringList{u"T32"_s, u"T44"_s, u"T59"_s, u"T65"_s, u"T113"_s}), rows());
    EXPECT_EQ(5, states(u"chkEntry"_s).size());
    EXPECT_THAT(states(u"optEntry"_s), IsEmpty());
    EXPECT_EQ(nullptr, control<QWidget>(u"linEntry(0)"_s));
    EXPECT_EQ(114, menu.height());
    menu.OpenMenu(2, label);
    EXPECT_EQ((QStringList{u"T93"_s, u"T107"_s, u"-"_s, u"T81"_s, u"T108"_s, u"T89"_s, u"T109"_s, u"-"_s,
                           u"T110"_s}),
              rows());
    EXPECT_THAT(states(u"chkEntry"_s), IsEmpty());
    menu.OpenMenu(3, label);
    EXPECT_EQ(9, rows().size()) << "there is no such menu";
}

TEST_F(PopupMenuTest, showsTheValuesAtEachOpening) {
    menu.SetValue(1, 0, 1);
    menu.SetValue(1, 6, 1);
    menu.SetValue(9, 0, 1);
    menu.SetValue(1, 99, 1);
    menu.OpenMenu(1, label);
    EXPECT_THAT(states(u"chkEntry"_s), ElementsAre(true, false));
    EXPECT_THAT(states(u"optEntry"_s), ElementsAre(false, false, true));
    control<QCheckBox>(u"chkEntry(0)"_s)->click();
    menu.SetValue(1, 6, 0);
    menu.SetValue(1, 4, 1);
    menu.OpenMenu(1, label);
    EXPECT_THAT(states(u"chkEntry"_s), ElementsAre(true, false)) << "the click changed the display only";
    EXPECT_THAT(states(u"optEntry"_s), ElementsAre(true, false, false));
}

TEST_F(PopupMenuTest, placesWindowAndRows) {
    menu.OpenMenu(1, label);
    EXPECT_EQ(label.mapToGlobal(QPoint(-1, label.height() + 2)), menu.pos());
    EXPECT_EQ(QRect(6, 19 - 7, 13, 14), control<QWidget>(u"chkEntry(0)"_s)->geometry());
    EXPECT_EQ(QPoint(23, 19 - 7), caption(0)->pos());
    EXPECT_EQ(QPoint(6, 76 - caption(3)->height() / 2), caption(3)->pos());
    EXPECT_EQ(QRect(6, 171 - 6, caption(8)->width(), caption(8)->height()), caption(8)->geometry());
    const QRect line = control<QWidget>(u"linEntry(1)"_s)->geometry();
    EXPECT_EQ(QRect(6, 152, menu.width() - 12, 1), line);
    EXPECT_EQ(QRect(1, -6, label.width() + 6, 14), control<QWidget>(u"lblFalseHole"_s)->geometry());
}

TEST_F(PopupMenuTest, highlightsTheEnabledRowUnderTheMouse) {
    menu.OpenMenu(1, label);
    auto* highlight = control<QWidget>(u"shaSelection"_s);
    QTest::mouseMove(&menu, {2, 2});
    moveOver(control<QWidget>(u"optEntry(1)"_s));
    EXPECT_EQ(5, menu.hoverEntry());
    EXPECT_TRUE(highlight->isVisible());
    EXPECT_EQ(QRect(caption(5)->x() - 3, caption(5)->y() - 3, caption(5)->width() + 6, 19),
              highlight->geometry());
    QTest::mouseMove(caption(8), {menu.width() - 14, 5}); // right of the letters
    EXPECT_EQ(8, menu.hoverEntry());
    EXPECT_EQ(menu.width() - 3, highlight->geometry().right() + 1);
    moveOver(caption(3));
    EXPECT_FALSE(highlight->isVisible()) << "a heading";
    moveOver(caption(8));
    EXPECT_TRUE(highlight->isVisible());
    QTest::mouseMove(&menu, {2, menu.height() - 2});
    EXPECT_FALSE(highlight->isVisible());
    EXPECT_EQ(-1, menu.hoverEntry());
}

TEST_F(PopupMenuTest, aClickOnARowHidesTheMenuAndThenCallsBack) {
    bool visibleDuringCall = true;
    menu.OnMenuEntryClick = [&](int m, int e) {
        visibleDuringCall = menu.isVisible();
        chosen.emplace_back(m, e);
    };
    menu.OpenMenu(1, label);
    QTest::mouseClick(caption(3), Qt::LeftButton);
    EXPECT_TRUE(menu.isVisible());
    QTest::mouseClick(caption(4), Qt::LeftButton);
    EXPECT_FALSE(visibleDuringCall);
    EXPECT_EQ(1, closed.count());
    menu.OpenMenu(0, label);
    QTest::mouseClick(control<QWidget>(u"chkEntry(2)"_s), Qt::LeftButton);
    EXPECT_THAT(chosen, ElementsAre(Pair(1, 4), Pair(0, 2)));
}

TEST_F(PopupMenuTest, closesAtAClickElsewhereAndAtEscape) {
    menu.OpenMenu(2, label);
    QTest::mouseClick(&menu, Qt::LeftButton, {}, {-30, -30});
    EXPECT_FALSE(menu.isVisible());
    menu.OpenMenu(2, label);
    key(Qt::Key_Escape);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(2, closed.count());
    EXPECT_EQ(2, closed.at(0).at(0).toInt());
    EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(PopupMenuTest, aPressOnAnotherWordOpensThatMenu) {
    MenuCaption other(u"lblMenu(2)"_s, &panel);
    other.move(98, 18);
    other.setCaption(u"Help"_s);
    other.show();
    QObject::connect(&other, &Label::clicked, &menu, [&] { menu.OpenMenu(2, other); });
    menu.OpenMenu(1, label);
    QTest::mousePress(&menu, Qt::LeftButton, {}, menu.mapFromGlobal(other.mapToGlobal(QPoint(3, 3))));
    EXPECT_TRUE(menu.isVisible());
    EXPECT_EQ(u"T93"_s, caption(0)->text());
    QTest::mousePress(&menu, Qt::LeftButton, {}, menu.mapFromGlobal(other.mapToGlobal(QPoint(3, 3))));
    EXPECT_FALSE(menu.isVisible()) << "a press on its own word closes it";
}

TEST_F(PopupMenuTest, isUsableByKeysAlone) {
    menu.OpenMenu(1, label);
    key(Qt::Key_Down);
    EXPECT_EQ(0, menu.hoverEntry());
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(4, menu.hoverEntry()) << "passes separator and heading";
    EXPECT_EQ(u"optEntry(0)"_s, menu.focusWidget()->objectName());
    key(Qt::Key_Home);
    key(Qt::Key_Up);
    EXPECT_EQ(8, menu.hoverEntry()) << "round the end";
    key(Qt::Key_Right);
    EXPECT_EQ(0, menu.hoverEntry());
    EXPECT_EQ(u"T93"_s, caption(0)->text());
    key(Qt::Key_End);
    key(Qt::Key_Return);
    key(Qt::Key_Left);
    EXPECT_THAT(chosen, ElementsAre(Pair(2, 8)));
}

TEST_F(PopupMenuTest, tellsAScreenReaderItsRowsAndTheirStates) {
    menu.SetValue(1, 1, 1);
    menu.OpenMenu(1, label);
    const auto read = [](QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); };
    QAccessibleInterface* tree = read(&menu);
    EXPECT_EQ(QAccessible::PopupMenu, tree->role());
    EXPECT_EQ(u"Options"_s, tree->text(QAccessible::Name));
    ASSERT_EQ(9, tree->childCount());
    EXPECT_EQ(QAccessible::Separator, tree->child(2)->role());
    EXPECT_EQ(control<QWidget>(u"optEntry(0)"_s), tree->child(4)->object());
    EXPECT_EQ(4, tree->indexOfChild(tree->child(4)));
    EXPECT_EQ(tree, tree->child(4)->parent());
    QAccessibleInterface* check = read(control<QWidget>(u"chkEntry(1)"_s));
    EXPECT_EQ(QAccessible::CheckBox, check->role());
    EXPECT_EQ(u"T95"_s, check->text(QAccessible::Name));
    EXPECT_TRUE(check->state().checked);
    EXPECT_EQ(QAccessible::RadioButton, read(control<QWidget>(u"optEntry(0)"_s))->role());
    EXPECT_EQ(QAccessible::StaticText, read(caption(3))->role());
    EXPECT_TRUE(read(caption(3))->state().disabled) << "a heading cannot be chosen";
    QAccessibleInterface* command = read(caption(8));
    EXPECT_EQ(QAccessible::MenuItem, command->role());
    EXPECT_FALSE(command->state().disabled);
    EXPECT_EQ(u"T14"_s, command->text(QAccessible::Name));
    command->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(chosen, IsEmpty()) << "whoever asks would wait as long as the command takes";
    QCoreApplication::processEvents();
    EXPECT_THAT(chosen, ElementsAre(Pair(1, 8)));
}

TEST_F(PopupMenuTest, aScreenReaderChoosesByTogglingABox) {
    menu.SetValue(1, 1, 1);
    menu.SetValue(1, 4, 1);
    for (const QString& box : {u"chkEntry(0)"_s, u"chkEntry(1)"_s, u"optEntry(2)"_s}) {
        menu.OpenMenu(1, label);
        QAccessibleInterface* row = QAccessible::queryAccessibleInterface(control<QWidget>(box));
        row->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        EXPECT_FALSE(menu.isVisible());
    }
    EXPECT_THAT(chosen, ElementsAre(Pair(1, 0), Pair(1, 1), Pair(1, 6)));
}

TEST_F(PopupMenuTest, belongsToItsWindowForScreenReadersWhileItIsOpen) {
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(&panel);
    const int parts = window->childCount();
    menu.OpenMenu(0, label);
    ASSERT_EQ(parts + 1, window->childCount());
    QAccessibleInterface* open = window->child(parts);
    EXPECT_EQ(&menu, open->object());
    EXPECT_EQ(parts, window->indexOfChild(open));
    EXPECT_EQ(window, open->parent());
    menu.hide();
    EXPECT_EQ(parts, window->childCount());
}

} // namespace
} // namespace orvinel
