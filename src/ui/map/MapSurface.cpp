#include "ui/map/MapSurface.h"

#include <algorithm>
#include <cstring>

namespace orvinel {

namespace {

size_t fingerprint(const Marker& marker) {
    return qHashMulti(1, static_cast<int>(marker.kind), static_cast<int>(marker.sprite), marker.left,
                      marker.top, marker.right, marker.bottom, marker.fill, marker.code);
}

// Of a sequence: depends on the order.
size_t chained(size_t sequence, size_t next) {
    const size_t mixed = (sequence ^ next) * size_t(0x9E3779B97F4A7C15u);
    return mixed == 0 ? 1 : mixed ^ (mixed >> 29);
}

void copyRect(QImage& to, QPoint at, const QImage& from, const QRect& area) {
    const size_t bytes = static_cast<size_t>(area.width()) * sizeof(QRgb);
    for (int y = 0; y < area.height(); ++y)
        std::memcpy(reinterpret_cast<QRgb*>(to.scanLine(at.y() + y)) + at.x(),
                    reinterpret_cast<const QRgb*>(from.constScanLine(area.y() + y)) + area.x(), bytes);
}

} // namespace

MapSurface::MapSurface(GrowingPicture picture, const MarkerArt& art, DrawGround drawGround)
    : art_(art), drawGround_(std::move(drawGround)), picture_(std::move(picture)),
      columns_((size().width() + tileSize - 1) / tileSize),
      rows_((size().height() + tileSize - 1) / tileSize),
      tiles_(static_cast<size_t>(columns_) * size_t(rows_)) {
    drawGroundOn(0);
}

void MapSurface::drawGroundOn(int fromRow) {
    if (drawGround_)
        drawGround_(image(), {0, fromRow, size().width(), picture_.rows - fromRow});
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

void MapSurface::setMarkers(std::vector<Marker> markers) {
    markers_ = std::move(markers);
    starts_.assign(tiles_.size() + 1, 0);
    std::vector<QRect> touched;
    touched.reserve(markers_.size());
    const auto forTiles = [&](const QRect& range, auto&& visit) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            for (int column = range.left(); column <= range.right(); ++column)
                visit(static_cast<size_t>(row) * size_t(columns_) + size_t(column));
    };
    for (const Marker& marker : markers_) {
        touched.push_back(tilesOf(art_.bounds(marker)));
        forTiles(touched.back(), [&](size_t tile) { ++starts_[tile + 1]; });
    }
    for (size_t tile = 0; tile < tiles_.size(); ++tile) {
        starts_[tile + 1] += starts_[tile];
        tiles_[tile].wanted = 0;
    }
    order_.resize(static_cast<size_t>(starts_.back()));
    std::vector<int> next(starts_.begin(), starts_.end() - 1);
    for (size_t i = 0; i < markers_.size(); ++i) {
        const size_t print = fingerprint(markers_[i]);
        forTiles(touched[i], [&](size_t tile) {
            order_[static_cast<size_t>(next[tile]++)] = static_cast<int>(i);
            tiles_[tile].wanted = chained(tiles_[tile].wanted, print);
        });
    }
}

const QImage& MapSurface::composed(const QRect& area) {
    const QRect range = tilesOf(area);
    if (!range.isEmpty() && tileRect(0, range.bottom()).bottom() >= picture_.rows) {
        const int known = picture_.rows;
        picture_.finish();
        drawGroundOn(known);
    }
    QPainter painter;
    for (int row = range.top(); row <= range.bottom(); ++row)
        for (int column = range.left(); column <= range.right(); ++column) {
            const Tile& tile = tiles_[static_cast<size_t>(row) * size_t(columns_) + size_t(column)];
            if (tile.wanted == tile.drawn)
                continue;
            redraw(painter, column, row);
        }
    return image();
}

void MapSurface::redraw(QPainter& painter, int column, int row) {
    const size_t index = static_cast<size_t>(row) * size_t(columns_) + size_t(column);
    Tile& tile = tiles_[index];
    const QRect area = tileRect(column, row);
    if (tile.drawn != 0) {
        copyRect(image(), area.topLeft(), tile.clean, tile.clean.rect());
    } else {
        tile.clean = QImage(area.size(), image().format());
        copyRect(tile.clean, {}, image(), area);
    }
    if (tile.wanted == 0)
        tile.clean = {};
    if (!painter.isActive())
        painter.begin(&image());
    painter.setClipRect(area);
    for (int i = starts_[index]; i < starts_[index + 1]; ++i)
        art_.draw(painter, markers_[static_cast<size_t>(order_[static_cast<size_t>(i)])]);
    tile.drawn = tile.wanted;
}

} // namespace orvinel
