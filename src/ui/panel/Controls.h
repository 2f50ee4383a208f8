#pragma once

#include "ui/platform/ControlText.h"
#include "ui/platform/ItemCombo.h"
#include "ui/platform/Label.h"
#include "ui/platform/ListBox.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QRect>

namespace orvinel {

// The panel's controls are made here, so that all look and behave alike. `place`: pixels inside the parent.
// All are owned by the parent.

// A bold label with its top left corner at (x, y).
Label* panelLabel(const QString& name, QPoint at, QWidget* parent);
ItemCombo* panelCombo(const QString& name, const QRect& place, QWidget* parent);
ListBox* panelList(const QString& name, const QRect& place, QWidget* parent);
QLineEdit* panelField(const QString& name, const QRect& place, QWidget* parent);
QRadioButton* panelOption(const QString& name, const QRect& place, QWidget* parent);
// `group`: what the option is one of, for those who have it read out.
void setOptionCaption(QRadioButton& option, const QString& caption, const QString& group);

// Enter in the field leads to the list and, where nothing is selected, to its first entry.
void leadToList(QLineEdit& field, ListBox& list);

// Gives a widget that fills its background the colour.
void setBackground(QWidget& widget, Colour colour);

} // namespace orvinel
