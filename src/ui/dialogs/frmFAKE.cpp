#include "ui/dialogs/frmFAKE.h"

#include "base/About.h"
#include "ui/platform/SpokenRole.h"
#include "ui/platform/Windows.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QTimer>

#include <utility>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// A window manager answers within a few; one that has not by then minimises nothing.
constexpr int lookEveryMs = 20;
constexpr int mostLooks = 15;
// Some window managers give the keyboard to each window that appears, one after the other.
constexpr int settleEveryMs = 100;
constexpr int mostSettles = 3;
// Some give it to the next window so shortly before they minimise the one that had it.
constexpr int passedOnMs = 200;

void takeMinimisedOff(QWidget& window) {
    if (window.windowState() & Qt::WindowMinimized)
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
}

} // namespace

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
    setSpokenRole(*this, QAccessible::Window);
    setObjectName(u"frmFAKE"_s);
    setWindowTitle(u"Orvinel (%1)"_s.arg(byLine()));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFixedSize(1, 1);
    // Window managers that insist on pulling it onto the screen find nothing to show.
    setMask(QRegion(-1, -1, 1, 1));
    icon_.setInterval(lookEveryMs);
    connect(&icon_, &QTimer::timeout, this, &frmFAKE::lookForIcon);
    settling_.setInterval(settleEveryMs);
    connect(&settling_, &QTimer::timeout, this, &frmFAKE::settle);
    qApp->installEventFilter(this); // for the state of windows that come and go
}

void frmFAKE::showOutside(QSize screens) {
    outside_ = QPoint(2 * screens.width(), 2 * screens.height());
    move(outside_);
    show();
    // Some window managers pull a new window onto the screen, but leave it where it is moved to afterwards.
    move(outside_);
    QTimer::singleShot(settleEveryMs, this, [this] { wantNoAttention(*this); });
    keyboard_ = &group_.panel;
    settleKeyboard();
}

void frmFAKE::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!FirstResizeDone)
        Form_Resize();
}

void frmFAKE::minimise() {
    following_ = false;
    if (!minimised_ && !icon_.isActive())
        showMinimized();
}

bool frmFAKE::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress)
        settling_.stop(); // from here on the player says where the keyboard goes
    if (event->type() != QEvent::WindowStateChange && event->type() != QEvent::WindowActivate)
        return false;
    auto* window = qobject_cast<QWidget*>(watched);
    if (!window || window == this || !window->isWindow() || minimised_)
        return false;
    // From the first window that is minimised on, others become active or minimised in its wake.
    if (following_ || icon_.isActive())
        return false;
    if (event->type() == QEvent::WindowActivate) {
        if (!settling_.isActive() && keyboard_ != window) {
            before_ = std::exchange(keyboard_, window);
            passedOn_.start();
        }
    } else if (window->isMinimized()) {
        first_ = window;
        if (window == before_ && !passedOn_.hasExpired(passedOnMs))
            keyboard_ = window;
        following_ = true;
        // Not while the window is still being told of it.
        QMetaObject::invokeMethod(this, &frmFAKE::minimise, Qt::QueuedConnection);
    }
    return false;
}

void frmFAKE::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        if (isMinimized() && !minimised_)
            awaitIcon();
        else if (!isMinimized() && minimised_)
            bringBack();
    }
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !minimised_)
        QTimer::singleShot(lookEveryMs, this, &frmFAKE::becomeActive);
}

void frmFAKE::becomeActive() {
    // Windows that have just come back may still be called icons.
    if (minimised_ || icon_.isActive() || settling_.isActive())
        return;
    // A window manager that is minimising one of the windows may make this one active first; raising that
    // window would bring it back.
    for (QWidget* window : {&group_.panel, &group_.map})
        if (window->isVisible() && isIconic(*window)) {
            first_ = window;
            minimise();
            return;
        }
    bringToFront();
}

void frmFAKE::awaitIcon() {
    if (icon_.isActive())
        return;
    looks_ = 0;
    icon_.start();
    lookForIcon();
}

void frmFAKE::lookForIcon() {
    if (isIconic(*this))
        putAway();
    else if (!isMinimized() || ++looks_ > mostLooks) // brought back already, or never to be minimised
        stay();
}

void frmFAKE::endLooking() {
    icon_.stop();
    // Some window managers give the keyboard to another window before they minimise one.
    if (first_ && keyboard_ && !keyboard_->isMinimized())
        keyboard_ = first_;
    first_.clear();
}

void frmFAKE::putAway() {
    endLooking();
    minimised_ = true;
    settling_.stop();
    putDialogsAway();
    Form_Resize();
}

void frmFAKE::stay() {
    endLooking();
    showNormal();
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window != this && window->isVisible())
            takeMinimisedOff(*window);
    settleKeyboard();
}

void frmFAKE::bringBack() {
    minimised_ = false;
    Form_Resize();
    bringDialogsBack();
    settleKeyboard();
    QTimer::singleShot(0, this, [this] { move(outside_); });
}

void frmFAKE::Form_Resize() {
    const WindowsShown now{group_.panel.isVisible(), group_.map.isVisible(), group_.legend.isVisible()};
    const WindowsShown next = afterTaskBarUse(now, !FirstResizeDone, group_.MenuLegendShown == 1);
    FirstResizeDone = true;
    for (QWidget* window : {&group_.panel, &group_.map, &group_.legend})
        if (next.map)
            takeMinimisedOff(*window);
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
    raiseDialogs();
}

void frmFAKE::raiseDialogs() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() == Qt::Dialog && !isMainWindow(window))
            window->raise();
}

void frmFAKE::putDialogsAway() {
    dialogs_.clear();
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window != this && window->isVisible() && !isMainWindow(window)) {
            if (window->windowType() == Qt::Popup)
                window->close();
            else if (window->windowType() == Qt::Dialog)
                dialogs_.push_back({window, window->pos()});
        }
    for (const PutAway& away : dialogs_)
        takeOffScreen(*away.dialog);
}

void frmFAKE::bringDialogsBack() {
    for (const PutAway& away : dialogs_)
        if (away.dialog && away.dialog->isVisible()) {
            bringToScreen(*away.dialog, away.place);
            away.dialog->raise();
        }
    dialogs_.clear();
}

void frmFAKE::settleKeyboard() {
    giveKeyboardBack();
    settles_ = 0;
    settling_.start();
}

void frmFAKE::settle() {
    giveKeyboardBack();
    if (++settles_ == mostSettles)
        settling_.stop();
}

void frmFAKE::giveKeyboardBack() {
    // Also to a window that has it already as far as is known here: the window manager may have moved on.
    if (minimised_)
        return;
    QWidget* window = keyboardWindow();
    window->activateWindow();
    if (window == &group_.map)
        raiseDialogs(); // the panel's do not stay above the map by themselves
}

QWidget* frmFAKE::keyboardWindow() const {
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return keyboard_ && keyboard_->isVisible() ? keyboard_.data() : &group_.panel;
}

bool frmFAKE::isMainWindow(const QWidget* window) const {
    return window == &group_.panel || window == &group_.map || window == &group_.legend;
}

void frmFAKE::closeEvent(QCloseEvent* event) {
    event->ignore();
    emit quitWanted();
}

void frmFAKE::keyPressEvent(QKeyEvent* event) {
    // The button leaves the focus here, so that its next use minimises; whoever types means the program.
    if (!group_.panel.isVisible())
        return;
    QWidget* window = keyboardWindow();
    window->activateWindow();
    QWidget* target = window->focusWidget();
    QCoreApplication::sendEvent(target ? target : window, event);
}

} // namespace orvinel
