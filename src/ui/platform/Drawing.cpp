#include "ui/platform/Drawing.h"

namespace orvinel {

Drawing::Drawing(QPaintDevice* target) : painter_(target) {
    painter_.setRenderHint(QPainter::TextAntialiasing);
}

void Drawing::setBold(bool on) {
    QFont font = painter_.font();
    font.setBold(on);
    painter_.setFont(font);
}

void Drawing::box(int l, int t, int r, int b) {
    painter_.setPen(toQColor(foreground_));
    painter_.setBrush(toQColor(fill_));
    painter_.drawRect(l, t, r - l, b - t);
}

void Drawing::filledBox(int l, int t, int r, int b, Colour colour) {
    painter_.fillRect(QRect(QPoint(l, t), QPoint(r, b)), toQColor(colour));
}

void Drawing::outline(int l, int t, int r, int b, Colour colour) {
    painter_.setPen(toQColor(colour));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(l, t, r - l, b - t);
}

void Drawing::line(int x1, int y1, int x2, int y2, Colour colour) {
    painter_.setPen(toQColor(colour));
    painter_.drawLine(x1, y1, x2, y2);
}

void Drawing::print(int x, int y, const QString& text) {
    painter_.setPen(toQColor(foreground_));
    painter_.drawText(x, y + painter_.fontMetrics().ascent(), text);
}

void Drawing::print(int x, int y, const TextRun& text) {
    painter_.setPen(toQColor(foreground_));
    text.draw(painter_, x, y + painter_.fontMetrics().ascent());
}

int Drawing::textWidth(const QString& text) const {
    return painter_.fontMetrics().horizontalAdvance(text);
}

int Drawing::lineHeight() const {
    return painter_.fontMetrics().height();
}

} // namespace orvinel
