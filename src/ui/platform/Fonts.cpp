#include "ui/platform/Fonts.h"

#include <QStringList>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

QFont arial(int pixels, bool bold) {
#ifdef Q_OS_WIN
    const QStringList faces = {u"Arial"_s, u"Liberation Sans"_s};
#else
    const QStringList faces = {u"Liberation Sans"_s, u"Arial"_s};
#endif
    QFont font(faces);
    font.setPixelSize(pixels);
    font.setBold(bold);
    // Hinting depends on the machine's settings and would make the same text wider on one than on another.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);
    return font;
}

} // namespace orvinel
