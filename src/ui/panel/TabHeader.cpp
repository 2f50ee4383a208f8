#include "ui/panel/TabHeader.h"

#include "ui/panel/Controls.h"
#include "ui/platform/Drawing.h"
#include "ui/platform/Fonts.h"
#include "ui/platform/Windows.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

TabHeader::TabHeader(Tab tab, const QString& caption, Colour textColour, QWidget* parent)
    : QAbstractButton(parent), textColour_(textColour) {
    setObjectName(arrayName(u"lblTab"_s, static_cast<int>(tab)));
    setText(caption);
    setFont(arial(points8_25, true));
    setFocusPolicy(Qt::NoFocus);
    setCursor(programCursor(Pointer::Usual));
}

void TabHeader::setActive(bool active) {
    active_ = active;
    // Tab stops at the active one only; the arrow keys go on from there.
    setFocusPolicy(active ? Qt::TabFocus : Qt::NoFocus);
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void TabHeader::setColour(Colour colour) {
    setBackground(*this, colour);
}

void TabHeader::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        return stepWanted(1);
    case Qt::Key_Left:
    case Qt::Key_Up:
        return stepWanted(-1);
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

void TabHeader::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.setPen(Qt::black);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(toQColor(textColour_));
    // The caption ends with a blank; the check box stands at the left end.
    painter.drawText(rect().adjusted(16, 1, -1, 0),
                     Qt::AlignRight | Qt::AlignVCenter | Qt::TextIncludeTrailingSpaces, text());
    if (hasFocus()) {
        painter.setPen(QPen(toQColor(textColour_), 1, Qt::DotLine));
        painter.drawRect(rect().adjusted(2, 2, -3, -3));
    }
}

} // namespace orvinel
