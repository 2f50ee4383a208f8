#include "ui/map/InformationWindow.h"

#include "app/modUtility.h"
#include "ui/map/MapViewport.h"
#include "ui/platform/SpokenRole.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>

namespace orvinel {

namespace {

constexpr Colour ground = 0x202020; // dark enough for the white and pale texts
constexpr Colour outerLine = 0xB4B4B4;
constexpr Colour innerLine = 0x646464;
constexpr int bandInset = 6;
constexpr int separatorInset = 18;
constexpr QColor mapOpacity(0, 0, 0, 80);

} // namespace

InformationWindow::InformationWindow(const QString& name, int width, MapViewport& map)
    : PictureBox(&map), map_(map) {
    setObjectName(name);
    setSpokenRole(*this, QAccessible::ToolTip);
    setBackground(ground);
    resize(width, 40);
    hide();
    map.installEventFilter(this);
}

void InformationWindow::dismiss() {
    const bool shown = !isHidden();
    hide();
    tag_.clear();
    if (shown)
        tellScreenReaders();
}

void InformationWindow::tellScreenReaders() {
    QAccessibleEvent told(&map_, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&told);
}

void InformationWindow::frameWithBand(Colour band, int bandHeight, const QRect& marker) {
    band_ = {band, bandHeight};
    frame(marker);
}

void InformationWindow::frameWithoutBand(const QRect& marker) {
    band_.reset();
    frame(marker);
}

void InformationWindow::frame(const QRect& marker) {
    marker_ = marker;
    separators_.clear();
    move(PlaceTooltip(size(), marker, map_.size()));
    draw();
    show();
    raise();
    tellScreenReaders();
}

void InformationWindow::draw() {
    clear();
    const int w = width() - 1;
    const int h = height() - 1;
    Drawing drawing(&surface());
    if (band_)
        drawing.filledBox(bandInset, bandInset, width() - 7, band_->height, band_->colour);
    drawing.painter().drawImage(0, 0, translucentMap());
    drawing.outline(0, 0, w, h, outerLine);
    drawing.outline(bandInset, bandInset, w - bandInset, h - bandInset, innerLine);
    for (const int y : separators_)
        drawSeparator(drawing, y);
    update();
}

bool InformationWindow::scroll(int by) {
    if (height() <= map_.height())
        return false;
    move(x(), std::clamp(y() + by, map_.height() - height(), 0));
    draw(); // other parts of the map shine through now
    return true;
}

bool InformationWindow::scrolledByKey(int key) {
    constexpr int step = MapViewport::keyStep;
    const int page = std::max(step, map_.height() - step);
    switch (key) {
    case Qt::Key_Up:
        return scroll(step);
    case Qt::Key_Down:
        return scroll(-step);
    case Qt::Key_PageUp:
        return scroll(page);
    case Qt::Key_PageDown:
        return scroll(-page);
    case Qt::Key_Home:
        return scroll(height());
    case Qt::Key_End:
        return scroll(-height());
    default:
        return false;
    }
}

void InformationWindow::wheelEvent(QWheelEvent* event) {
    event->setAccepted(scroll(MapViewport::wheeled(*event).y()));
}

bool InformationWindow::eventFilter(QObject* watched, QEvent* event) {
    if (isHidden())
        return PictureBox::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        return scrolledByKey(static_cast<const QKeyEvent&>(*event).key());
    if (event->type() != QEvent::Wheel)
        return PictureBox::eventFilter(watched, event);
    const auto& wheel = static_cast<const QWheelEvent&>(*event);
    return marker_.contains(wheel.position().toPoint()) && scroll(MapViewport::wheeled(wheel).y());
}

// As one picture: several paintings, each translucent, would darken what lies under them several times.
QImage InformationWindow::translucentMap() {
    QImage map(surface().size(), QImage::Format_ARGB32_Premultiplied);
    map.setDevicePixelRatio(surface().devicePixelRatio());
    map.fill(Qt::black);
    QPainter painter(&map);
    painter.translate(-pos());
    map_.paintShown(painter, geometry());
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(geometry(), mapOpacity);
    return map;
}

void InformationWindow::separator(int y) {
    separators_.push_back(y);
    Drawing drawing(&surface());
    drawSeparator(drawing, y);
    update();
}

void InformationWindow::drawSeparator(Drawing& drawing, int y) {
    drawing.line(separatorInset, y, width() - 1 - separatorInset, y, innerLine);
}

Label* informationLabel(const QString& name, const QFont& font, Colour colour, InformationWindow& window) {
    auto* label = new Label(name, &window);
    label->setFont(font);
    label->setColour(colour);
    return label;
}

Label* informationPicture(const QString& name, const QRect& place, InformationWindow& window) {
    auto* label = new Label(name, &window);
    label->setAlignment(Qt::AlignCenter);
    label->setGeometry(place);
    return label;
}

void setPicture(Label& place, const QImage& picture) {
    const bool fits = picture.width() <= place.width() && picture.height() <= place.height();
    place.setPixmap(QPixmap::fromImage(
        fits ? picture : picture.scaled(place.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

} // namespace orvinel
