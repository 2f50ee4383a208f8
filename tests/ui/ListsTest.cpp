#include "support/Printing.h"
#include "ui/platform/Fonts.h"
#include "ui/platform/ItemCombo.h"
#include "ui/platform/ListBox.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QScreen>
#include <QStyleOption>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>

#include <gmock/gmock.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(ItemCombo, selectingFromCodeRunsTheHandlerExactlyOnceAlsoForTheSameEntry) {
    ItemCombo combo(u"cmb"_s, nullptr);
    int picks = 0;
    QObject::connect(&combo, &ItemCombo::picked, [&] { ++picks; });
    combo.setEntries({{u"a"_s, 7}, {u"b"_s, 8}});
    EXPECT_EQ(0, picks);
    EXPECT_EQ(-1, combo.data(-1));
    combo.select(0);
    combo.select(0);
    EXPECT_EQ(2, picks);
    combo.select(9);
    EXPECT_EQ(-1, combo.currentIndex());
}

TEST(ItemCombo, theNarrowestOfThePanelShowsItsFirstEntryInEachLanguage) {
    ItemCombo combo(u"cmbCampaign"_s, nullptr);
    combo.setFont(arial(points8_25));
    combo.resize(81, 22);
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    const auto place = [&](QStyle::SubControl part) {
        return combo.style()->subControlRect(QStyle::CC_ComboBox, &option, part, &combo);
    };
    const int text = combo.fontMetrics().horizontalAdvance(u"<<< Tutti >>>"_s);
    EXPECT_LE(text + 2, place(QStyle::SC_ComboBoxEditField).width());
    EXPECT_LT(place(QStyle::SC_ComboBoxEditField).right(), place(QStyle::SC_ComboBoxArrow).center().x());
}

TEST(ItemCombo, theOpenListIsAsWideAsItsTextsAndStaysOnTheScreen) {
    ItemCombo combo(u"cmb"_s, nullptr);
    combo.resize(100, 22);
    const QString text = u"A name of many letters, far wider than the field"_s;
    combo.setEntries({{u"a"_s, 0}, {text, 1}});
    const QRect screen = combo.screen()->availableGeometry();
    combo.move(screen.right() - 120, 100);
    combo.show();
    combo.showPopup();
    EXPECT_GE(combo.view()->viewport()->width(), combo.fontMetrics().horizontalAdvance(text));
    EXPECT_TRUE(screen.contains(combo.view()->window()->geometry()));
    combo.hidePopup();
    combo.setEntries({{u"a"_s, 0}});
    combo.showPopup();
    EXPECT_EQ(100, combo.view()->window()->width());
}

TEST(ItemCombo, aRowOfTheOpenListChosenByAScreenReaderIsPicked) {
    ItemCombo combo(u"cmb"_s, nullptr);
    combo.setEntries({{u"one"_s, 7}, {u"two"_s, 8}});
    combo.select(0);
    int picks = 0;
    QObject::connect(&combo, &ItemCombo::picked, [&] { ++picks; });
    combo.show();
    combo.showPopup();
    QAccessibleActionInterface* row =
        QAccessible::queryAccessibleInterface(combo.view())->child(1)->actionInterface();
    row->doAction(row->actionNames().at(0));
    QTest::qWait(0);
    EXPECT_EQ(8, combo.data());
    EXPECT_EQ(1, picks);
    EXPECT_FALSE(combo.view()->isVisible());
}

struct ListBoxTest : testing::Test {
    ListBox list{u"lst"_s, nullptr};
    int picks = 0;
    int activations = 0;

    ListBoxTest() {
        list.resize(200, 100);
        list.show();
        QObject::connect(&list, &ListBox::picked, [this] { ++picks; });
        QObject::connect(&list, &ListBox::activatedEntry, [this] { ++activations; });
        list.setEntries({{u"alpha"_s, 3}, {u"beta"_s, 4}, {u"gamma"_s, 5}});
    }
    QPoint middleOf(int row) const { return {40, row * ListBox::rowHeight + 6}; }
    void click(int row) { QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middleOf(row)); }
};

TEST_F(ListBoxTest, pickingByMouseKeysAndCodeIsToldOnceEach) {
    EXPECT_FALSE(list.hasSelection());
    click(1);
    EXPECT_EQ(1, picks);
    EXPECT_EQ(4, list.selectedEntry().data);
    click(1);
    EXPECT_EQ(2, picks);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(3, picks);
    EXPECT_EQ(2, list.selectedIndex());
    list.select(0);
    EXPECT_EQ(4, picks);
    list.select(-1);
    EXPECT_EQ(4, picks);
    EXPECT_FALSE(list.hasSelection());
}

TEST_F(ListBoxTest, rowsAreSpokenOfAsShownOnlyWhileTheListIs) {
    list.setEntries(std::vector<ListEntry>(40, ListEntry{u"row"_s, 1}));
    const auto hidden = [this](int row) {
        return bool(QAccessible::queryAccessibleInterface(&list)->child(row)->state().invisible);
    };
    EXPECT_FALSE(hidden(0));
    list.hide();
    EXPECT_TRUE(hidden(0));
    list.select(30); // scrolled to all the same
    list.show();
    EXPECT_TRUE(hidden(0));
    EXPECT_FALSE(hidden(30));
}

