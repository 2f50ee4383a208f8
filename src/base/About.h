#pragma once

#include <QString>

namespace orvinel {

// Who made the program and where it lives on the web: the same in every language.
inline QString authorName() {
    return QStringLiteral("Orrel Tarn");
}
inline QString guildName() {
    return QStringLiteral("Lantern Wardens");
}
inline QString byLine() {
    return QStringLiteral("by ") + authorName();
}
inline QString homePage() {
    return QStringLiteral("https://orvinel.example.org/");
}
inline QString helpPage() {
    return QStringLiteral("https://orvinel.example.org/help/");
}
inline QString guildPage() {
    return QStringLiteral("https://lanternwardens.example.org/");
}
inline QString mailAddress() {
    return QStringLiteral("mailto:orvinel@example.org");
}

} // namespace orvinel
