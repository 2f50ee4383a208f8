#include "ui/platform/Label.h"

#include "ui/platform/Drawing.h"

#include <QEvent>
#include <QMouseEvent>
#include <QStylePainter>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// With a line break in each word that is wider than `width` wherever its next letter would be too much.
QString withWordsBroken(const QString& text, const QFontMetrics& metrics, int width) {
    QString broken;
    qsizetype first = 0; // of the present word, or of what of it stands in the present line
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isSpace()) {
            first = i + 1;
        } else if (i > first && !text[i].isLowSurrogate() && !text[i].isMark() &&
                   metrics.horizontalAdvance(text.mid(first, i + 1 - first)) > width) {
            broken += u'\n';
            first = i;
        }
        broken += text[i];
    }
    return broken;
}

} // namespace

Label::Label(const QString& name, QWidget* parent) : QLabel(parent) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setMargin(0);
    setIndent(0);
}

void Label::setCaption(const QString& text) {
    // Given a text with "&" while it has a buddy, it would underline a letter for good.
    setBuddy(nullptr);
    // CR LF would be two line breaks.
    setText(QString(text).replace(u"\r\n"_s, u"\n"_s));
    tellName();
    fit();
}

void Label::nameFor(QWidget* widget) {
    named_ = widget;
    tellName();
}

void Label::tellName() {
    if (!named_)
        return;
    named_->setAccessibleName(text());
    // A screen reader asks a drop-down list for its label: the name that it is told is the entry selected. A
    // label with a buddy would take "&" for a shortcut; then a description has to do.
    const bool shortcut = text().contains(u'&');
    setBuddy(shortcut ? nullptr : named_);
    named_->setAccessibleDescription(shortcut ? text() : QString());
}

void Label::setWrapWidth(int pixels) {
    wrapWidth_ = pixels;
    setWordWrap(pixels > 0);
    fit();
}

void Label::setLongest(int pixels) {
    longest_ = pixels;
    fit();
}

void Label::setColour(Colour colour) {
    QPalette colours = palette();
    colours.setColor(QPalette::Active, QPalette::WindowText, toQColor(colour));
    colours.setColor(QPalette::Inactive, QPalette::WindowText, toQColor(colour));
    setPalette(colours);
}

void Label::fit() {
    seen_.clear();
    if (wrapWidth_ > 0)
        return fitWrapped();
    const QFontMetrics metrics = fontMetrics();
    if (longest_ > 0 && metrics.horizontalAdvance(text()) >= longest_)
        seen_ = metrics.elidedText(text(), Qt::ElideRight, longest_ - 1);
    // One pixel more than the text: the last letter of some faces hangs over.
    const QSize area = metrics.size(0, seen_.isEmpty() ? text() : seen_);
    resize(area.width() + 1, std::max(area.height(), metrics.height()));
}

void Label::fitWrapped() {
    const QFontMetrics metrics = fontMetrics();
    const QString broken = withWordsBroken(text(), metrics, wrapWidth_);
    if (broken == text()) {
        resize(wrapWidth_, text().isEmpty() ? metrics.height() : heightForWidth(wrapWidth_));
        return;
    }
    seen_ = broken;
    const QRect room(0, 0, wrapWidth_, QWIDGETSIZE_MAX);
    resize(wrapWidth_, metrics.boundingRect(room, Qt::TextWordWrap, seen_).height());
}

void Label::paintEvent(QPaintEvent* event) {
    if (seen_.isEmpty())
        return QLabel::paintEvent(event);
    QStylePainter painter(this);
    painter.drawItemText(rect(), static_cast<int>(alignment()) | (wrapWidth_ > 0 ? Qt::TextWordWrap : 0),
                         palette(), isEnabled(), seen_, foregroundRole());
}

void Label::mousePressEvent(QMouseEvent* event) {
    event->accept();
    pressed_ = true;
    emit pressed();
}

void Label::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    // A release without its press is the end of a click that closed a menu over the label.
    const bool whole = pressed_ && rect().contains(event->position().toPoint());
    pressed_ = false;
    emit released();
    if (whole)
        emit clicked();
}

void Label::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fit();
}

} // namespace orvinel
