#pragma once

#include <QStringList>
#include <QWidget>

namespace orvinel {

// What is wrong with the places of a window's visible parts, one level down: those that stick out of it or
// cover one another. Empty when all have their place.
QStringList misplaced(const QWidget& window);

} // namespace orvinel
