#pragma once

#include "ui/map/MapSurface.h"
#include "world/MapView.h"
#include "world/Marker.h"

#include <QWidget>

#include <array>
#include <optional>

namespace orvinel {

// picMap: shows the visible part of the composition, or the empty map's picture, and tells of the mouse and
// the keys. The picture's pixels are the screen's, whatever the scale factor; ViewPoint and MapView count in
// them.
class MapViewport : public QWidget {
    Q_OBJECT
  public:
    explicit MapViewport(QWidget* parent);

    MapView& view() { return view_; }
    const MapView& view() const { return view_; }

    // nullptr: the empty map. Not owned; must outlive its showing.
    void showSurface(MapSurface* surface);
    MapSurface* surface() const { return surface_; }
    // The empty map, as large as the viewport, in screen pixels.
    void setEmptyPicture(QImage picture);

    // The blinking marker of a kind 0..4: a picture over the composition, at map pixels; nothing: not drawn.
    struct Selection {
        Sprite sprite = Sprite::Count;
        QPoint at; // its top left corner
    };
    void setSelection(int kind, std::optional<Selection> selection, const MarkerArt& art);

    // Paints what the viewport shows in `area` (its own pixels); the painter's origin is the viewport's
    // corner.
    void paintShown(QPainter& painter, const QRect& area);
    // Of a rectangle of the region picture, in the viewport's own pixels; edges inclusive on both sides.
    QRect toWidget(const QRect& mapArea) const;
    QSize screenPixels() const;
    static constexpr int keyStep = 48; // pixels by which an arrow key scrolls
    // Pixels by which a turn of the wheel moves what is shown: positive right or down.
    static QPoint wheeled(const QWheelEvent& event);

  signals:
    void pressed(Qt::MouseButton button, Qt::KeyboardModifiers keys, orvinel::ViewPoint at);
    void moved(orvinel::ViewPoint at, bool leftHeld);
    void released(Qt::MouseButton button);
    void doubleClicked();
    // Pixels by which the picture is to be scrolled: positive shows what lies further right or down.
    void scrollWanted(int dx, int dy);
    void menuKeyPressed();
    void escapePressed();
    // Space, Enter and Insert: to look at what is selected, to act on it, to pin a note.
    void lookKeyPressed();
    void actKeyPressed();
    void insertKeyPressed();
    void focusChanged();
    void resized();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    ViewPoint toView(const QMouseEvent& event) const;
    void paintSurface(QPainter& painter, const QRect& pixels);

    MapView view_;
    MapSurface* surface_ = nullptr;
    QImage empty_;
    ulong pressedAt_ = 0; // ms, the events' clock
    struct Shown {
        Selection selection;
        QImage picture;
    };
    std::array<std::optional<Shown>, 5> selections_;
};

} // namespace orvinel
