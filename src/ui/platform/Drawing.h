#pragma once

#include "base/Colour.h"
#include "ui/platform/TextRun.h"

#include <QColor>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QString>

namespace orvinel {

inline QColor toQColor(Colour colour) {
    return QColor::fromRgb(opaqueRgb(colour));
}

// Drawing as the windows' layouts describe it: whole pixels, inclusive corners, and a state (font, foreground
// and fill colour) that stays until it is changed.
class Drawing {
  public:
    explicit Drawing(QPaintDevice* target);

    void setFont(const QFont& font) { painter_.setFont(font); }
    void setBold(bool on);
    void setForeground(Colour colour) { foreground_ = colour; }
    void setFill(Colour colour) { fill_ = colour; }

    // The border from (l, t) to (r, b), all inclusive, in the foreground colour and the inside in the fill
    // colour.
    void box(int l, int t, int r, int b);
    // As box, outline and inside in one colour.
    void filledBox(int l, int t, int r, int b, Colour colour);
    void outline(int l, int t, int r, int b, Colour colour);
    void line(int x1, int y1, int x2, int y2, Colour colour);
    // The text's line starts at (x, y), its top left corner, in the foreground colour.
    void print(int x, int y, const QString& text);
    void print(int x, int y, const TextRun& text);
    int textWidth(const QString& text) const;
    int lineHeight() const;

    QPainter& painter() { return painter_; }

  private:
    QPainter painter_;
    Colour foreground_ = 0;
    Colour fill_ = 0;
};

} // namespace orvinel
