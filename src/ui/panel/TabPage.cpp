#include "ui/panel/TabPage.h"

#include "ui/panel/Controls.h"
#include "ui/platform/SpokenRole.h"
#include "ui/platform/Windows.h"

#include <QPainter>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QRect designPlace(-1, 194, 219, 541);

} // namespace

TabPage::TabPage(Tab tab, QWidget* parent) : QWidget(parent), inner_(new QWidget(this)) {
    setObjectName(arrayName(u"picTab"_s, static_cast<int>(tab)));
    setGeometry(designPlace);
    setSpokenRole(*this, QAccessible::Pane);
    setCursor(programCursor(Pointer::Usual));
    // A press beside the controls is not one on the panel's own background, which drags it.
    setAttribute(Qt::WA_NoMousePropagation);
    hide();
}

void TabPage::setColour(Colour colour) {
    setBackground(*this, colour);
}

void TabPage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(Qt::black);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void TabPage::resizeEvent(QResizeEvent*) {
    inner_->setGeometry(1, 1, width() - 2, height() - 2);
    arrange();
}

} // namespace orvinel
