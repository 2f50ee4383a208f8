#pragma once

#include "ui/map/MarkerArt.h"
#include "ui/map/RegionPictures.h"
#include "world/Marker.h"

#include <QImage>
#include <QRect>

#include <functional>
#include <vector>

namespace orvinel {

// The composition: a region picture, what never changes on it, and the layers' markers over it. Only tiles
// whose markers changed are drawn anew, and only when somebody asks for them; the picture below a tile's
// markers is kept with the tile.
class MapSurface {
  public:
    // Draws what never changes onto a part of the region picture and leaves the rest alone.
    using DrawGround = std::function<void(QImage& picture, const QRect& part)>;

    // Takes the region picture (RGB32). `drawGround` is called once for each part of it, when somebody first
    // asks for it; `art` and what it refers to outlive the surface.
    MapSurface(GrowingPicture picture, const MarkerArt& art, DrawGround drawGround = {});

    // The rows of a picture that have to be there before `rows` of them, from the top, can be composed.
    static int rowsNeededFor(int rows) { return (rows + tileSize - 1) / tileSize * tileSize; }

    QSize size() const { return image().size(); }
    // Bytes held, about.
    qint64 cost() const;

    // Begins to get what of the picture is missing yet; who needs it before waits for it.
    void beginRest() { picture_.beginRest(); }
    // Draws some of the ground that nobody has asked for yet, without waiting; False: all of it is drawn.
    bool drawMoreGround();

    // A layer's markers in drawing order, later ones over earlier ones; layers are drawn in the order of
    // their numbers, 0 first. `madeFrom`: what the markers follow from, so that it need not be done again.
    void setMarkers(size_t layer, std::vector<Marker> markers, MarkersFrom madeFrom = {});
    // Those of all layers in one.
    void setMarkers(std::vector<Marker> markers);
    // True when the layer's markers, as they are, were made from just that, and it says something.
    bool madeFrom(size_t layer, const MarkersFrom& from) const;

    // The composition, up to date within `area` (map pixels).
    const QImage& composed(const QRect& area);
    const QImage& composed() { return composed(image().rect()); }
    // Composes also what lies up to a tile around the area, which is about to scroll into view, unless that
    // would have to wait for the picture.
    void composeAround(const QRect& area);

  private:
    struct Tile {
        bool grounded = false; // what never changes is on it
        size_t drawn = 0;      // identifies the sequence of markers that is on it; 0: none
        QImage clean;          // the ground below them, while there are any
    };
    struct Layer {
        std::vector<Marker> markers;
        MarkersFrom madeFrom;
        std::vector<int> starts;    // per tile: where its markers begin in order
        std::vector<int> order;     // indexes into markers, tile by tile
        std::vector<size_t> prints; // per tile: identifies the sequence of its markers; 0: none
    };
    static constexpr int tileSize = 64; // pixels

    QImage& image() { return picture_.image; }
    const QImage& image() const { return picture_.image; }
    size_t tileIndex(int column, int row) const { return size_t(row) * size_t(columns_) + size_t(column); }
    QRect tilesOf(const QRect& area) const; // columns and rows
    QRect tileRect(int column, int row) const;
    void sortIntoTiles(Layer& layer) const;
    size_t wanted(size_t tile) const;
    void drawGroundOn(const QRect& tiles);
    int ungroundedFrom(int column, int row, int lastColumn) const;
    void redraw(QPainter& painter, int column, int row, size_t wanted);

    const MarkerArt& art_;
    DrawGround drawGround_;
    GrowingPicture picture_;
    int columns_;
    int rows_;
    std::vector<Tile> tiles_;
    QRect composedTiles_;  // columns and rows that are up to date; there may be others
    int groundedRows_ = 0; // of tiles, from the top, that drawMoreGround is done with
    std::vector<Layer> layers_;
};

} // namespace orvinel
