#include "ui/platform/PictureBox.h"

#include "ui/platform/SpokenRole.h"

#include <QLabel>
#include <QMouseEvent>

namespace orvinel {

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSpokenRole(*this, QAccessible::Graphic);
}

void PictureBox::setBackground(Colour colour) {
    background_ = colour;
    surface_ = {};
    update();
}

void PictureBox::clear() {
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * ratio).toSize();
    if (surface_.size() != pixels)
        surface_ = QImage(pixels, QImage::Format_RGB32);
    surface_.setDevicePixelRatio(ratio);
    surface_.fill(toQColor(background_));
}

QImage& PictureBox::surface() {
    if (surface_.isNull())
        clear();
    return surface_;
}

void PictureBox::tell(const QRect& place, const QString& text, const QString& symbol) {
    if (text.isEmpty())
        return;
    auto* label = new QLabel(this);
    label->setGeometry(place);
    label->setAccessibleName(text);
    label->setAccessibleDescription(symbol);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->show();
}

void PictureBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), toQColor(background_));
    if (!surface_.isNull())
        painter.drawImage(0, 0, surface_);
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
    event->accept();
    emit clicked();
}

} // namespace orvinel
