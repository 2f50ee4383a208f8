#include "ui/panel/Controls.h"

#include "ui/platform/Drawing.h"
#include "ui/platform/Fonts.h"

#include <QRegularExpression>
#include <QValidator>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

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

namespace {

// A pasted text may begin or end with line breaks, which nobody sees in the field and no entry holds.
class WithoutBreaks : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& input, int& position) const override {
        static const QRegularExpression breaks(u"[\\x01-\\x1F\\x85\\x{2028}\\x{2029}]+"_s);
        if (input.contains(breaks)) {
            input = input.split(breaks, Qt::SkipEmptyParts).join(u' ');
            position = static_cast<int>(input.size());
        }
        return Acceptable;
    }
};

} // namespace

QLineEdit* panelField(const QString& name, const QRect& place, QWidget* parent) {
    auto* field = new QLineEdit(parent);
    field->setValidator(new WithoutBreaks(field));
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
