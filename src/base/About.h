#pragma once

#include <QString>

namespace orvinel {

// Who made the program and where the project is found: the same in every language.
inline QString authorName() {
    return QStringLiteral("Orrel Tarn");
}
inline QString guildName() {
    return QStringLiteral("Lantern Wardens");
}
inline QString byLine() {
    return QStringLiteral("by ") + authorName();
}

// As "4.0.0".
QString programVersion();

// Set when the program is built (ORVINEL_HOME_PAGE, ORVINEL_MAIL); empty when the project has none.
QString homePage();
QString mailAddress();

} // namespace orvinel
