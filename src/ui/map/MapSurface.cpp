#include "ui/map/MapSurface.h"

#include <algorithm>
#include <cstring>

namespace orvinel {

namespace {

size_t mixed(size_t value) {
    value *= size_t(0x9E3779B97F4A7C15u);
    return value ^ (value >> 29);
}

size_t packed(int high, int low) {
    return size_t(quint32(high)) << 32 | quint32(low);
}

size_t fingerprint(const Marker& marker) {
    const size_t look = packed(static_cast<int>(marker.kind) << 8 | static_cast<int>(marker.sprite),
                               static_cast<int>(marker.fill));
    const size_t place = mixed(packed(marker.left, marker.top)) ^ packed(marker.right, marker.bottom);
    const size_t print = mixed(mixed(place) ^ look);
    return marker.code.isEmpty() ? print : mixed(print ^ qHash(marker.code));
}

// Of a sequence: depends on the order; never 0.
size_t chained(size_t sequence, size_t next) {
    const size_t chain = mixed(sequence ^ next);
    return chain == 0 ? 1 : chain;
}

void copyRect(QImage& to, QPoint at, const QImage& from, const QRect& area) {
    const size_t bytes = static_cast<size_t>(area.width()) * sizeof(QRgb);
    uchar* target = to.scanLine(at.y()) + size_t(at.x()) * sizeof(QRgb);
    const uchar* source = from.constScanLine(area.y()) + size_t(area.x()) * sizeof(QRgb);
    for (int y = 0; y < area.height(); ++y, target += to.bytesPerLine(), source += from.bytesPerLine())
        std::memcpy(target, source, bytes);
}

} // namespace

MapSurface::MapSurface(GrowingPicture picture, const MarkerArt& art, DrawGround drawGround)
    : art_(art), drawGround_(std::move(drawGround)), picture_(std::move(picture)),
      columns_((size().width() + tileSize - 1) / tileSize),
      rows_((size().height() + tileSize - 1) / tileSize),
      tiles_(static_cast<size_t>(columns_) * size_t(rows_)) {
}

qint64 MapSurface::cost() const {
    qint64 bytes = image().sizeInBytes();
    for (const Tile& tile : tiles_)
        bytes += tile.clean.sizeInBytes();
    return bytes;
}

QRect MapSurface::tilesOf(const QRect& area) const {
    const QRect inside = area.intersected(image().rect());
    if (inside.isEmpty())
        return {};
    return {QPoint(inside.left() / tileSize, inside.top() / tileSize),
            QPoint(inside.right() / tileSize, inside.bottom() / tileSize)};
}

QRect MapSurface::tileRect(int column, int row) const {
    return QRect(column * tileSize, row * tileSize, tileSize, tileSize).intersected(image().rect());
}

bool MapSurface::madeFrom(size_t layer, const MarkersFrom& from) const {
    return layer < layers_.size() && !from.empty() && layers_[layer].madeFrom == from;
}

void MapSurface::setMarkers(size_t layer, std::vector<Marker> markers, MarkersFrom madeFrom) {
    if (layer >= layers_.size())
        layers_.resize(layer + 1);
    Layer& changed = layers_[layer];
    changed.markers = std::move(markers);
    changed.madeFrom = std::move(madeFrom);
    composedTiles_ = {};
    sortIntoTiles(changed);
}

void MapSurface::setMarkers(std::vector<Marker> markers) {
    layers_.clear();
    setMarkers(0, std::move(markers));
}

void MapSurface::sortIntoTiles(Layer& layer) const {
    std::vector<QRect> touched;
    touched.reserve(layer.markers.size());
    layer.starts.assign(tiles_.size() + 1, 0);
    layer.prints.assign(tiles_.size(), 0);
    const auto forTiles = [&](const QRect& range, auto&& visit) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            for (int column = range.left(); column <= range.right(); ++column)
                visit(tileIndex(column, row));
    };
    for (const Marker& marker : layer.markers) {
        touched.push_back(tilesOf(art_.bounds(marker)));
        forTiles(touched.back(), [&](size_t tile) { ++layer.starts[tile + 1]; });
    }
    for (size_t tile = 0; tile < tiles_.size(); ++tile)
        layer.starts[tile + 1] += layer.starts[tile];
    layer.order.resize(static_cast<size_t>(layer.starts.back()));
    std::vector<int> next(layer.starts.begin(), layer.starts.end() - 1);
    for (size_t i = 0; i < layer.markers.size(); ++i) {
        const size_t print = fingerprint(layer.markers[i]);
        forTiles(touched[i], [&](size_t tile) {
            layer.order[static_cast<size_t>(next[tile]++)] = static_cast<int>(i);
            layer.prints[tile] = chained(layer.prints[tile], print);
        });
    }
}

