#include "support/Layout.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

QString told(const QWidget& part) {
    const QRect at = part.geometry();
    return u"%1 (%2, %3, %4 x %5)"_s.arg(part.objectName())
        .arg(at.x())
        .arg(at.y())
        .arg(at.width())
        .arg(at.height());
}

} // namespace

QStringList misplaced(const QWidget& window) {
    QStringList faults;
    QList<const QWidget*> seen;
    for (const QWidget* part : window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!part->isVisibleTo(&window) || part->isWindow() || part->geometry().isEmpty())
            continue;
        if (!window.rect().contains(part->geometry()))
            faults << told(*part) + u" sticks out"_s;
        for (const QWidget* other : seen)
            if (part->geometry().intersects(other->geometry()))
                faults << told(*part) + u" covers "_s + told(*other);
        seen << part;
    }
    return faults;
}

} // namespace orvinel
