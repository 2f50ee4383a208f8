#include "ui/dialogs/frmCharacterList.h"

#include "app/Saving.h"
#include "app/modLanguage.h"
#include "progress/CharacterEditing.h"
#include "ui/dialogs/frmManageCharacter.h"
#include "ui/platform/Label.h"
#include "ui/platform/ListBox.h"

#include <QPushButton>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize client{314, 252};
constexpr QPoint charactersLabelAt{8, 6};
constexpr QRect charactersAt{6, 20, 213, ListBox::wholeLines(228)};
constexpr QRect createAt{230, 20, 79, 31};
constexpr QRect modifyAt{230, 56, 79, 31};
constexpr QRect deleteAt{230, 92, 79, 31};
constexpr QRect cancelAt{230, 217, 79, 31};

} // namespace

frmCharacterList::frmCharacterList(DialogContext context, QWidget* owner)
    : Dialog(u"frmCharacterList"_s, client, context, owner) {
    setWindowTitle(state().text(Caption::Characters));
    addControls();
    connect(lstCharacters_, &ListBox::picked, this, [this] {
        cmdModify_->setEnabled(true);
        cmdDelete_->setEnabled(true);
    });
    connect(lstCharacters_, &ListBox::activatedEntry, this, &frmCharacterList::modify);
    connect(cmdCreate_, &QPushButton::clicked, this, &frmCharacterList::create);
    connect(cmdModify_, &QPushButton::clicked, this, &frmCharacterList::modify);
    connect(cmdDelete_, &QPushButton::clicked, this, &frmCharacterList::remove);
}

void frmCharacterList::addControls() {
    addLabel(u"lblCharacters"_s, charactersLabelAt, state().text(Caption::MyCharacters));
    lstCharacters_ = addList(u"lstCharacters"_s, charactersAt, state().text(Caption::MyCharacters));
    cmdCreate_ = addButton(u"cmdCreate"_s, createAt, state().text(Caption::NewCharacterButton));
    cmdModify_ = addButton(u"cmdModify"_s, modifyAt, state().text(Caption::EditCharacter));
    cmdDelete_ = addButton(u"cmdDelete"_s, deleteAt, state().text(Caption::DeleteCharacter));
    auto* cmdCancel = addButton(u"cmdCancel"_s, cancelAt, state().text(Caption::Cancel));
    connect(cmdCancel, &QPushButton::clicked, this, &frmCharacterList::reject);
}

void frmCharacterList::load() {
    fillCharacters();
    (lstCharacters_->count() > 0 ? static_cast<QWidget*>(lstCharacters_) : cmdCreate_)->setFocus();
}

void frmCharacterList::fillCharacters() {
    lstCharacters_->setEntries(namedCharacters(state()));
    // Before its button goes grey, so that the focus does not wander off to the next one.
    lstCharacters_->setFocus();
    cmdModify_->setEnabled(false);
    cmdDelete_->setEnabled(false);
}

void frmCharacterList::create() {
    if (freeCharacterNumber(state()) > mostCharacters)
        tellProblem(state().text(Caption::TooManyCharacters));
    else
        edit(-1);
}

void frmCharacterList::modify() {
    edit(lstCharacters_->selectedEntry().data);
}

void frmCharacterList::edit(int number) {
    frmManageCharacter editor(context(), this);
    editor.SetCurrentCharacter(number);
    editor.exec();
    fillCharacters();
}

void frmCharacterList::remove() {
    const ListEntry character = lstCharacters_->selectedEntry();
    const QString question = state().text(Caption::DeleteCharacterQuestion) + u' ' + character.text + u" ?"_s;
    if (!desktop().ask(MessageIcon::None, programName(), question))
        return;
    saveAndTell(state(), desktop(), [&](bool evenIfChanged) {
        return deleteCharacter(state(), files(), character.data, evenIfChanged);
    });
    fillCharacters();
}

} // namespace orvinel
