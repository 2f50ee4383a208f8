#include "ui/dialogs/DateBox.h"

#include <QKeyEvent>
#include <QValidator>

#include <algorithm>

namespace orvinel {

namespace {

bool isForbidden(QChar c) {
    return !(c >= u'0' && c <= u'9') && c != u'.';
}

// Takes out what does not belong into a date, whichever way it comes in: pasted, dropped, by an input method.
class DateCharacters : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& text, int& position) const override {
        const auto cursor = text.begin() + std::min<qsizetype>(position, text.size());
        position -= static_cast<int>(std::count_if(text.begin(), cursor, isForbidden));
        text.removeIf(isForbidden);
        return Acceptable;
    }
};

} // namespace

DateBox::DateBox(const QString& name, QWidget* parent) : TextField(name, {}, parent) {
    setValidator(new DateCharacters(this));
    setAlignment(Qt::AlignHCenter);
    selectOnEachClick();
}

void DateBox::setPart(DatePart part, const QString& caption) {
    part_ = part;
    setAccessibleName(caption);
}

void DateBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
        setText(stepDate(part_, text(), event->key() == Qt::Key_Up ? 1 : -1));
        selectAll();
        return;
    }
    // Here and not in the validator: a wrong key must not replace the selected text by nothing.
    const QString typed = event->text();
    const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (!command && !typed.isEmpty() && typed[0].isPrint() && isForbidden(typed[0]))
        return;
    TextField::keyPressEvent(event);
}

} // namespace orvinel
