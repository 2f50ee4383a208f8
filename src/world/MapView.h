#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace orvinel {

// A place of the region picture, pixels. Deliberately not the type of viewport places: the two must not be
// mixed.
struct MapPoint {
    int x = 0;
    int y = 0;

    QPoint point() const { return {x, y}; }
    bool operator==(const MapPoint&) const = default;
};

// A place of the viewport, picture pixels from its top left corner; mouse positions may lie between pixels.
struct ViewPoint {
    double x = 0;
    double y = 0;

    bool operator==(const ViewPoint&) const = default;
};

// Which part of the region picture the viewport shows. Picture pixels throughout; there is no zoom.
class MapView {
  public:
    QSize picture() const { return picture_; }
    QSize viewport() const { return viewport_; }
    int scrollX() const { return scrollX_; } // 0 or negative: map = view - scroll
    int scrollY() const { return scrollY_; }

    // Empty: no picture. Scrolls back to the top left corner.
    void setPicture(QSize size);
    // Clamps the scroll offsets to the new size.
    void setViewport(QSize size);

    // The nearest allowed scroll offset: between min(0, viewport - picture) and 0.
    int clampX(int proposed) const;
    int clampY(int proposed) const;
    // As near to the wish as the clamping lets it.
    void scrollTo(int x, int y);
    // Only along the axes on which the picture is larger than the viewport.
    void dragTo(int x, int y);
    void centreOn(MapPoint point);

    // Halves to the even neighbour.
    MapPoint toMap(ViewPoint point) const;
    ViewPoint toView(MapPoint point) const;
    // The part of the picture that the viewport shows, map pixels.
    QRect visible() const;

  private:
    QSize picture_;
    QSize viewport_;
    int scrollX_ = 0;
    int scrollY_ = 0;
};

} // namespace orvinel
