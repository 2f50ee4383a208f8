#include "ui/platform/SmallCheckBox.h"

#include <QPainter>
#include <QSignalBlocker>

namespace orvinel {

SmallCheckBox::SmallCheckBox(const QString& name, QWidget* parent) : QCheckBox(parent) {
    setObjectName(name);
    setChecked(true);
    resize(13, 14);
    // Screen readers toggle the button itself.
    connect(this, &QCheckBox::toggled, this, [this] {
        if (checkState() != Qt::PartiallyChecked)
            setValue(checkState() == Qt::Checked ? 1 : 0);
    });
}

int SmallCheckBox::value() const {
    return value_;
}

void SmallCheckBox::setValue(int value) {
    if (value == value_)
        return;
    value_ = value;
    setTristate(value > 1);
    setCheckState(value == 1 ? Qt::Checked : value == 0 ? Qt::Unchecked : Qt::PartiallyChecked);
    emit changed();
}

void SmallCheckBox::nextCheckState() {
    setValue(value_ == 1 ? 0 : 1);
}

void SmallCheckBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    const QRect box(0, (height() - 13) / 2, 13, 13);
    painter.setPen(QColor(0x50, 0x50, 0x50));
    painter.setBrush(value_ > 1 ? QColor(0xD8, 0xD8, 0xD8) : QColor(Qt::white));
    painter.drawRect(box.adjusted(0, 0, -1, -1));
    if (value_ != 0) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(value_ == 1 ? Qt::black : Qt::gray, 2));
        painter.drawPolyline(QPolygonF({box.topLeft() + QPointF(3, 6.5), box.topLeft() + QPointF(5.5, 9.5),
                                        box.topLeft() + QPointF(10, 3.5)}));
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
    if (hasFocus()) {
        painter.setPen(QPen(QColor(0x20, 0x5E, 0x9C), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace orvinel
