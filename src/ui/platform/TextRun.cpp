#include "ui/platform/TextRun.h"

#include <QFontMetrics>
#include <QTextLayout>

#include <algorithm>

namespace orvinel {

bool isPlainLatin(QStringView text) {
    constexpr char16_t softHyphen = 0xAD;
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        const char16_t code = c.unicode();
        return (code >= 0x20 && code < 0x7F) || (code >= 0xA0 && code < 0x250 && code != softHyphen);
    });
}

// What could break into lines or run from right to left is left to drawText, which knows how.
TextRun::TextRun(const QString& text, const QFont& font) {
    if (!isPlainLatin(text)) {
        text_ = text;
        width_ = QFontMetrics(font).horizontalAdvance(text);
        return;
    }
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    layout.endLayout();
    if (!line.isValid())
        return;
    line.setPosition({0, -line.ascent()});
    glyphs_ = layout.glyphRuns();
    width_ = qRound(line.cursorToX(static_cast<int>(text.size())));
}

void TextRun::draw(QPainter& painter, int x, int y) const {
    if (!text_.isEmpty())
        painter.drawText(x, y, text_);
    for (const QGlyphRun& run : glyphs_)
        painter.drawGlyphRun({qreal(x), qreal(y)}, run);
}

} // namespace orvinel
