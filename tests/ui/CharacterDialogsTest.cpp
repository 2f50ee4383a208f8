#include "app/modLanguage.h"
#include "progress/CapturedSkills.h"
#include "ui/DialogFixture.h"
#include "ui/dialogs/frmCharacterList.h"
#include "ui/dialogs/frmManageCharacter.h"
#include "ui/dialogs/frmMarkEliteAsCaptured.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;

struct MarkElite : DialogFixture {
    frmMarkEliteAsCaptured dialog{context(), refilter(), nullptr};

    void open(int skill, int chosen) {
        dialog.SetEliteNumber(skill);
        dialog.setCharacter(chosen);
        dialog.show();
    }
    ListBox& characters() { return list(dialog, "lstCharacters"); }
    QPushButton& save() { return button(dialog, "cmdSave"); }
};

TEST_F(MarkElite, offersThoseWithoutTheSkillAndSelectsTheChosenOneIfItIsThere) {
    open(3, 2);
    EXPECT_EQ(u"Elite: Cedar"_s, dialog.windowTitle());
    EXPECT_THAT(texts(characters()), ElementsAre(u"Maren"_s, u"Ysk"_s));
    EXPECT_EQ(2, characters().selectedEntry().data);
    EXPECT_TRUE(save().isEnabled());
}

TEST_F(MarkElite, cannotSaveUntilACharacterIsPicked) {
    open(3, 1);
    EXPECT_FALSE(characters().hasSelection());
    EXPECT_FALSE(save().isEnabled());
    QTest::keyClick(&characters(), Qt::Key_Down);
    EXPECT_TRUE(save().isEnabled());
    QTest::keyClick(&characters(), Qt::Key_Return);
    EXPECT_TRUE(state.EliteSkills[3].capturedBy(2));
}

