#include "ui/platform/PictureButton.h"

#include <QKeyEvent>
#include <QPainter>

namespace orvinel {

PictureButton::PictureButton(const QString& name, const QString& picture, const QString& spoken,
                             QWidget* parent)
    : QAbstractButton(parent), picture_(picture) {
    setObjectName(name);
    setAccessibleName(spoken);
    setToolTip(spoken);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::ArrowCursor);
    resize(sizeHint());
}

void PictureButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int pressed = isDown() ? 1 : 0;
    painter.drawImage(rect().translated(pressed, pressed), picture_);
    if (hasFocus()) {
        painter.setPen(QPen(Qt::yellow, 1, Qt::DotLine));
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
}

void PictureButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

} // namespace orvinel
