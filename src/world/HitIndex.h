#pragma once

#include "world/MapLocation.h"

#include <QPoint>

#include <span>
#include <unordered_map>
#include <vector>

namespace orvinel {

// A marker of the region shown that the mouse can find. `id` and `part` mean what the layer says (a skill and
// the index of its location, a note, ...).
struct HitArea {
    int left = 0;
    int top = 0;
    int right = 0; // edges included
    int bottom = 0;
    int id = 0;
    int part = 0;

    static HitArea of(const MapLocation& at, int id, int part = 0) {
        return {at.Left, at.Top, at.Right, at.Bottom, id, part};
    }
    bool holds(QPoint p) const { return left <= p.x() && p.x() <= right && top <= p.y() && p.y() <= bottom; }

    bool operator==(const HitArea&) const = default;
};

// Finds the first of many areas, in their order, that holds a point, without looking at all of them.
class HitIndex {
  public:
    HitIndex() = default;
    explicit HitIndex(std::vector<HitArea> areas);

    // Owned by the index; nullptr when no area holds the point (map pixels).
    const HitArea* first(QPoint point) const;
    std::span<const HitArea> areas() const { return areas_; }

  private:
    std::vector<HitArea> areas_;
    std::unordered_map<qint64, std::vector<int>> cells_; // indexes of the areas that touch a cell, ascending
};

} // namespace orvinel
