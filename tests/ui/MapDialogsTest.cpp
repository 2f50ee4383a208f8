#include "app/modLanguage.h"
#include "ui/DialogFixture.h"
#include "ui/dialogs/frmManageNote.h"
#include "ui/dialogs/frmMarkTreasureAsOpened.h"

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;

struct ManageNote : DialogFixture {
    frmManageNote dialog{context(), nullptr};

    void open(int note) {
        dialog.SetNote(note);
        dialog.SetX(412);
        dialog.SetY(233);
        dialog.SetCampaign(1);
        dialog.SetRegion(5);
        dialog.show();
    }
    void addNote(const QString& title, const QString& body) {
        Note note;
        note.setTexts(title, body);
        note.At.placeAt(10, 20, treasureReach);
        state.Notes.append(note);
    }
    QLineEdit& title() { return field(dialog, "txtShortDesc"); }
    QPlainTextEdit& body() { return *dialog.findChild<QPlainTextEdit*>(u"txtBody"_s); }
    void save() { button(dialog, "cmdSave").click(); }
};

TEST_F(ManageNote, typingReplacesTheTitleOfANewNoteWhichIsStoredAtThePlaceClicked) {
    open(-1);
    EXPECT_EQ(u"General Note"_s, title().selectedText());
    QTest::keyClicks(&title(), u"Merchant"_s);
    QTest::keyClicks(&body(), u"Sells dyes"_s);
    QTest::keyClick(&body(), Qt::Key_Return);
    QTest::keyClicks(&body(), u"open at night"_s);
    save();
    EXPECT_EQ(bytes("Merchant\tSells dyes{#ENTER#}open at night\t412\t233\t1\t5\r\n"), saved("Notes.txt"));
    EXPECT_EQ(1, dialog.savedNote());
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ManageNote, editingKeepsThePlaceAndTheCharactersOfTheBody) {
    addNote(u"Old"_s, u"12\u00a0gold\r\nper piece"_s);
    open(1);
    EXPECT_EQ(u"Old"_s, title().text());
    title().setText(u"New"_s);
    save();
    EXPECT_EQ(u"12\u00a0gold\r\nper piece"_s, state.Notes[1].Body);
    EXPECT_EQ(10, state.Notes[1].At.X);
    EXPECT_EQ(1, dialog.savedNote());
}

TEST_F(ManageNote, refusesATitleThatCouldNotBeReadBack) {
    open(-1);
    title().setText(u"   "_s);
    save();
    EXPECT_EQ(u"message Critical Orvinel|text 71"_s, desktop.log.last());
    EXPECT_EQ(&title(), dialog.focusWidget());
    title().setText(u"; later"_s);
    save();
    EXPECT_EQ(u"; later"_s, title().selectedText());
    EXPECT_EQ(u"message Critical Orvinel|"_s + state.text(Caption::TitleIsComment), desktop.log.last());
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(disk.log.empty());
}

TEST_F(ManageNote, aLongTitleFromTheFileStaysWholeButCannotGrow) {
    const QString longTitle(40, u'x');
    addNote(longTitle, {});
    open(1);
    EXPECT_EQ(longTitle, title().text());
    title().end(false);
    QTest::keyClick(&title(), Qt::Key_Backspace);
    QTest::keyClicks(&title(), u"yz"_s);
    EXPECT_EQ(39, title().text().size());
    title().selectAll();
    QTest::keyClicks(&title(), QString(35, u'a'));
    EXPECT_EQ(QString(30, u'a'), title().text());
}