// Identifies the sequence of markers that belong on the tile; 0: none.
size_t MapSurface::wanted(size_t tile) const {
    size_t print = 0;
    for (const Layer& layer : layers_)
        if (!layer.prints.empty() && layer.prints[tile] != 0)
            print = chained(print, layer.prints[tile]);
    return print;
}

const QImage& MapSurface::composed(const QRect& area) {
    const QRect range = tilesOf(area);
    if (composedTiles_.contains(range))
        return image();
    if (!range.isEmpty() && tileRect(0, range.bottom()).bottom() >= picture_.rows)
        picture_.finish();
    drawGroundOn(range);
    QPainter painter;
    for (int row = range.top(); row <= range.bottom(); ++row)
        for (int column = range.left(); column <= range.right(); ++column) {
            const size_t tile = tileIndex(column, row);
            if (const size_t belongs = wanted(tile); belongs != tiles_[tile].drawn)
                redraw(painter, column, row, belongs);
        }
    composedTiles_ = range;
    return image();
}

void MapSurface::composeAround(const QRect& area) {
    if (picture_.ready())
        composed(area.adjusted(-tileSize, -tileSize, tileSize, tileSize));
}

// The end of the tiles of a row, from `column` on, that have not got their ground.
int MapSurface::ungroundedFrom(int column, int row, int lastColumn) const {
    while (column <= lastColumn && !tiles_[tileIndex(column, row)].grounded)
        ++column;
    return column;
}

// In parts as large as may be: what lies across the border of two is drawn for both.
void MapSurface::drawGroundOn(const QRect& tiles) {
    if (!drawGround_)
        return;
    for (int row = tiles.top(); row <= tiles.bottom(); ++row)
        for (int column = tiles.left(); column <= tiles.right(); ++column) {
            const int end = ungroundedFrom(column, row, tiles.right());
            if (end == column)
                continue;
            int last = row;
            while (last < tiles.bottom() && ungroundedFrom(column, last + 1, end - 1) == end)
                ++last;
            for (int y = row; y <= last; ++y)
                for (int x = column; x < end; ++x)
                    tiles_[tileIndex(x, y)].grounded = true;
            drawGround_(image(), tileRect(column, row).united(tileRect(end - 1, last)));
        }
}

bool MapSurface::drawMoreGround() {
    if (groundedRows_ == rows_)
        return false;
    if (!picture_.ready())
        return true;
    picture_.finish();
    drawGroundOn({0, groundedRows_, columns_, 1});
    return ++groundedRows_ < rows_;
}

void MapSurface::redraw(QPainter& painter, int column, int row, size_t wanted) {
    const size_t index = tileIndex(column, row);
    Tile& tile = tiles_[index];
    const QRect area = tileRect(column, row);
    if (tile.drawn != 0) {
        copyRect(image(), area.topLeft(), tile.clean, tile.clean.rect());
    } else {
        tile.clean = QImage(area.size(), image().format());
        copyRect(tile.clean, {}, image(), area);
    }
    if (wanted == 0)
        tile.clean = {};
    if (!painter.isActive())
        painter.begin(&image());
    painter.setClipRect(area);
    for (const Layer& layer : layers_)
        if (!layer.starts.empty())
            for (int i = layer.starts[index]; i < layer.starts[index + 1]; ++i)
                art_.draw(painter, layer.markers[static_cast<size_t>(layer.order[static_cast<size_t>(i)])]);
    tile.drawn = wanted;
}

} // namespace orvinel
