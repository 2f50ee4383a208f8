#include "ui/platform/Fonts.h"

#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

#ifdef ORVINEL_X11
#include <fontconfig/fontconfig.h>
#endif

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList faces() {
    return {u"Liberation Sans"_s, u"Arial"_s};
}

} // namespace

QFont arial(int pixels, bool bold) {
    QFont font(faces());
    font.setPixelSize(pixels);
    font.setBold(bold);
    // Hinting depends on the machine's settings and would make the same text wider on one than on another.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);
    return font;
}

void bringFace(const QString& folder) {
    const QDir fonts(folder);
    if (!fonts.exists() || faces().contains(QFontInfo(arial(points8_25)).family()))
        return;
    for (const QString& name : fonts.entryList({u"*.ttf"_s}, QDir::Files))
        QFontDatabase::addApplicationFont(fonts.filePath(name));
}

std::future<void> readFacesAhead() {
#ifdef ORVINEL_X11
    return std::async(std::launch::async, [] { FcInit(); });
#else
    return {};
#endif
}

} // namespace orvinel