TEST_F(MarkElite, savesRefiltersAndCloses) {
    open(5, 1);
    save().click();
    EXPECT_EQ(bytes("0003\r\n0005\r\n"), saved("Char01CapElite.txt"));
    EXPECT_EQ(1, refilters);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(MarkElite, mayBeGoneBeforeTheListIsFilled) {
    QPointer<frmMarkEliteAsCaptured> other;
    other = new frmMarkEliteAsCaptured(
        context(), [&] { delete other; }, &dialog);
    other->setCharacter(1);
    other->SetEliteNumber(5);
    other->show();
    button(*other, "cmdSave").click();
    EXPECT_FALSE(other);
    EXPECT_TRUE(state.EliteSkills[5].capturedBy(1));
}

TEST_F(MarkElite, staysOpenWithItsSelectionWhenTheFileCannotBeWritten) {
    open(5, 2);
    breakDisk();
    save().click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(desktop.log.last().startsWith(u"message Critical Orvinel|"_s));
    EXPECT_EQ(2, characters().selectedEntry().data);
    EXPECT_FALSE(state.EliteSkills[5].capturedBy(2));
    EXPECT_EQ(0, refilters);
}

TEST_F(MarkElite, doesNotMarkForACharacterThatWasDeletedMeanwhile) {
    open(5, 2);
    state.Characters[2].clear();
    save().click();
    EXPECT_FALSE(disk.exists(personal("Char02CapElite.txt")));
    EXPECT_THAT(texts(characters()), ElementsAre(u"Aldric"_s, u"Ysk"_s));
    EXPECT_FALSE(save().isEnabled());
}

TEST_F(MarkElite, takesTheNextSkillAndFollowsCapturesMadeElsewhereToTheLast) {
    open(5, 2);
    dialog.setCharacter(0);
    dialog.SetEliteNumber(3);
    EXPECT_EQ(u"Elite: Cedar"_s, dialog.windowTitle());
    EXPECT_THAT(texts(characters()), ElementsAre(u"Maren"_s, u"Ysk"_s));
    EXPECT_FALSE(save().isEnabled());
    characters().select(1);
    state.EliteSkills[3].Captured[2] = true;
    dialog.follow();
    EXPECT_EQ(3, characters().selectedEntry().data);
    EXPECT_TRUE(save().isEnabled());
    state.EliteSkills[3].Captured[3] = true;
    dialog.follow();
    EXPECT_EQ(0, characters().count());
    EXPECT_FALSE(save().isEnabled());
    EXPECT_EQ(state.text(Caption::NobodyLeft), dialog.findChild<QLabel*>(u"lblExplanation"_s)->text());
    dialog.SetEliteNumber(5);
    EXPECT_EQ(state.text(Caption::ChooseCapturer), dialog.findChild<QLabel*>(u"lblExplanation"_s)->text());
}

TEST_F(MarkElite, refusesASkillWhoseNumberTheFileCannotHold) {
    state.EliteSkills.grow(10002);
    open(10002, 1);
    save().click();
    EXPECT_EQ(u"message Critical Orvinel|"_s + state.text(Caption::SkillNumberTooLarge), desktop.log.last());
    EXPECT_TRUE(dialog.isVisible());
}

struct ManageCharacter : DialogFixture {
    frmManageCharacter dialog{context(), nullptr};

    void open(int number) {
        dialog.SetCurrentCharacter(number);
        dialog.show();
    }
    ListBox& skills() { return list(dialog, "lstElite"); }
    QLineEdit& name() { return field(dialog, "txtName"); }
    void press(const char* buttonName) { button(dialog, buttonName).click(); }
    std::vector<bool> checks() {
        std::vector<bool> states;
        for (int i = 0; i < skills().count(); ++i)
            states.push_back(skills().isChecked(i));
        return states;
    }
};

TEST_F(ManageCharacter, showsTheNameAndTheCapturesOfTheCharacter) {
    open(1);
    EXPECT_EQ(u"Aldric"_s, dialog.windowTitle());
    EXPECT_EQ(u"Aldric"_s, name().selectedText());
    EXPECT_THAT(texts(skills()),
                ElementsAre(u"Ash [S]"_s, u"Birch [W]"_s, u"Cedar [S]"_s, u"Dogwood [W]"_s, u"Elm [S]"_s));
    EXPECT_THAT(checks(), ElementsAre(false, false, true, false, false));
    EXPECT_THAT(texts(list(dialog, "lstCampaign")),
                ElementsAre(u"<<< text 9 >>>"_s, u"Core"_s, u"Rimefall"_s));
    EXPECT_THAT(texts(list(dialog, "lstProfession")),
                ElementsAre(u"<<< text 9 >>>"_s, u"Warden"_s, u"Seer"_s));
}

TEST_F(ManageCharacter, keepsTheStateOfSkillsThatTheFiltersHide) {
    open(1);
    list(dialog, "lstCampaign").select(1);
    EXPECT_THAT(texts(skills()), ElementsAre(u"Birch [W]"_s, u"Dogwood [W]"_s));
    press("cmdSelectAll");
    list(dialog, "lstCampaign").select(0);
    EXPECT_THAT(checks(), ElementsAre(false, true, true, true, false));
    list(dialog, "lstProfession").select(2);
    press("cmdInvertSelection");
    EXPECT_THAT(checks(), ElementsAre(true, false, true));
    list(dialog, "lstProfession").select(0);
    EXPECT_THAT(checks(), ElementsAre(true, true, false, true, true));
    press("cmdDeselectAll");
    EXPECT_THAT(checks(), ElementsAre(false, false, false, false, false));
}

TEST_F(ManageCharacter, savesANewCharacterWithTheCheckedSkills) {
    open(-1);
    EXPECT_EQ(u"text 21"_s, dialog.windowTitle());
    name().setText(u" Ode\tOne"_s);
    skills().select(1);
    QTest::keyClick(&skills(), Qt::Key_Space);
    QTest::keyClick(&skills(), Qt::Key_Down);
    QTest::keyClick(&skills(), Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(4, dialog.currentCharacter());
    EXPECT_EQ(u" Ode One"_s, state.Characters[4]);
    EXPECT_EQ(bytes("0002\r\n"), saved("Char04CapElite.txt"));
    EXPECT_EQ(4, static_cast<int>(state.Treasures[1].OpenedOn.size()) - 1);
}

TEST_F(ManageCharacter, refusesABadNameAndPutsTheFocusBackIntoIt) {
    open(2);
    name().setText(u"  "_s);
    button(dialog, "cmdSave").setFocus();
    press("cmdSave");
    EXPECT_EQ(u"message Critical Orvinel|text 28"_s, desktop.log.last());
    EXPECT_EQ(&name(), dialog.focusWidget());
    EXPECT_EQ(u"  "_s, name().selectedText());
    name().setText(u"ALDRIC"_s);
    press("cmdSave");
    EXPECT_EQ(u"ALDRIC"_s, name().selectedText());
    EXPECT_EQ(u"message Critical Orvinel|text 29"_s, desktop.log.last());
    EXPECT_TRUE(dialog.isVisible());
    name().setText(u"MAREN"_s);
    press("cmdSave");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(u"MAREN"_s, state.Characters[2]);
}

TEST_F(ManageCharacter, keepsWhatWasEnteredWhenSavingFails) {
    open(1);
    breakDisk();
    name().setText(u"Berta"_s);
    press("cmdSelectAll");
    press("cmdSave");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(u"Berta"_s, name().text());
    EXPECT_THAT(checks(), ElementsAre(true, true, true, true, true));
    EXPECT_EQ(u"Aldric"_s, state.Characters[1]);
    EXPECT_FALSE(state.EliteSkills[1].capturedBy(1));
    disk.failAt = 0;
    press("cmdSave");
    EXPECT_EQ(bytes("0001\r\n0002\r\n0003\r\n0004\r\n0005\r\n"), saved("Char01CapElite.txt"));
}

TEST_F(ManageCharacter, leavesASkillUncheckedWhoseNumberTheFileCannotHold) {
    state.EliteSkills.grow(9999);
    addSkill(u"Yew"_s);
    open(1);
    skills().select(skills().count() - 1);
    ASSERT_EQ(10000, skills().selectedEntry().data);
    QTest::keyClick(&skills(), Qt::Key_Space);
    EXPECT_FALSE(skills().isChecked(skills().selectedIndex()));
    EXPECT_EQ(u"message Critical Orvinel|"_s + state.text(Caption::SkillNumberTooLarge), desktop.log.last());
    press("cmdSelectAll");
    EXPECT_FALSE(checks().back());
    EXPECT_TRUE(checks().front());
}

struct CharacterList : DialogFixture {
    frmCharacterList dialog{context(), nullptr};

    CharacterList() { dialog.show(); }
    ListBox& characters() { return list(dialog, "lstCharacters"); }
    // Runs `act` on the editor as soon as `open` has shown it.
    void inEditor(const std::function<void()>& open, const std::function<void(Dialog&)>& act) {
        QTimer::singleShot(0, &dialog, [act] {
            auto* editor = qobject_cast<frmManageCharacter*>(QApplication::activeModalWidget());
            ASSERT_TRUE(editor);
            act(*editor);
            editor->reject();
        });
        open();
    }
};

TEST_F(CharacterList, offersToChangeOrDeleteOnlyASelectedCharacter) {
    EXPECT_THAT(texts(characters()), ElementsAre(u"Aldric"_s, u"Maren"_s, u"Ysk"_s));
    EXPECT_FALSE(button(dialog, "cmdModify").isEnabled());
    EXPECT_FALSE(button(dialog, "cmdDelete").isEnabled());
    characters().select(2);
    EXPECT_TRUE(button(dialog, "cmdModify").isEnabled());
    EXPECT_TRUE(button(dialog, "cmdDelete").isEnabled());
}

TEST_F(CharacterList, opensTheEditorForTheSelectedAndForANewCharacter) {
    characters().select(1);
    inEditor([this] { QTest::keyClick(&characters(), Qt::Key_Return); },
             [](Dialog& editor) {
                 EXPECT_EQ(u"Maren"_s, editor.windowTitle());
                 field(editor, "txtName").setText(u"Marenka"_s);
                 button(editor, "cmdSave").click();
             });
    EXPECT_THAT(texts(characters()), ElementsAre(u"Aldric"_s, u"Marenka"_s, u"Ysk"_s));
    EXPECT_FALSE(button(dialog, "cmdModify").isEnabled());
    inEditor([this] { button(dialog, "cmdCreate").click(); },
             [](Dialog& editor) { EXPECT_EQ(u"text 21"_s, editor.windowTitle()); });
    EXPECT_EQ(3, characters().count());
}

TEST_F(CharacterList, deletesOnlyAfterYes) {
    desktop.answer = false;
    characters().select(0);
    button(dialog, "cmdDelete").click();
    EXPECT_EQ(u"ask None Orvinel|text 19 Aldric ?"_s, desktop.log.last());
    EXPECT_EQ(3, characters().count());
    desktop.answer = true;
    button(dialog, "cmdDelete").click();
    EXPECT_THAT(texts(characters()), ElementsAre(u"Maren"_s, u"Ysk"_s));
    EXPECT_EQ(bytes("02\tMaren\r\n03\tYsk\r\n"), saved("Characters.txt"));
    EXPECT_FALSE(state.EliteSkills[3].capturedBy(1));
    EXPECT_FALSE(button(dialog, "cmdDelete").isEnabled());
}

TEST_F(CharacterList, refusesAHundredthCharacter) {
    for (int n = 4; n <= 99; ++n)
        state.Characters.append(u"Nobody %1"_s.arg(n));
    button(dialog, "cmdCreate").click();
    EXPECT_EQ(u"message Critical Orvinel|"_s + state.text(Caption::TooManyCharacters), desktop.log.last());
    EXPECT_FALSE(QApplication::activeModalWidget());
}

} // namespace
} // namespace orvinel
