#include "ui/platform/ControlText.h"

namespace orvinel {

QString arrayName(const QString& name, int index) {
    return name + u'(' + QString::number(index) + u')';
}

QString verbatim(QString text) {
    return text.replace(u'&', QLatin1String("&&"));
}

} // namespace orvinel
