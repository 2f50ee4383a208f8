#include "ui/panel/Controls.h"

#include "ui/platform/Drawing.h"
#include "ui/platform/Fonts.h"

namespace orvinel {

Label* panelLabel(const QString& name, QPoint at, QWidget* parent) {
    auto* label = new Label(name, parent);
    label->setFont(arial(points8_25, true));
    label->move(at);
    return label;
}

ItemCombo* panelCombo(const QString& name, const QRect& place, QWidget* parent) {
    auto* combo = new ItemCombo(name, parent);
    combo->setGeometry(place);
    return combo;
}

ListBox* panelList(const QString& name, const QRect& place, QWidget* parent) {
    auto* list = new ListBox(name, parent);
    list->setGeometry(place);
    return list;
}

QLineEdit* panelField(const QString& name, const QRect& place, QWidget* parent) {
    auto* field = new QLineEdit(parent);
    field->setObjectName(name);
    field->setGeometry(place);
    return field;
}

QRadioButton* panelOption(const QString& name, const QRect& place, QWidget* parent) {
    auto* option = new QRadioButton(parent);
    option->setObjectName(name);
    option->setGeometry(place);
    option->setAutoFillBackground(true);
    return option;
}

void setOptionCaption(QRadioButton& option, const QString& caption, const QString& group) {
    option.setText(verbatim(caption));
    option.setAccessibleName(caption);
    option.setAccessibleDescription(group);
}

void leadToList(QLineEdit& field, ListBox& list) {
    QObject::connect(&field, &QLineEdit::returnPressed, &list, [&list] {
        list.setFocus(Qt::TabFocusReason);
        if (!list.hasSelection() && list.count() > 0)
            list.select(0);
    });
}

void setBackground(QWidget& widget, Colour colour) {
    QPalette colours = widget.palette();
    colours.setColor(QPalette::Window, toQColor(colour));
    widget.setPalette(colours);
    widget.setBackgroundRole(QPalette::Window); // option buttons would fill with their button colour
    widget.setAutoFillBackground(true);
}

} // namespace orvinel
