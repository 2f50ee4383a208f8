#include "ui/panel/WindowKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

namespace orvinel {

namespace {

// To where it was last in a part of a window, or to the first that takes it.
void giveFocus(QWidget& part) {
    QWidget* target = part.focusWidget();
    for (QWidget* next = &part; !target; next = next->nextInFocusChain())
        if (part.isAncestorOf(next) && next->focusPolicy() & Qt::TabFocus)
            target = next;
        else if (next->nextInFocusChain() == &part)
            return;
    target->setFocus();
}

} // namespace

WindowKeys::WindowKeys(std::vector<QWidget*> windows) : windows_(std::move(windows)) {
    // The controls would take Alt and Ctrl+Tab before their window hears of them.
    qApp->installEventFilter(this);
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event) {
    // A window manager that takes Alt with a mouse button to move a window keeps the button to itself.
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::WindowDeactivate ||
        event->type() == QEvent::Leave || event->type() == QEvent::Move || event->type() == QEvent::Wheel)
        altAlone_ = false;
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    const auto* control = qobject_cast<QWidget*>(watched);
    QWidget* window = control ? windowOf(*control) : nullptr;
    if (!window)
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (event->type() == QEvent::KeyPress)
        return press(key, window);
    if (key.key() != Qt::Key_Alt || !std::exchange(altAlone_, false))
        return false;
    emit menuBarWanted();
    return true;
}

QWidget* WindowKeys::windowOf(const QWidget& control) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(), [&](const QWidget* window) {
        return window == &control || window->isAncestorOf(&control);
    });
    if (found != windows_.end())
        return *found;
    // What a window hears without a control that has the focus.
    return control.isWindow() && windows_.front()->window() == &control ? windows_.front() : nullptr;
}

bool WindowKeys::press(const QKeyEvent& key, QWidget* window) {
    const Qt::KeyboardModifiers held = key.modifiers() & ~Qt::KeypadModifier;
    altAlone_ = key.key() == Qt::Key_Alt && (held == Qt::NoModifier || held == Qt::AltModifier);
    if (held & Qt::ControlModifier)
        return pressWithControl(key.key());
    if (held == Qt::AltModifier && key.key() >= Qt::Key_1 && key.key() < Qt::Key_1 + tabCount) {
        emit pageWanted(static_cast<Tab>(key.key() - Qt::Key_1));
        return true;
    }
    switch (key.key()) {
    case Qt::Key_F10:
        emit menuBarWanted();
        return true;
    case Qt::Key_F6:
        goOn(window, held & Qt::ShiftModifier ? -1 : 1);
        return true;
    case Qt::Key_Escape:
        emit escapePressed();
        return false;
    default:
        return false;
    }
}

bool WindowKeys::pressWithControl(int key) {
    const bool next = key == Qt::Key_Tab || key == Qt::Key_PageDown;
    if (!next && key != Qt::Key_Backtab && key != Qt::Key_PageUp)
        return false;
    emit pageStepWanted(next ? 1 : -1);
    return true;
}

void WindowKeys::goOn(QWidget* from, int step) {
    const auto count = static_cast<int>(windows_.size());
    auto at = static_cast<int>(std::find(windows_.begin(), windows_.end(), from) - windows_.begin());
    do
        at = (at + step + count) % count;
    while (!windows_[static_cast<size_t>(at)]->isVisible());
    QWidget& window = *windows_[static_cast<size_t>(at)];
    window.activateWindow();
    if (!window.isWindow())
        giveFocus(window);
}

} // namespace orvinel
