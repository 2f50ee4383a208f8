#include "ui/platform/SpokenRole.h"

#include <QAccessibleWidget>
#include <QLabel>
#include <QStringList>
#include <QVariant>
#include <QWidget>

namespace orvinel {

namespace {

constexpr const char* property = "spokenRole";

// What the labels in a widget say at the moment, pictures by their names.
QString shownTexts(const QWidget& widget) {
    QStringList texts;
    for (const QObject* part : widget.children()) {
        const auto* label = qobject_cast<const QLabel*>(part);
        if (!label || label->isHidden())
            continue;
        const QString said = label->text().isEmpty() ? label->accessibleName() : label->text();
        // A picture is often named by a text beside it.
        if (!said.isEmpty() && !(label->text().isEmpty() && texts.contains(said)))
            texts << said;
    }
    return texts.join(u'\n');
}

// Qt leaves open menus out of the tree unless a menu bar of its own holds them: they stand behind the parts
// of the window that they belong to. What is told about a place of a picture describes the picture meanwhile.
class SpokenWidget : public QAccessibleWidget {
  public:
    using QAccessibleWidget::QAccessibleWidget;

    int childCount() const override {
        return QAccessibleWidget::childCount() + static_cast<int>(openMenus().size());
    }
    QAccessibleInterface* child(int index) const override {
        const int parts = QAccessibleWidget::childCount();
        return index < parts ? QAccessibleWidget::child(index)
                             : QAccessible::queryAccessibleInterface(openMenus().value(index - parts));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto menu = openMenus().indexOf(child ? child->object() : nullptr);
        return menu < 0 ? QAccessibleWidget::indexOfChild(child)
                        : QAccessibleWidget::childCount() + static_cast<int>(menu);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.modal = widget()->isModal();
        return state;
    }
    QString text(QAccessible::Text kind) const override {
        QString text = QAccessibleWidget::text(kind);
        if (role() == QAccessible::ToolTip && kind == QAccessible::Name)
            return shownTexts(*widget());
        if (role() != QAccessible::Graphic || kind != QAccessible::Description)
            return text;
        for (int i = 0; i < childCount(); ++i) {
            const QAccessibleInterface* part = child(i);
            if (part->role() == QAccessible::ToolTip && !part->state().invisible)
                text += u'\n' + part->text(QAccessible::Name);
        }
        return text;
    }

  private:
    QObjectList openMenus() const {
        QObjectList menus;
        for (QObject* object : widget()->children()) {
            const auto* window = qobject_cast<QWidget*>(object);
            if (window && window->windowType() == Qt::Popup && window->isVisible())
                menus << object;
        }
        return menus;
    }
};

QAccessibleInterface* withSpokenRole(const QString&, QObject* object) {
    const QVariant role = object ? object->property(property) : QVariant();
    if (!role.isValid())
        return nullptr;
    return new SpokenWidget(static_cast<QWidget*>(object), static_cast<QAccessible::Role>(role.toInt()));
}

} // namespace

void setSpokenRole(QWidget& widget, QAccessible::Role role) {
    widget.setProperty(property, static_cast<int>(role));
    QAccessible::installFactory(withSpokenRole); // once is enough, more do no harm
}

} // namespace orvinel
