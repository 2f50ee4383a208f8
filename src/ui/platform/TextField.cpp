#include "ui/platform/TextField.h"

#include "base/TextRules.h"

#include <QApplication>
#include <QFocusEvent>
#include <QMouseEvent>

namespace orvinel {

TextField::TextField(const QString& name, const QString& caption, QWidget* parent) : QLineEdit(parent) {
    setObjectName(name);
    setAccessibleName(caption);
}

QString TextField::line() const {
    return oneLine(text());
}

void TextField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    // Coming back from another window must not throw away what the player had selected.
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason)
        return;
    selectOnClick_ = event->reason() == Qt::MouseFocusReason;
    selectAll();
}

void TextField::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    pressed_ = event->position().toPoint();
    selectOnClick_ = (selectOnClick_ || eachClick_) && event->button() == Qt::LeftButton;
    if (selectOnClick_)
        selectAll();
}

void TextField::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    const QPoint way = event->position().toPoint() - pressed_;
    // A hand that trembles while clicking has changed the selection by a letter.
    if (selectOnClick_ && way.manhattanLength() < QApplication::startDragDistance())
        selectAll();
    selectOnClick_ = false;
}

} // namespace orvinel
