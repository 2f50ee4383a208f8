#include "ui/panel/MenuCaption.h"

#include "ui/panel/MenuBar.h"
#include "ui/panel/frmPopupMenu.h"

#include <QAccessibleWidget>

namespace orvinel {

namespace {

class AccessibleCaption : public QAccessibleWidget {
  public:
    explicit AccessibleCaption(MenuCaption& caption)
        : QAccessibleWidget(&caption, QAccessible::MenuItem), caption_(caption) {}

    QAccessible::Role role() const override {
        return caption_.isCommand() ? QAccessible::MenuItem : QAccessible::StaticText;
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
        if (name == pressAction() && caption_.isCommand())
            emit caption_.clicked();
        else
            QAccessibleWidget::doAction(name);
    }

  private:
    MenuCaption& caption_;
};

QAccessibleInterface* accessibleMenuPart(const QString&, QObject* object) {
    if (auto* caption = qobject_cast<MenuCaption*>(object))
        return new AccessibleCaption(*caption);
    if (auto* menu = qobject_cast<frmPopupMenu*>(object))
        return new QAccessibleWidget(menu, QAccessible::PopupMenu);
    if (auto* bar = qobject_cast<MenuBar*>(object))
        return new QAccessibleWidget(bar, QAccessible::MenuBar);
    return nullptr;
}

} // namespace

void MenuCaption::setCommand(bool command) {
    setFocusPolicy(command ? Qt::StrongFocus : Qt::NoFocus);
}

void installMenuAccessibility() {
    QAccessible::installFactory(accessibleMenuPart);
}

} // namespace orvinel
