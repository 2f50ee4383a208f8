#include "ui/dialogs/frmManageNote.h"

#include "app/Saving.h"
#include "app/modLanguage.h"
#include "layers/modNotes.h"
#include "ui/platform/Label.h"
#include "ui/platform/TextField.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize client{314, 325};
constexpr QPoint titleLabelAt{8, 6};
constexpr QRect titleAt{6, 20, 303, 21};
constexpr QPoint bodyLabelAt{6, 46};
constexpr QRect bodyAt{6, 60, 303, 219};
constexpr QRect saveAt{144, 288, 79, 31};
constexpr QRect cancelAt{230, 288, 79, 31};

} // namespace

frmManageNote::frmManageNote(DialogContext context, QWidget* owner)
    : Dialog(u"frmManageNote"_s, client, context, owner) {
    setWindowTitle(state().text(Caption::Notes));
    addLabel(u"lblShortDesc"_s, titleLabelAt, state().text(Caption::NoteTitle));
    txtShortDesc_ = new TextField(u"txtShortDesc"_s, state().text(Caption::NoteTitle), this);
    txtShortDesc_->setGeometry(titleAt);
    addLabel(u"lblNoteBody"_s, bodyLabelAt, state().text(Caption::NoteText));
    txtBody_ = new QPlainTextEdit(this);
    txtBody_->setObjectName(u"txtBody"_s);
    txtBody_->setAccessibleName(state().text(Caption::NoteText));
    txtBody_->setGeometry(bodyAt);
    txtBody_->setTabChangesFocus(true);
    auto* cmdSave = addButton(u"cmdSave"_s, saveAt, state().text(Caption::Save));
    auto* cmdCancel = addButton(u"cmdCancel"_s, cancelAt, state().text(Caption::Cancel));
    cmdSave->setDefault(true);
    connect(cmdSave, &QPushButton::clicked, this, &frmManageNote::save);
    connect(cmdCancel, &QPushButton::clicked, this, &frmManageNote::reject);
    // A longer title from the file stays whole, but it cannot grow.
    connect(txtShortDesc_, &TextField::textEdited, this, [this](const QString& text) {
        txtShortDesc_->setMaxLength(std::max(longestNoteTitle, static_cast<int>(text.size())));
    });
}

void frmManageNote::load() {
    const bool known = state().Notes.has(note_);
    const QString title = known ? state().Notes[note_].ShortDesc : u"General Note"_s;
    txtShortDesc_->setMaxLength(std::max(longestNoteTitle, static_cast<int>(title.size())));
    txtShortDesc_->setText(title);
    txtBody_->setPlainText(known ? state().Notes[note_].Body : QString());
    txtShortDesc_->setFocus();
    txtShortDesc_->selectAll();
}

bool frmManageNote::checkTitle() {
    const NoteProblem problem = checkNote(txtShortDesc_->line());
    if (problem == NoteProblem::None)
        return true;
    tellProblem(
        state().text(problem == NoteProblem::EmptyTitle ? Caption::TitleMissing : Caption::TitleIsComment),
        *txtShortDesc_);
    return false;
}

// The field's own plain text would turn every no-break space into a blank.
QString frmManageNote::bodyText() const {
    QString text = txtBody_->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return text;
}

void frmManageNote::save() {
    if (!checkTitle())
        return;
    NoteEdit edit{note_, txtShortDesc_->line(), bodyText(), campaign_, region_, x_, y_};
    if (!saveAndTell(state(), desktop(),
                     [&](bool evenIfChanged) { return storeNote(state(), files(), edit, evenIfChanged); }))
        return;
    saved_ = edit.index;
    accept();
}

} // namespace orvinel
