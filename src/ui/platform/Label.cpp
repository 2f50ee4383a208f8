#include "ui/platform/Label.h"

#include "ui/platform/Drawing.h"

#include <QEvent>
#include <QMouseEvent>

namespace orvinel {

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
    setText(QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
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

void Label::setColour(Colour colour) {
    QPalette colours = palette();
    colours.setColor(QPalette::Active, QPalette::WindowText, toQColor(colour));
    colours.setColor(QPalette::Inactive, QPalette::WindowText, toQColor(colour));
    setPalette(colours);
}

void Label::fit() {
    const QFontMetrics metrics = fontMetrics();
    if (wrapWidth_ > 0) {
        const int height = text().isEmpty() ? metrics.height() : heightForWidth(wrapWidth_);
        resize(wrapWidth_, height);
        return;
    }
    // One pixel more than the text: the last letter of some faces hangs over.
    const QSize area = metrics.size(0, text());
    resize(area.width() + 1, std::max(area.height(), metrics.height()));
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