TEST_F(ListBoxTest, theOtherButtonsLeaveTheSelectionAlone) {
    click(1);
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
        QTest::mouseClick(list.viewport(), button, {}, middleOf(2));
    EXPECT_EQ(1, list.selectedIndex());
    EXPECT_EQ(1, picks);
}

TEST_F(ListBoxTest, thePlayerCannotTakeTheSelectionAway) {
    click(1);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, middleOf(1));
    EXPECT_EQ(1, list.selectedIndex());
    QTest::keyClick(&list, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(1, list.selectedIndex());
    click(4); // below the last entry
    EXPECT_EQ(1, list.selectedIndex());
    EXPECT_EQ(2, picks);
}

TEST_F(ListBoxTest, aRowChosenByAScreenReaderIsPicked) {
    click(2);
    QAccessibleInterface* row = QAccessible::queryAccessibleInterface(&list)->child(1);
    QAccessibleActionInterface* actions = row->actionInterface();
    actions->doAction(actions->actionNames().at(0));
    QTest::qWait(0);
    EXPECT_EQ(2, picks);
    EXPECT_EQ(1, list.selectedIndex());
}

TEST_F(ListBoxTest, enterAndDoubleClickActivateTheSelectedEntry) {
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(0, activations);
    click(2);
    QTest::keyClick(&list, Qt::Key_Return);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, middleOf(2));
    EXPECT_EQ(2, activations);
}

TEST_F(ListBoxTest, showsWholeRowsOnlyAndTheKeysScrollTheNextOneIn) {
    std::vector<ListEntry> many(50, {u"row"_s, 1});
    list.setEntries(many);
    for (const int height : {100, 95, 105}) {
        list.resize(200, height);
        const int whole = (height - 2 * ListBox::frame) / ListBox::rowHeight;
        EXPECT_EQ(whole * ListBox::rowHeight, list.viewport()->height());
        list.select(0);
        for (int row = 1; row <= whole; ++row)
            QTest::keyClick(&list, Qt::Key_Down);
        EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.currentIndex()))) << height;
        const QImage shown = list.grab().toImage();
        EXPECT_EQ(QColor(Qt::white), shown.pixelColor(100, height - 3)) << "below the rows";
    }
    list.setHorizontalExtent(1000);
    EXPECT_EQ(0, list.viewport()->height() % ListBox::rowHeight);
}

TEST_F(ListBoxTest, restingOnACutTextShowsItWhole) {
    const QString text = u"a <b>long</b> name "_s.repeated(5);
    list.setEntries({{u"short"_s, 1}, {text, 2}});
    const auto rest = [&](int row) {
        QHelpEvent event(QEvent::ToolTip, middleOf(row), list.viewport()->mapToGlobal(middleOf(row)));
        QApplication::sendEvent(list.viewport(), &event);
        QTextDocument shown;
        shown.setHtml(QToolTip::text());
        return shown.toPlainText();
    };
    EXPECT_EQ(QString(), rest(0));
    EXPECT_EQ(text.trimmed(), rest(1).trimmed());
    list.setHorizontalExtent(1000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return rest(1).isEmpty(); })) << "can be scrolled into view";
}

TEST_F(ListBoxTest, newEntriesClearTheSelectionSilently) {
    click(0);
    list.setEntries({{u"delta"_s, 9}});
    EXPECT_EQ(1, picks);
    EXPECT_FALSE(list.hasSelection());
    EXPECT_EQ(9, list.items()[0]);
}

TEST_F(ListBoxTest, checkBoxesAreToggledByClickAndSpaceAndNotByCode) {
    std::vector<std::pair<int, bool>> toggles;
    QObject::connect(&list, &ListBox::checkToggled,
                     [&](int index, bool on) { toggles.emplace_back(index, on); });
    list.setChecks({false, true, false});
    EXPECT_TRUE(list.isChecked(1));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {8, middleOf(1).y()});
    click(2);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_THAT(toggles, testing::ElementsAre(std::pair(1, false), std::pair(2, true)));
    EXPECT_EQ(2, picks);
    QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(&list);
    EXPECT_TRUE(tree->child(2)->state().checked);
    EXPECT_FALSE(tree->child(1)->state().checked);
    list.setEntries({{u"delta"_s, 9}});
    EXPECT_FALSE(list.isChecked(0));
}

TEST_F(ListBoxTest, thousandsOfCheckBoxesAppearAtOnce) {
    std::vector<ListEntry> entries;
    for (int i = 0; i < 20'000; ++i)
        entries.push_back({u"entry %1"_s.arg(i), i});
    QElapsedTimer timer;
    timer.start();
    list.setEntries(std::move(entries));
    list.setChecks(std::vector<bool>(20'000, true));
    QCoreApplication::processEvents();
    EXPECT_LT(timer.elapsed(), 200);
}

TEST_F(ListBoxTest, everyRowStandsInTheAccessibilityTree) {
    QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(&list);
    ASSERT_TRUE(tree);
    ASSERT_EQ(3, tree->childCount());
    EXPECT_EQ(u"beta"_s, tree->child(1)->text(QAccessible::Name));
}

} // namespace
} // namespace orvinel