TEST_F(ManageNote, staysAboveOtherWindowsWhenTheProgramDoes) {
    open(-1);
    EXPECT_FALSE(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    dialog.hide();
    alwaysOnTop = 1;
    dialog.show();
    EXPECT_TRUE(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(ManageNote, cancelAndAFailedSaveStoreNothing) {
    open(-1);
    breakDisk();
    title().setText(u"Camp"_s);
    save();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(u"Camp"_s, title().text());
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(-1, dialog.savedNote());
    EXPECT_TRUE(state.Notes.empty());
}

struct MarkTreasure : DialogFixture {
    std::unique_ptr<frmMarkTreasureAsOpened> dialog;

    void open() {
        dialog = std::make_unique<frmMarkTreasureAsOpened>(context(), refilter(), nullptr);
        dialog->SetTreasureNumber(1);
        dialog->show();
    }
    QLineEdit& box(int k) { return *dialog->findChild<QLineEdit*>(u"txtDate(%1)"_s.arg(k)); }
    ListBox& characters() { return list(*dialog, "lstCharacters"); }
    QPushButton& save() { return button(*dialog, "cmdSave"); }
    std::vector<QString> date() { return {box(0).text(), box(1).text(), box(2).text()}; }
    void enter(const QString& first, const QString& second, const QString& third) {
        box(0).setText(first);
        box(1).setText(second);
        box(2).setText(third);
    }
};

TEST_F(MarkTreasure, theBoxesFollowTheOrderOfThePlayersDates) {
    open();
    EXPECT_THAT(date(), ElementsAre(u"07"_s, u"03"_s, u"2026"_s));
    const auto* separator = dialog->findChild<QLabel*>(u"lblSeparatore(1)"_s);
    EXPECT_EQ(box(1).x() + box(1).width() - 1, separator->x());
    EXPECT_EQ(separator->x() + separator->width(), box(2).x());
    EXPECT_EQ(31, box(2).width());
    desktop.dateFormat = u"yyyy-MM-dd"_s;
    state.Treasures[1].OpenedOn[2] = QDate(2025, 12, 31);
    open();
    EXPECT_THAT(date(), ElementsAre(u"2026"_s, u"03"_s, u"07"_s));
    EXPECT_EQ(31, box(0).width());
    EXPECT_EQ(19, box(1).width());
    EXPECT_THAT(texts(characters()), ElementsAre(u"Aldric"_s, u"Maren (2025-12-31)"_s, u"Ysk"_s));
}

TEST_F(MarkTreasure, theSaveButtonTellsTheDateAndWaitsForACharacter) {
    open();
    EXPECT_FALSE(save().isEnabled());
    QTest::keyClick(&box(0), Qt::Key_Up);
    QTest::keyClick(&box(1), Qt::Key_Down);
    EXPECT_EQ(u"text 92 08-02-2026"_s, save().text().remove(u'&'));
    characters().select(0);
    EXPECT_TRUE(save().isEnabled());
}

TEST_F(MarkTreasure, aBoxTakesDigitsAndStopsOnlyAlsoWhenPasted) {
    open();
    box(0).setFocus();
    box(0).selectAll();
    QTest::keyClicks(&box(0), u"a"_s);
    EXPECT_EQ(u"07"_s, box(0).text());
    QTest::keyClicks(&box(0), u"1x."_s);
    EXPECT_EQ(u"1."_s, box(0).text());
    QApplication::clipboard()->setText(u"2/5\t1"_s);
    box(0).selectAll();
    box(0).paste();
    EXPECT_EQ(u"251"_s, box(0).text());
    QTest::mouseClick(&box(1), Qt::LeftButton);
    EXPECT_EQ(u"03"_s, box(1).selectedText());
}

TEST_F(MarkTreasure, savesTheDayRefiltersAndCloses) {
    open();
    characters().select(2);
    enter(u"05"_s, u"13"_s, u"2011"_s);
    QTest::keyClick(&box(2), Qt::Key_Return);
    EXPECT_EQ(bytes("0001\t05012012\r\n"), saved("Char03OpenedTreasures.txt"));
    EXPECT_EQ(QDate(2012, 1, 5), state.Treasures[1].OpenedOn[3]);
    EXPECT_EQ(1, refilters);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(MarkTreasure, anImpossibleDateOrAFailedSaveLeavesEverythingAsItWas) {
    open();
    characters().select(0);
    enter(u"31"_s, u"02"_s, u"2011"_s);
    save().click();
    EXPECT_EQ(u"message Critical Orvinel|text 104"_s, desktop.log.last());
    breakDisk();
    box(1).setText(u"03"_s);
    save().click();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_THAT(date(), ElementsAre(u"31"_s, u"03"_s, u"2011"_s));
    EXPECT_FALSE(state.Treasures[1].OpenedOn[1].isValid());
    EXPECT_EQ(0, refilters);
}

} // namespace
} // namespace orvinel
