#include "ui/dialogs/frmMarkEliteAsCaptured.h"

#include "app/Saving.h"
#include "app/modLanguage.h"
#include "progress/CapturedSkills.h"
#include "ui/platform/Label.h"
#include "ui/platform/ListBox.h"

#include <QPointer>
#include <QPushButton>

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize client{314, 245};
constexpr QPoint charactersLabelAt{8, 6};
constexpr QRect charactersAt{6, 20, 303, ListBox::wholeLines(158)};
constexpr QPoint explanationAt{8, 182};
constexpr int explanationWidth = 299; // two lines in the longest language
constexpr QRect saveAt{144, 208, 79, 31};
constexpr QRect cancelAt{230, 208, 79, 31};

} // namespace

frmMarkEliteAsCaptured::frmMarkEliteAsCaptured(DialogContext context, std::function<void()> refilter,
                                               QWidget* owner)
    : Dialog(u"frmMarkEliteAsCaptured"_s, client, context, owner), refilter_(std::move(refilter)) {
    addLabel(u"lblCharacters"_s, charactersLabelAt, state().text(Caption::Characters));
    lstCharacters_ = addList(u"lstCharacters"_s, charactersAt, state().text(Caption::Characters));
    lblExplanation_ = addLabel(u"lblExplanation"_s, explanationAt, {});
    lblExplanation_->setWrapWidth(explanationWidth);
    cmdSave_ = addButton(u"cmdSave"_s, saveAt, state().text(Caption::Captured));
    auto* cmdCancel = addButton(u"cmdCancel"_s, cancelAt, state().text(Caption::Cancel));
    cmdSave_->setDefault(true);
    connect(lstCharacters_, &ListBox::picked, this, [this] { cmdSave_->setEnabled(true); });
    connect(cmdSave_, &QPushButton::clicked, this, &frmMarkEliteAsCaptured::save);
    connect(cmdCancel, &QPushButton::clicked, this, &frmMarkEliteAsCaptured::reject);
}

void frmMarkEliteAsCaptured::SetEliteNumber(int id) {
    skill_ = id;
    if (isVisible())
        load();
}

void frmMarkEliteAsCaptured::load() {
    setWindowTitle(u"Elite: "_s + state().EliteSkills[skill_].Name);
    fillCharacters(chosen_);
    lstCharacters_->setFocus();
}

void frmMarkEliteAsCaptured::follow() {
    fillCharacters(lstCharacters_->hasSelection() ? lstCharacters_->selectedEntry().data : 0);
}

void frmMarkEliteAsCaptured::fillCharacters(int wanted) {
    lstCharacters_->setEntries(charactersToCapture(state(), skill_));
    cmdSave_->setEnabled(false);
    if (wanted > 0)
        lstCharacters_->selectData(wanted);
    const bool anybody = lstCharacters_->count() > 0;
    const QString explanation = state().text(anybody ? Caption::ChooseCapturer : Caption::NobodyLeft);
    lblExplanation_->setCaption(explanation);
    lstCharacters_->setAccessibleDescription(explanation);
}

void frmMarkEliteAsCaptured::save() {
    if (!isMarkable(skill_)) {
        tellProblem(state().text(Caption::SkillNumberTooLarge));
        return;
    }
    // The panel stays usable beside this dialog: the character may have been deleted meanwhile.
    const ListEntry character = lstCharacters_->selectedEntry();
    const std::vector<ListEntry> possible = charactersToCapture(state(), skill_);
    if (std::find(possible.begin(), possible.end(), character) == possible.end()) {
        follow();
        return;
    }
    const auto capture = [&](bool evenIfChanged) {
        return captureSkill(state(), files(), skill_, character.data, evenIfChanged);
    };
    if (!saveAndTell(state(), desktop(), capture))
        return;
    // A screen reader's press of another button is handled while the list is filled, and may close the
    // dialog.
    const QPointer<frmMarkEliteAsCaptured> open(this);
    const auto refilter = refilter_;
    refilter();
    if (open)
        accept();
}

} // namespace orvinel
