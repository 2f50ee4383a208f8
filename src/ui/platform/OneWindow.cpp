#include "ui/platform/OneWindow.h"

#include "ui/platform/Windows.h"

#include <QCloseEvent>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWindow>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// A desktop that minimises has done so by then.
constexpr int answerMs = 300;

// Windows that a part owned before belong to the new window from now on.
void ownBy(QWindow* window, const QWidget& part) {
    for (const QWidget* owned : part.findChildren<QWidget*>())
        if (owned->isWindow() && owned->windowHandle())
            owned->windowHandle()->setTransientParent(window);
}

} // namespace

OneWindow::OneWindow(QWidget& panel, QWidget& map)
    : panel_(panel), map_(map), panelFlags_(panel.windowFlags()), mapFlags_(map.windowFlags()) {
    setObjectName(u"OneWindow"_s);
    setWindowTitle(panel.windowTitle());
    setMinimumSize(panel.maximumWidth() + map.minimumWidth(), map.minimumHeight());
    const QPointer<QWidget> focus = panel.focusWidget();
    map_.setParent(this, Qt::Widget);
    panel_.setParent(this, Qt::Widget);
    map_.show();
    panel_.show();
    if (focus)
        focus->setFocus();
}

OneWindow::~OneWindow() {
    panel_.setParent(nullptr, panelFlags_);
    map_.setParent(&panel_, mapFlags_);
}

QRect OneWindow::panelPlace() const {
    return {panel_.mapToGlobal(QPoint(0, 0)), panel_.size()};
}

void OneWindow::appear(QSize size) {
    const QSize room = screen()->availableSize();
    resize(size.isEmpty() ? room * 9 / 10 : size.boundedTo(room));
    winId(); // makes the window that the system knows
    ownBy(windowHandle(), panel_);
    ownBy(windowHandle(), map_);
    if (size.isEmpty())
        showMaximized();
    else
        show();
    activateWindow();
}

void OneWindow::minimise() {
    // Some systems do not tell when they bring it back: it would count as minimised already.
    setWindowState(windowState() & ~Qt::WindowMinimized);
    showMinimized();
    QTimer::singleShot(answerMs, this, [this] {
        if (!isIconic(*this))
            setWindowState(windowState() & ~Qt::WindowMinimized);
    });
}

void OneWindow::toggleMaximised() {
    setWindowState(windowState() ^ Qt::WindowMaximized);
}

void OneWindow::resizeEvent(QResizeEvent*) {
    const int own = panel_.maximumWidth();
    panel_.setGeometry(0, 0, own, height());
    map_.setGeometry(own, 0, width() - own, height());
}

void OneWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    emit quitWanted();
}

QRect panelPlaceIn(const QWidget& root) {
    const auto* window = qobject_cast<const OneWindow*>(&root);
    return window ? window->panelPlace() : root.frameGeometry();
}

} // namespace orvinel
