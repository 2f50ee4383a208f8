#include "compare/Bare.h"

#include "compare/Layout.h"

#include <QMouseEvent>
#include <QPainter>

namespace orvinel::bench {

void BareMap::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.drawImage(event->rect().topLeft(), picture_, event->rect().translated(offset));
    painter.fillRect(changed, marked ? Qt::white : Qt::black);
}

void BareMap::mousePressEvent(QMouseEvent* event) {
    grip_ = event->position().toPoint() + offset;
}

void BareMap::mouseMoveEvent(QMouseEvent* event) {
    offset = grip_ - event->position().toPoint();
    update();
}

Bare::Bare(QImage picture, QStringList texts)
    : map_(std::move(picture)), field_(new QLineEdit(&panel_)), list_(new QListView(&panel_)),
      all_(std::move(texts)) {
    for (qsizetype i = 0; i < all_.size(); i += 2)
        half_ << all_[i];
    model_.setStringList(all_);
    list_->setUniformItemSizes(true);
    list_->setModel(&model_);
    QObject::connect(field_, &QLineEdit::textChanged, list_, [this](const QString& text) {
        model_.setStringList(text.size() % 2 == 0 ? all_ : half_);
        map_.marked = !map_.marked;
        map_.update();
    });
}

void Bare::show(const QRect& panel, const QRect& map) {
    showLaidOut(panel_, map_, *field_, *list_, panel, map);
}

} // namespace orvinel::bench
