#pragma once

#include <QRect>

class QWidget;

namespace orvinel {

// Where a window of `size` (with its frame) opens, in pixels of the desktop: beside what asked for it, beside
// the whole panel when that lies in the panel, since the player works in its lists; never over the panel
// where there is room elsewhere and never outside `screen`.
QPoint placeBeside(QSize size, const QRect& asked, const QRect& panel, const QRect& screen);
// The same for a window over the middle of `owner`.
QPoint placeOver(QSize size, const QRect& owner, const QRect& panel, const QRect& screen);

// Moves a dialog that is about to appear beside `asked`, or over the middle of its owner. The panel is the
// window at the root of all owners; without an owner that is shown the dialog stays where it is.
void moveBeside(QWidget& dialog, const QRect& asked);
void moveOver(QWidget& dialog);

// The place of a widget on the desktop: of a list its selected entry, as far as that is in view.
QRect placeOnDesktop(const QWidget& widget);

} // namespace orvinel
