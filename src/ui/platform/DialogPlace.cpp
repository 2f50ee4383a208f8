#include "ui/platform/DialogPlace.h"

#include "ui/platform/OneWindow.h"

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace orvinel {

namespace {

constexpr int gap = 8; // pixels between what asked and the dialog
// What a window manager draws around a dialog: not known before it has appeared.
constexpr QSize usualFrame(16, 40);

int within(int wanted, int length, int first, int last) {
    return std::max(first, std::min(wanted, last + 1 - length));
}

const QWidget& rootOf(const QWidget& widget) {
    const QWidget* window = widget.window();
    while (window->parentWidget())
        window = window->parentWidget()->window();
    return *window;
}

QRect screenWith(QPoint preferred, QPoint otherwise) {
    const QScreen* screen = QGuiApplication::screenAt(preferred);
    if (!screen)
        screen = QGuiApplication::screenAt(otherwise);
    return (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

} // namespace

QPoint placeBeside(QSize size, const QRect& asked, const QRect& panel, const QRect& screen) {
    const bool inPanel = panel.intersects(asked);
    const QRect anchor = inPanel ? QRect(panel.x(), asked.y(), panel.width(), asked.height()) : asked;
    const bool panelOnTheLeft = !inPanel && panel.right() < asked.left();
    const int leftmost = panelOnTheLeft ? std::max(screen.left(), panel.right() + 1) : screen.left();
    const int right = anchor.right() + 1 + gap;
    const int left = anchor.left() - gap - size.width();
    const bool fitsRight = right + size.width() <= screen.right() + 1;
    const int x = fitsRight || left < leftmost ? right : left;
    const int y = std::max(panel.top(), anchor.center().y() - size.height() / 2);
    return {within(x, size.width(), screen.left(), screen.right()),
            within(y, size.height(), screen.top(), screen.bottom())};
}

QPoint placeOver(QSize size, const QRect& owner, const QRect& panel, const QRect& screen) {
    const QPoint middle = owner.center() - QPoint(size.width() / 2, size.height() / 2);
    const int x = std::max(middle.x(), panel.right() + 1 + gap);
    return {within(x, size.width(), screen.left(), screen.right()),
            within(middle.y(), size.height(), screen.top(), screen.bottom())};
}

void moveBeside(QWidget& dialog, const QRect& asked) {
    if (!dialog.parentWidget() || !rootOf(dialog).isVisible())
        return;
    const QRect panel = panelPlaceIn(rootOf(dialog));
    const QPoint beside(panel.right() + 1 + gap, asked.center().y());
    dialog.move(placeBeside(dialog.size() + usualFrame, asked, panel, screenWith(beside, asked.center())));
}

void moveOver(QWidget& dialog) {
    if (!dialog.parentWidget() || !rootOf(dialog).isVisible())
        return;
    const QRect owner = dialog.parentWidget()->window()->frameGeometry();
    const QRect panel = panelPlaceIn(rootOf(dialog));
    dialog.move(
        placeOver(dialog.size() + usualFrame, owner, panel, screenWith(owner.center(), panel.center())));
}

QRect placeOnDesktop(const QWidget& widget) {
    const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
    const QRect entry = view ? view->visualRect(view->currentIndex()) & view->viewport()->rect() : QRect();
    return entry.isEmpty() ? QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size())
                           : QRect(view->viewport()->mapToGlobal(entry.topLeft()), entry.size());
}

} // namespace orvinel
