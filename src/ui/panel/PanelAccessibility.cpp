#include "ui/panel/PanelAccessibility.h"

#include "ui/panel/MenuBar.h"
#include "ui/panel/TabHeader.h"
#include "ui/panel/frmPopupMenu.h"

#include <QAccessibleWidget>
#include <QMetaObject>

namespace orvinel {

namespace {

class AccessibleCaption : public QAccessibleWidget {
  public:
    explicit AccessibleCaption(MenuCaption& caption)
        : QAccessibleWidget(&caption, QAccessible::MenuItem), caption_(caption) {}

    QAccessible::Role role() const override {
        return caption_.isCommand() ? QAccessible::MenuItem : QAccessible::StaticText;
    }
    // Of the texts only a heading is a row.
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.disabled = state.disabled || !caption_.isCommand();
        return state;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? caption_.text() : QAccessibleWidget::text(kind);
    }
    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (caption_.isCommand())
            names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& name) override {
        // Not at once: a screen reader gets its answer only then, and a command's window may stay open for
        // long.
        if (name == pressAction() && caption_.isCommand())
            QMetaObject::invokeMethod(&caption_, &Label::clicked, Qt::QueuedConnection);
        else
            QAccessibleWidget::doAction(name);
    }

  private:
    MenuCaption& caption_;
};

// Its rows are what can be chosen; the text beside a box is the box's name.
class AccessibleMenu : public QAccessibleWidget {
  public:
    explicit AccessibleMenu(frmPopupMenu& menu)
        : QAccessibleWidget(&menu, QAccessible::PopupMenu), menu_(menu) {}

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(menu_.parentWidget());
    }
    int childCount() const override { return static_cast<int>(menu_.rows().size()); }
    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(menu_.rows().value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(menu_.rows().indexOf(child ? child->object() : nullptr));
    }

  private:
    const frmPopupMenu& menu_;
};

class AccessibleTab : public QAccessibleWidget {
  public:
    explicit AccessibleTab(TabHeader* header) : QAccessibleWidget(header, QAccessible::PageTab) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const auto* header = static_cast<TabHeader*>(widget());
        state.selectable = true;
        state.selected = header->active();
        return state;
    }
    QString text(QAccessible::Text kind) const override {
        const auto* header = static_cast<TabHeader*>(widget());
        return kind == QAccessible::Name ? header->text().trimmed() : QAccessibleWidget::text(kind);
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (action == pressAction())
            static_cast<TabHeader*>(widget())->click();
    }
};

QAccessibleInterface* accessiblePart(const QString&, QObject* object) {
    if (auto* caption = qobject_cast<MenuCaption*>(object))
        return new AccessibleCaption(*caption);
    if (auto* menu = qobject_cast<frmPopupMenu*>(object))
        return new AccessibleMenu(*menu);
    if (auto* bar = qobject_cast<MenuBar*>(object))
        return new QAccessibleWidget(bar, QAccessible::MenuBar);
    if (auto* header = qobject_cast<TabHeader*>(object))
        return new AccessibleTab(header);
    return nullptr;
}

} // namespace

void installPanelAccessibility() {
    QAccessible::installFactory(accessiblePart);
}

} // namespace orvinel
