#include "ui/platform/SpokenRole.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace orvinel {

namespace {

constexpr const char* property = "spokenRole";

QAccessibleInterface* withSpokenRole(const QString&, QObject* object) {
    const QVariant role = object ? object->property(property) : QVariant();
    if (!role.isValid())
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget*>(object), static_cast<QAccessible::Role>(role.toInt()));
}

} // namespace

void setSpokenRole(QWidget& widget, QAccessible::Role role) {
    widget.setProperty(property, static_cast<int>(role));
    QAccessible::installFactory(withSpokenRole); // once is enough, more do no harm
}

} // namespace orvinel
