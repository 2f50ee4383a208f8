#include "ui/dialogs/frmManageCharacter.h"

#include "app/Saving.h"
#include "app/modLanguage.h"
#include "progress/CapturedSkills.h"
#include "ui/platform/Label.h"
#include "ui/platform/ListBox.h"
#include "ui/platform/TextField.h"
#include "world/modCampaigns.h"

#include <QPushButton>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize client{486, 415};
constexpr QPoint nameLabelAt{8, 6};
constexpr QRect nameAt{6, 20, 180, 21};
constexpr QPoint campaignLabelAt{8, 48};
constexpr QRect campaignAt{6, 62, 180, ListBox::wholeLines(88)};
constexpr QPoint professionLabelAt{8, 160};
constexpr QRect professionAt{6, 174, 180, ListBox::wholeLines(158)};
constexpr QPoint skillsLabelAt{198, 6};
constexpr QRect skillsAt{196, 20, 285, ListBox::wholeLines(312)};
constexpr QRect selectAllAt{196, 337, 91, 31};
constexpr QRect deselectAllAt{293, 337, 91, 31};
constexpr QRect invertAt{390, 337, 91, 31};
constexpr QRect saveAt{316, 378, 79, 31};
constexpr QRect cancelAt{402, 378, 79, 31};

// The first entry of both filters stands for all.
int filterOf(const ListBox& list) {
    return list.selectedIndex() > 0 ? list.selectedEntry().data : -1;
}

} // namespace

frmManageCharacter::frmManageCharacter(DialogContext context, QWidget* owner)
    : Dialog(u"frmManageCharacter"_s, client, context, owner) {
    addLabel(u"lblName"_s, nameLabelAt, state().text(Caption::CharacterName));
    txtName_ = new TextField(u"txtName"_s, state().text(Caption::CharacterName), this);
    txtName_->setGeometry(nameAt);
    addFilters();
    addSkills();
    addEnd();
}

void frmManageCharacter::addFilters() {
    addLabel(u"lblCampaign"_s, campaignLabelAt, state().text(Caption::Campaign));
    lstCampaign_ = addList(u"lstCampaign"_s, campaignAt, state().text(Caption::Campaign));
    addLabel(u"lblProfession"_s, professionLabelAt, state().text(Caption::EditorProfession));
    lstProfession_ = addList(u"lstProfession"_s, professionAt, state().text(Caption::EditorProfession));
    connect(lstCampaign_, &ListBox::picked, this, &frmManageCharacter::fillSkills);
    connect(lstProfession_, &ListBox::picked, this, &frmManageCharacter::fillSkills);
}

void frmManageCharacter::addSkills() {
    addLabel(u"lblEliteList"_s, skillsLabelAt, state().text(Caption::CapturedEliteSkills));
    lstElite_ = addList(u"lstElite"_s, skillsAt, state().text(Caption::CapturedEliteSkills));
    auto* cmdSelectAll = addButton(u"cmdSelectAll"_s, selectAllAt, state().text(Caption::SelectAll));
    auto* cmdDeselectAll = addButton(u"cmdDeselectAll"_s, deselectAllAt, state().text(Caption::ClearAll));
    auto* cmdInvertSelection = addButton(u"cmdInvertSelection"_s, invertAt, state().text(Caption::Invert));
    connect(lstElite_, &ListBox::checkToggled, this, &frmManageCharacter::toggle);
    connect(cmdSelectAll, &QPushButton::clicked, this, [this] { selectAll(true); });
    connect(cmdDeselectAll, &QPushButton::clicked, this, [this] { selectAll(false); });
    connect(cmdInvertSelection, &QPushButton::clicked, this, &frmManageCharacter::invert);
}

void frmManageCharacter::addEnd() {
    auto* cmdSave = addButton(u"cmdSave"_s, saveAt, state().text(Caption::Save));
    auto* cmdCancel = addButton(u"cmdCancel"_s, cancelAt, state().text(Caption::Cancel));
    cmdSave->setDefault(true);
    connect(cmdSave, &QPushButton::clicked, this, &frmManageCharacter::save);
    connect(cmdCancel, &QPushButton::clicked, this, &frmManageCharacter::reject);
}

void frmManageCharacter::load() {
    const QString name = character_ >= 1 ? state().Characters[character_] : QString();
    setWindowTitle(character_ >= 1 ? name : state().text(Caption::NewCharacter));
    selection_ = characterSelection(state(), character_);
    lstCampaign_->setEntries(campaignEntries(state()));
    lstProfession_->setEntries(editorProfessionEntries(state()));
    fillSkills();
    txtName_->setText(name);
    txtName_->setFocus();
    txtName_->selectAll();
}

void frmManageCharacter::fillSkills() {
    lstElite_->setEntries(editorSkillEntries(state(), filterOf(*lstCampaign_), filterOf(*lstProfession_)));
    showChecks();
}

void frmManageCharacter::showChecks() {
    std::vector<bool> checks;
    checks.reserve(static_cast<size_t>(lstElite_->count()));
    for (const int id : lstElite_->items())
        checks.push_back(selection_[static_cast<size_t>(id)]);
    lstElite_->setChecks(std::move(checks));
}

void frmManageCharacter::toggle(int index, bool on) {
    const int id = lstElite_->entry(index).data;
    if (isMarkable(id)) {
        selectListed(selection_, ListedItems(&id, 1), on);
        return;
    }
    showChecks();
    tellProblem(state().text(Caption::SkillNumberTooLarge));
}

void frmManageCharacter::selectAll(bool selected) {
    selectListed(selection_, lstElite_->items(), selected);
    showChecks();
}

void frmManageCharacter::invert() {
    invertListed(selection_, lstElite_->items());
    showChecks();
}

bool frmManageCharacter::checkEntries() {
    const NameProblem problem = checkName(state(), txtName_->line(), character_);
    if (problem != NameProblem::None) {
        tellProblem(state().text(problem == NameProblem::Empty ? Caption::NameMissing : Caption::NameTaken),
                    *txtName_);
        return false;
    }
    if (character_ < 1 && freeCharacterNumber(state()) > mostCharacters) {
        tellProblem(state().text(Caption::TooManyCharacters));
        return false;
    }
    return true;
}

void frmManageCharacter::save() {
    if (!checkEntries())
        return;
    CharacterEdit edit{character_, txtName_->line(), selection_};
    if (!saveAndTell(state(), desktop(), [&](bool evenIfChanged) {
            return saveCharacter(state(), files(), edit, evenIfChanged);
        }))
        return;
    character_ = edit.number;
    accept();
}

} // namespace orvinel
