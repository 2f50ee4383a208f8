#pragma once

#include "layers/Marker.h"
#include "ui/map/MarkerArt.h"

#include <QImage>
#include <QRect>

#include <vector>

namespace orvinel {

// The composition: a region picture and the markers over it. Only tiles whose markers changed are drawn anew,
// and only when somebody asks for them; the picture below a tile's markers is kept with the tile.
class MapSurface {
  public:
    // Takes the region picture (RGB32), with its zones drawn on it. `art` outlives the surface.
    MapSurface(QImage ground, const MarkerArt& art);

    QSize size() const { return image_.size(); }
    // Bytes held, about.
    qint64 cost() const { return image_.sizeInBytes(); }

    // In drawing order, later ones over earlier ones.
    void setMarkers(std::vector<Marker> markers);

    // The composition, up to date within `area` (map pixels).
    const QImage& composed(const QRect& area);
    const QImage& composed() { return composed(image_.rect()); }

  private:
    struct Tile {
        size_t wanted = 0; // identifies the sequence of markers that belong on the tile; 0: none
        size_t drawn = 0;  // of those that are on it
        QImage clean;      // the ground below them, while there are any
    };
    static constexpr int tileSize = 64; // pixels

    QRect tilesOf(const QRect& area) const; // columns and rows
    QRect tileRect(int column, int row) const;
    void redraw(QPainter& painter, int column, int row);

    const MarkerArt& art_;
    QImage image_;
    int columns_;
    int rows_;
    std::vector<Tile> tiles_;
    std::vector<Marker> markers_;
    std::vector<int> starts_; // per tile: where its markers begin in order_
    std::vector<int> order_;  // indexes into markers_, tile by tile
};

} // namespace orvinel
