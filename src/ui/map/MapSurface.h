#pragma once

#include "ui/map/MarkerArt.h"
#include "ui/map/RegionPictures.h"
#include "world/Marker.h"

#include <QImage>
#include <QRect>

#include <functional>
#include <vector>

namespace orvinel {

// The composition: a region picture and the markers over it. Only tiles whose markers changed are drawn anew,
// and only when somebody asks for them; the picture below a tile's markers is kept with the tile.
class MapSurface {
  public:
    // Draws what never changes onto a part of the region picture.
    using DrawGround = std::function<void(QImage& picture, const QRect& part)>;

    // Takes the region picture (RGB32). `drawGround` is called once for each part of it, when its pixels are
    // there; `art` and what it refers to outlive the surface.
    MapSurface(GrowingPicture picture, const MarkerArt& art, DrawGround drawGround = {});

    // The rows of a picture that have to be there before `rows` of them, from the top, can be composed.
    static int rowsNeededFor(int rows) { return (rows + tileSize - 1) / tileSize * tileSize; }

    QSize size() const { return image().size(); }
    // Bytes held, about.
    qint64 cost() const;

    // Begins to get what of the picture is missing yet; who needs it before waits for it.
    void beginRest() { picture_.beginRest(); }

    // In drawing order, later ones over earlier ones.
    void setMarkers(std::vector<Marker> markers);

    // The composition, up to date within `area` (map pixels).
    const QImage& composed(const QRect& area);
    const QImage& composed() { return composed(image().rect()); }

  private:
    struct Tile {
        size_t wanted = 0; // identifies the sequence of markers that belong on the tile; 0: none
        size_t drawn = 0;  // of those that are on it
        QImage clean;      // the ground below them, while there are any
    };
    static constexpr int tileSize = 64; // pixels

    QImage& image() { return picture_.image; }
    const QImage& image() const { return picture_.image; }
    void drawGroundOn(int fromRow);
    QRect tilesOf(const QRect& area) const; // columns and rows
    QRect tileRect(int column, int row) const;
    void redraw(QPainter& painter, int column, int row);

    const MarkerArt& art_;
    DrawGround drawGround_;
    GrowingPicture picture_;
    int columns_;
    int rows_;
    std::vector<Tile> tiles_;
    std::vector<Marker> markers_;
    std::vector<int> starts_; // per tile: where its markers begin in order_
    std::vector<int> order_;  // indexes into markers_, tile by tile
};

} // namespace orvinel
