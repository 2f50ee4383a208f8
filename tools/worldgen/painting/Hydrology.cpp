#include "Landscape.h"
#include "Maths.h"

#include <QPointF>

#include <functional>
#include <queue>

namespace worldgen {

namespace {

using Front = std::priority_queue<std::pair<float, int>, std::vector<std::pair<float, int>>, std::greater<>>;

template <typename Visit>
void forNeighbours(const Field& field, int cell, Visit visit) {
    const int x = cell % field.width();
    const int y = cell / field.width();
    for (int j = std::max(0, y - 1); j <= std::min(field.height() - 1, y + 1); ++j)
        for (int i = std::max(0, x - 1); i <= std::min(field.width() - 1, x + 1); ++i)
            if (i != x || j != y)
                visit(j * field.width() + i);
}

bool drainsAway(const Field& height, int cell) {
    const int x = cell % height.width();
    const int y = cell / height.width();
    return height[cell] <= 0 || x == 0 || y == 0 || x == height.width() - 1 || y == height.height() - 1;
}

constexpr float kLakeDepth = 0.006F;

/// Collects the lake around \a start and takes its cells out of \a open.
std::vector<int> lakeFrom(const Field& height, int start, std::vector<char>& open) {
    std::vector<int> cells{start};
    open[std::size_t(start)] = 0;
    for (std::size_t k = 0; k < cells.size(); ++k)
        forNeighbours(height, cells[k], [&](int next) {
            if (open[std::size_t(next)]) {
                open[std::size_t(next)] = 0;
                cells.push_back(next);
            }
        });
    return cells;
}

} // namespace

Drainage drained(const Field& height) {
    const std::size_t count = std::size_t(height.count());
    Drainage result{height, std::vector<int>(count, -1), std::vector<float>(count, 1), {}};
    std::vector<char> seen(count, 0);
    Front front;
    for (int cell = 0; cell < height.count(); ++cell)
        if (drainsAway(height, cell)) {
            seen[std::size_t(cell)] = 1;
            front.emplace(height[cell], cell);
        }
    result.order.reserve(count);
    while (!front.empty()) {
        const auto [level, cell] = front.top();
        front.pop();
        result.order.push_back(cell);
        forNeighbours(height, cell, [&, level = level, cell = cell](int next) {
            if (seen[std::size_t(next)])
                return;
            seen[std::size_t(next)] = 1;
            result.downhill[std::size_t(next)] = cell;
            result.filled[next] = std::max(height[next], level + 1e-6F);
            front.emplace(result.filled[next], next);
        });
    }
    for (auto cell = result.order.rbegin(); cell != result.order.rend(); ++cell)
        if (const int next = result.downhill[std::size_t(*cell)]; next >= 0)
            result.flow[std::size_t(next)] += result.flow[std::size_t(*cell)];
    return result;
}

Field settledLakes(Field& height, Drainage& drainage, Theme theme) {
    const std::size_t kept = theme == Theme::Desert ? 2 : theme == Theme::Ash ? 4 : 5;
    std::vector<char> open(std::size_t(height.count()), 0);
    for (int cell = 0; cell < height.count(); ++cell)
        open[std::size_t(cell)] = height[cell] > 0 && drainage.filled[cell] - height[cell] > kLakeDepth;
    std::vector<std::vector<int>> lakes;
    for (int cell = 0; cell < height.count(); ++cell)
        if (open[std::size_t(cell)])
            lakes.push_back(lakeFrom(height, cell, open));
    std::stable_sort(lakes.begin(), lakes.end(),
                     [](const auto& a, const auto& b) { return a.size() > b.size(); });
    Field cover(height.width(), height.height());
    for (std::size_t k = 0; k < lakes.size(); ++k)
        for (const int cell : lakes[k])
            if (k < kept && lakes[k].size() > 90)
                cover[cell] = 1;
            else
                height[cell] = drainage.filled[cell];
    return cover;
}

namespace {

constexpr double kMeanderReach = 5;

double riverThreshold(Theme theme) {
    return theme == Theme::Desert ? 2600 : theme == Theme::Ash ? 1500 : 1100;
}

/// Springs, highest first: cells that carry a river while none of the cells above them does.
std::vector<int> springs(const Landscape& land, double threshold) {
    const Drainage& drainage = land.drainage;
    std::vector<char> fed(drainage.flow.size(), 0);
    for (std::size_t cell = 0; cell < drainage.flow.size(); ++cell)
        if (drainage.flow[cell] >= threshold && drainage.downhill[cell] >= 0)
            fed[std::size_t(drainage.downhill[cell])] = 1;
    std::vector<int> result;
    for (int cell = 0; cell < land.cells.count(); ++cell)
        if (drainage.flow[std::size_t(cell)] >= threshold && !fed[std::size_t(cell)] && land.cells[cell] > 0)
            result.push_back(cell);
    std::stable_sort(result.begin(), result.end(),
                     [&](int a, int b) { return land.cells[a] > land.cells[b]; });
    return result;
}

void smooth(std::vector<QPointF>& points, int passes) {
    for (int pass = 0; pass < passes; ++pass) {
        const std::vector<QPointF> old = points;
        for (std::size_t k = 1; k + 1 < points.size(); ++k)
            points[k] = (old[k - 1] + old[k] * 2 + old[k + 1]) / 4;
    }
}

QPointF meander(const Landscape& land, QPointF p) {
    const Noises& n = land.noises;
    return {kMeanderReach * n.b.at(p.x() / 31, p.y() / 31) + 2 * n.b.at(p.x() / 13, p.y() / 13),
            kMeanderReach * n.c.at(p.x() / 31, p.y() / 31) + 2 * n.c.at(p.x() / 13, p.y() / 13)};
}

River riverFrom(const Landscape& land, int spring, std::vector<char>& used, double threshold) {
    River river;
    const int columns = land.cells.width();
    for (int cell = spring; cell >= 0; cell = land.drainage.downhill[std::size_t(cell)]) {
        river.points.emplace_back((cell % columns + 0.5) * kCell, (cell / columns + 0.5) * kCell);
        const double flow = land.drainage.flow[std::size_t(cell)] / threshold;
        river.widths.push_back(std::clamp(0.7 + 0.9 * log2Of(flow), 0.9, 6.5));
        if (used[std::size_t(cell)] || land.cells[cell] <= -0.004F)
            break;
        used[std::size_t(cell)] = 1;
    }
    for (std::size_t k = 0; k < std::min<std::size_t>(12, river.widths.size()); ++k)
        river.widths[k] *= 0.4 + 0.05 * double(k);
    return river;
}

} // namespace

std::vector<River> tracedRivers(const Landscape& land) {
    const double threshold = riverThreshold(land.theme);
    std::vector<char> used(std::size_t(land.cells.count()), 0);
    std::vector<River> rivers;
    for (const int spring : springs(land, threshold)) {
        River river = riverFrom(land, spring, used, threshold);
        if (river.points.size() < 22)
            continue;
        smooth(river.points, 6);
        for (QPointF& p : river.points)
            p += meander(land, p);
        rivers.push_back(std::move(river));
    }
    return rivers;
}

} // namespace worldgen
