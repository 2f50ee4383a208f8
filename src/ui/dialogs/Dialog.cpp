#include "ui/dialogs/Dialog.h"

#include "app/modLanguage.h"
#include "ui/platform/DialogPlace.h"
#include "ui/platform/Label.h"
#include "ui/platform/ListBox.h"
#include "ui/platform/SpokenRole.h"
#include "ui/platform/Windows.h"

#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace orvinel {

namespace {

// The caption as a button takes it: the letter at `mnemonic` (-1: none) underlined, other "&" as themselves.
QString buttonText(const QString& caption, qsizetype mnemonic) {
    QString text;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (i == mnemonic || caption[i] == u'&')
            text += u'&';
        text += caption[i];
    }
    return text;
}

} // namespace

Dialog::Dialog(const QString& name, QSize client, DialogContext context, QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint), context_(context) {
    setSpokenRole(*this, QAccessible::Dialog);
    setObjectName(name);
    setFixedSize(client);
    setCursor(programCursor(Pointer::Usual));
}

Label* Dialog::addLabel(const QString& name, QPoint at, const QString& caption) {
    auto* label = new Label(name, this);
    label->move(at);
    label->setCaption(caption);
    return label;
}

ListBox* Dialog::addList(const QString& name, const QRect& place, const QString& caption) {
    auto* list = new ListBox(name, this);
    list->setGeometry(place);
    list->setAccessibleName(caption);
    return list;
}

QPushButton* Dialog::addButton(const QString& name, const QRect& place, const QString& caption) {
    const auto isFree = [this](QChar c) { return c.isLetter() && !letters_.contains(c.toLower()); };
    const auto found = std::find_if(caption.begin(), caption.end(), isFree);
    const qsizetype mnemonic = found == caption.end() ? -1 : found - caption.begin();
    if (mnemonic >= 0)
        letters_ += found->toLower();
    auto* button = new QPushButton(buttonText(caption, mnemonic), this);
    button->setObjectName(name);
    button->setGeometry(place);
    return button;
}

void Dialog::setCaption(QPushButton& button, const QString& caption) {
    const QString keys = button.shortcut().toString(QKeySequence::PortableText);
    const qsizetype mnemonic = keys.isEmpty() ? -1 : caption.indexOf(keys.back(), 0, Qt::CaseInsensitive);
    button.setText(buttonText(caption, mnemonic));
}

void Dialog::tellProblem(const QString& text) {
    desktop().message(MessageIcon::Critical, programName(), text);
}

// The field has its focus back, or never lost it: neither selects what the window's return finds there.
void Dialog::tellProblem(const QString& text, QLineEdit& field) {
    tellProblem(text);
    field.setFocus();
    field.selectAll();
}

void Dialog::done(int result) {
    QDialog::done(result);
    if (parentWidget())
        parentWidget()->window()->activateWindow();
}

void Dialog::place() {
    if (!asked_.isEmpty())
        moveBeside(*this, asked_);
    else if (qobject_cast<Dialog*>(parentWidget()))
        moveOver(*this);
}

void Dialog::showEvent(QShowEvent* event) {
    if (!loaded_) {
        loaded_ = true;
        load();
        place();
    }
    setAlwaysOnTop(*this, context_.alwaysOnTop == 1);
    keepOffTaskBar(*this);
    QDialog::showEvent(event);
}

} // namespace orvinel
