#pragma once

#include <QAccessible>

class QWidget;

namespace orvinel {

// What screen readers take a widget for whose class does not tell; before the first of them asks.
void setSpokenRole(QWidget& widget, QAccessible::Role role);

} // namespace orvinel
