#include "ui/map/MapViewport.h"

#include "ui/platform/SpokenRole.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int wheelStep = 64; // pixels per notch
constexpr int notch = 120;    // what a wheel reports for one
constexpr int veryFar = 1 << 20;

// From now on the painter counts in pixels of the screen, from the whole one that is nearest to its origin:
// at odd scale factors a part painted anew would stand a pixel beside the rest.
void countInScreenPixels(QPainter& painter) {
    const QTransform now = painter.deviceTransform();
    const auto whole = QTransform::fromTranslate(std::round(now.dx()), std::round(now.dy()));
    painter.setWorldTransform(whole * now.inverted() * painter.worldTransform());
}

} // namespace

MapViewport::MapViewport(QWidget* parent) : QWidget(parent) {
    setObjectName(u"picMap"_s);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSpokenRole(*this, QAccessible::Graphic);
}

QSize MapViewport::screenPixels() const {
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

void MapViewport::showSurface(MapSurface* surface) {
    surface_ = surface;
    for (auto& selection : selections_)
        selection.reset();
    view_.setPicture(surface ? surface->size() : QSize());
    update();
}

void MapViewport::setEmptyPicture(QImage picture) {
    empty_ = std::move(picture);
    if (!surface_)
        update();
}

void MapViewport::setSelection(int kind, std::optional<Selection> selection, const MarkerArt& art) {
    auto& shown = selections_[static_cast<size_t>(kind)];
    const auto refresh = [&] {
        if (shown)
            update(toWidget(QRect(shown->selection.at, shown->picture.size())).adjusted(-1, -1, 1, 1));
    };
    refresh();
    shown.reset();
    if (selection) {
        const QImage& picture = art.picture(selection->sprite);
        // The last column and row belong to no marker.
        shown = {*selection, picture.copy(0, 0, picture.width() - 1, picture.height() - 1)};
    }
    refresh();
}

QRect MapViewport::toWidget(const QRect& mapArea) const {
    const double ratio = devicePixelRatioF();
    const auto scaled = [&](int value) { return static_cast<int>(std::lrint(value / ratio)); };
    return {QPoint(scaled(mapArea.left() + view_.scrollX()), scaled(mapArea.top() + view_.scrollY())),
            QPoint(scaled(mapArea.right() + view_.scrollX()), scaled(mapArea.bottom() + view_.scrollY()))};
}

void MapViewport::paintShown(QPainter& painter, const QRect& area) {
    const double ratio = devicePixelRatioF();
    const QRect pixels = QRectF(QPointF(area.topLeft()) * ratio, QSizeF(area.size()) * ratio).toAlignedRect();
    painter.save();
    countInScreenPixels(painter);
    painter.setClipRect(pixels);
    if (surface_)
        paintSurface(painter, pixels);
    else {
        painter.fillRect(pixels, Qt::black);
        painter.drawImage(pixels.topLeft(), empty_, pixels);
    }
    painter.restore();
}

void MapViewport::paintSurface(QPainter& painter, const QRect& pixels) {
    const QRect visible = view_.visible();
    if (visible.width() < screenPixels().width() || visible.height() < screenPixels().height())
        painter.fillRect(pixels, Qt::black);
    const QPoint scroll(view_.scrollX(), view_.scrollY());
    const QRect part = pixels.translated(-scroll).intersected(visible);
    painter.drawImage(part.topLeft() + scroll, surface_->composed(part), part);
    painter.setClipRect(part.translated(scroll)); // a marker at the picture's edge ends there
    for (const auto& shown : selections_)
        if (shown)
            painter.drawImage(shown->selection.at + scroll, shown->picture);
}

void MapViewport::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    paintShown(painter, event->rect());
}

void MapViewport::resizeEvent(QResizeEvent*) {
    view_.setViewport(screenPixels());
    emit resized();
}

ViewPoint MapViewport::toView(const QMouseEvent& event) const {
    // Of all the event's positions only that inside the window is not rounded, which would lose screen
    // pixels.
    const QPointF position = event.scenePosition() - mapTo(window(), QPointF());
    return {position.x() * devicePixelRatioF(), position.y() * devicePixelRatioF()};
}

void MapViewport::mousePressEvent(QMouseEvent* event) {
    pressedAt_ = event->timestamp();
    emit pressed(event->button(), event->modifiers(), toView(*event));
}

void MapViewport::mouseMoveEvent(QMouseEvent* event) {
    emit moved(toView(*event), event->buttons() & Qt::LeftButton);
}

void MapViewport::mouseReleaseEvent(QMouseEvent* event) {
    emit released(event->button());
}

// Only when both presses were on the map: the first may have closed an information window or a menu over it.
void MapViewport::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->timestamp() - pressedAt_ > ulong(QApplication::doubleClickInterval()))
        mousePressEvent(event);
    else
        emit doubleClicked();
}

QPoint MapViewport::wheeled(const QWheelEvent& event) {
    const QPoint by =
        event.pixelDelta().isNull() ? event.angleDelta() * wheelStep / notch : event.pixelDelta();
    return event.modifiers() & Qt::ShiftModifier ? by.transposed() : by;
}

void MapViewport::wheelEvent(QWheelEvent* event) {
    const QPoint by = wheeled(*event);
    emit scrollWanted(-by.x(), -by.y());
    event->accept();
}

void MapViewport::keyPressEvent(QKeyEvent* event) {
    const int page = std::max(keyStep, screenPixels().height() - keyStep);
    switch (event->key()) {
    case Qt::Key_Left:
        return scrollWanted(-keyStep, 0);
    case Qt::Key_Right:
        return scrollWanted(keyStep, 0);
    case Qt::Key_Up:
        return scrollWanted(0, -keyStep);
    case Qt::Key_Down:
        return scrollWanted(0, keyStep);
    case Qt::Key_PageUp:
        return scrollWanted(0, -page);
    case Qt::Key_PageDown:
        return scrollWanted(0, page);
    case Qt::Key_Home:
        return scrollWanted(-veryFar, -veryFar);
    case Qt::Key_End:
        return scrollWanted(veryFar, veryFar);
    case Qt::Key_Space:
        return lookKeyPressed();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return actKeyPressed();
    case Qt::Key_Insert:
        return insertKeyPressed();
    case Qt::Key_Menu:
        return menuKeyPressed();
    case Qt::Key_Escape:
        return escapePressed();
    default:
        QWidget::keyPressEvent(event);
    }
}

// The base class would paint the whole map anew; what tells of the focus lies around it.
void MapViewport::focusInEvent(QFocusEvent*) {
    emit focusChanged();
}

void MapViewport::focusOutEvent(QFocusEvent*) {
    emit focusChanged();
}

} // namespace orvinel
