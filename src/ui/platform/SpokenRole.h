#pragma once

#include <QAccessible>

class QWidget;

namespace orvinel {

// What screen readers take a widget for whose class does not tell; before the first of them asks. A window's
// open menus are among its parts then.
void setSpokenRole(QWidget& widget, QAccessible::Role role);

} // namespace orvinel
