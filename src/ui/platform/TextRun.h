#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QPainter>
#include <QString>

namespace orvinel {

// A line of text that is going to be drawn more than once: shaping it takes longer than drawing it. Looks as
// QPainter::drawText draws it, and is as wide as QFontMetrics says.
class TextRun {
  public:
    TextRun(const QString& text, const QFont& font);

    int width() const { return width_; } // pixels
    // The line's baseline begins at (x, y), in the painter's pen; its font is the run's.
    void draw(QPainter& painter, int x, int y) const;

  private:
    QString text_; // only of what is left to drawText
    QList<QGlyphRun> glyphs_;
    int width_ = 0;
};

// No letter of the text is wider than the font's line is high: it is written in Latin letters from left to
// right.
bool isPlainLatin(QStringView text);

} // namespace orvinel
