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

constexpr float lakeDepth = 0.006F;

// Collects the lake around `start` and takes its cells out of `open`.
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

Drainage drained(const Field& height, const Noise& wobble) {
    const std::size_t count = std::size_t(height.count());
    Drainage result{height, std::vector<int>(count, -1), std::vector<float>(count, 1), {}};
    std::vector<char> seen(count, 0);
    Front front;
    const auto detour = [&](int cell) {
        return 0.012F * float(wobble.fbm(cell % height.width() / 13.0, cell / height.width() / 13.0, 3));
    };
    for (int cell = 0; cell < height.count(); ++cell)
        if (drainsAway(height, cell)) {
            seen[std::size_t(cell)] = 1;
            front.emplace(height[cell], cell);
        }
    result.order.reserve(count);
    while (!front.empty()) {
        const int cell = front.top().second;
        front.pop();
        result.order.push_back(cell);
        forNeighbours(height, cell, [&](int next) {
            if (seen[std::size_t(next)])
                return;
            seen[std::size_t(next)] = 1;
            result.downhill[std::size_t(next)] = cell;
            result.filled[next] = std::max(height[next], result.filled[cell] + 1e-6F);
            front.emplace(result.filled[next] + detour(next), next);
        });
    }
    for (auto cell = result.order.rbegin(); cell != result.order.rend(); ++cell)
        if (const int next = result.downhill[std::size_t(*cell)]; next >= 0)
            result.flow[std::size_t(next)] += result.flow[std::size_t(*cell)];
    return result;
}

Field settledLakes(Field& height, const Drainage& drainage, const RegionRecipe& recipe) {
    const bool fens = recipe.landform == Landform::Fens;
    const std::size_t kept = fens                            ? 22
                             : recipe.theme == Theme::Desert ? 2
                             : recipe.theme == Theme::Ash    ? 4
                                                             : 5;
    const std::size_t smallest = fens ? 40 : 90;
    std::vector<char> open(std::size_t(height.count()), 0);
    for (int cell = 0; cell < height.count(); ++cell)
        open[std::size_t(cell)] = height[cell] > 0 && drainage.filled[cell] - height[cell] > lakeDepth;
    std::vector<std::vector<int>> lakes;
    for (int cell = 0; cell < height.count(); ++cell)
        if (open[std::size_t(cell)])
            lakes.push_back(lakeFrom(height, cell, open));
    std::stable_sort(lakes.begin(), lakes.end(),
                     [](const auto& a, const auto& b) { return a.size() > b.size(); });
    Field cover(height.width(), height.height());
    for (std::size_t k = 0; k < lakes.size(); ++k)
        for (const int cell : lakes[k])
            if (k < kept && lakes[k].size() > smallest)
                cover[cell] = 1;
            else
                height[cell] = drainage.filled[cell];
    return cover;
}

namespace {

constexpr double meanderReach = 5;

// Cells that must drain through a place before it carries a river.
double riverThreshold(const Landscape& land) {
    if (land.landform == Landform::Fens)
        return 800;
    return land.theme == Theme::Desert ? 2600 : land.theme == Theme::Ash ? 1500 : 1100;
}

// Springs, highest first: cells that carry a river while none of the cells above them does.
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
    return {meanderReach * n.b.at(p.x() / 31, p.y() / 31) + 2 * n.b.at(p.x() / 13, p.y() / 13),
            meanderReach * n.c.at(p.x() / 31, p.y() / 31) + 2 * n.c.at(p.x() / 13, p.y() / 13)};
}

// Which cells carry a river already, or lie so close to one that another would run beside it.
class RiverBeds {
  public:
    explicit RiverBeds(const Field& grid)
        : columns_(grid.width()), rows_(grid.height()), nearest_(std::size_t(grid.count()), -1) {}

    // The river cell that a river arriving at `cell` flows into; -1: none near.
    int at(int cell) const { return nearest_[std::size_t(cell)]; }

    void add(const std::vector<int>& cells) {
        constexpr int reach = 4;
        for (const int cell : cells)
            for (int y = std::max(0, cell / columns_ - reach);
                 y <= std::min(rows_ - 1, cell / columns_ + reach); ++y)
                for (int x = std::max(0, cell % columns_ - reach);
                     x <= std::min(columns_ - 1, cell % columns_ + reach); ++x)
                    if (int& owner = nearest_[std::size_t(y * columns_ + x)]; owner < 0)
                        owner = cell;
    }

  private:
    int columns_;
    int rows_;
    std::vector<int> nearest_;
};

QPointF pixelOf(const Landscape& land, int cell) {
    const int columns = land.cells.width();
    return {(cell % columns + 0.5) * cellSide, (cell / columns + 0.5) * cellSide};
}

// Down from a spring to the sea, the border or another river.
std::vector<int> courseFrom(const Landscape& land, int spring, const RiverBeds& beds) {
    std::vector<int> course;
    for (int cell = spring; cell >= 0; cell = land.drainage.downhill[std::size_t(cell)]) {
        course.push_back(cell);
        if (beds.at(cell) >= 0 || land.cells[cell] <= -0.004F)
            break;
    }
    return course;
}

River riverAlong(const Landscape& land, const std::vector<int>& course, double threshold) {
    River river;
    for (const int cell : course) {
        river.points.push_back(pixelOf(land, cell));
        const double flow = std::max(1.0, land.drainage.flow[std::size_t(cell)] / threshold);
        river.widths.push_back(std::clamp(0.7 + 0.9 * log2Of(flow), 0.9, 6.5));
    }
    for (std::size_t k = 0; k < std::min<std::size_t>(12, river.widths.size()); ++k)
        river.widths[k] *= 0.4 + 0.05 * double(k);
    return river;
}

// Cells: a shorter one would be a hook at the side of another.
constexpr std::size_t shortest = 60;

} // namespace

std::vector<River> tracedRivers(const Landscape& land) {
    const double threshold = riverThreshold(land);
    RiverBeds beds(land.cells);
    std::vector<River> rivers;
    for (const int spring : springs(land, threshold)) {
        const std::vector<int> course = courseFrom(land, spring, beds);
        if (course.size() < shortest)
            continue;
        River river = riverAlong(land, course, threshold);
        if (const int mouth = beds.at(course.back()); mouth >= 0) {
            river.points.push_back(pixelOf(land, mouth));
            river.widths.push_back(river.widths.back());
        }
        beds.add(course);
        smooth(river.points, 6);
        for (QPointF& p : river.points)
            p += meander(land, p);
        rivers.push_back(std::move(river));
    }
    return rivers;
}

} // namespace worldgen
