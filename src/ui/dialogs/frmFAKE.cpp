#include "ui/dialogs/frmFAKE.h"

#include "base/About.h"
#include "ui/platform/SpokenRole.h"
#include "ui/platform/Windows.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QTimer>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

WindowsShown afterTaskBarUse(WindowsShown now, bool first, bool legendWanted) {
    WindowsShown next = now;
    if (!first) {
        next.panel = !now.panel;
        next.map = next.panel;
    }
    next.legend = next.map && (legendWanted || now.legend);
    return next;
}

frmFAKE::frmFAKE(TaskBarGroup group)
    : QWidget(nullptr, Qt::Window | frameless() | minimisable()), group_(group) {
    setObjectName(u"frmFAKE"_s);
    setSpokenRole(*this, QAccessible::Window);
    setWindowTitle(u"Orvinel (%1)"_s.arg(byLine()));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFixedSize(1, 1);
    // Window managers that insist on pulling it onto the screen find nothing to show.
    setMask(QRegion(-1, -1, 1, 1));
}

void frmFAKE::showOutside(QSize screens) {
    outside_ = QPoint(2 * screens.width(), 2 * screens.height());
    move(outside_);
    show();
    // Some window managers pull a new window onto the screen, but leave it where it is moved to afterwards.
    move(outside_);
}

void frmFAKE::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!FirstResizeDone)
        Form_Resize();
}

void frmFAKE::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isMinimized() != minimised_) {
        minimised_ = isMinimized();
        Form_Resize();
        if (!minimised_)
            QTimer::singleShot(0, this, [this] { move(outside_); });
    }
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !minimised_)
        bringToFront();
}

void frmFAKE::Form_Resize() {
    const WindowsShown now{group_.panel.isVisible(), group_.map.isVisible(), group_.legend.isVisible()};
    const WindowsShown next = afterTaskBarUse(now, !FirstResizeDone, group_.MenuLegendShown == 1);
    FirstResizeDone = true;
    group_.panel.setVisible(next.panel);
    group_.map.setVisible(next.map);
    group_.legend.setVisible(next.legend);
    if (next.map)
        bringToFront();
    if (next.map && !now.map)
        emit shownAgain();
}

void frmFAKE::bringToFront() {
    group_.map.raise();
    group_.panel.raise();
}

void frmFAKE::closeEvent(QCloseEvent* event) {
    event->ignore();
    emit quitWanted();
}

void frmFAKE::keyPressEvent(QKeyEvent* event) {
    // The button leaves the focus here, so that its next use minimises; whoever types means the panel.
    if (!group_.panel.isVisible())
        return;
    group_.panel.activateWindow();
    QWidget* target = group_.panel.focusWidget();
    QCoreApplication::sendEvent(target ? target : &group_.panel, event);
}

} // namespace orvinel
