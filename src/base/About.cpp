#include "base/About.h"

namespace orvinel {

QString programVersion() {
    return QStringLiteral(ORVINEL_VERSION);
}

QString homePage() {
    return QStringLiteral(ORVINEL_HOME_PAGE);
}

QString mailAddress() {
    return QStringLiteral(ORVINEL_MAIL);
}

} // namespace orvinel
