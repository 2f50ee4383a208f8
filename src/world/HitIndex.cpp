#include "world/HitIndex.h"

namespace orvinel {

namespace {

constexpr int cellShift = 6; // 64 x 64 pixels: a marker touches at most four cells

qint64 cellAt(int column, int row) {
    return (static_cast<qint64>(row) << 32) | static_cast<quint32>(column);
}

} // namespace

HitIndex::HitIndex(std::vector<HitArea> areas) : areas_(std::move(areas)) {
    for (size_t i = 0; i < areas_.size(); ++i) {
        const HitArea& area = areas_[i];
        for (int row = area.top >> cellShift; row <= area.bottom >> cellShift; ++row)
            for (int column = area.left >> cellShift; column <= area.right >> cellShift; ++column)
                cells_[cellAt(column, row)].push_back(static_cast<int>(i));
    }
}

const HitArea* HitIndex::first(QPoint point) const {
    const auto cell = cells_.find(cellAt(point.x() >> cellShift, point.y() >> cellShift));
    if (cell == cells_.end())
        return nullptr;
    for (const int i : cell->second)
        if (areas_[static_cast<size_t>(i)].holds(point))
            return &areas_[static_cast<size_t>(i)];
    return nullptr;
}

} // namespace orvinel
