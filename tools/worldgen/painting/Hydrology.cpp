#include "Landscape.h"
#include "Maths.h"

#include <QPointF>
#include <QRectF>

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
constexpr double wetCover = 0.45; // of a lake, where its water begins

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
    return river;
}

// Points: a shorter one would be a hook at the side of another.
constexpr std::size_t shortest = 60;

double straightness(const std::vector<QPointF>& points, std::size_t from, std::size_t count) {
    double along = 0;
    for (std::size_t k = from + 1; k < from + count; ++k)
        along += lengthOf(points[k].x() - points[k - 1].x(), points[k].y() - points[k - 1].y());
    const QPointF chord = points[from + count - 1] - points[from];
    return along > 0 ? lengthOf(chord.x(), chord.y()) / along : 0;
}

void cutOff(River& river, std::size_t head) {
    river.points.erase(river.points.begin(), river.points.begin() + std::ptrdiff_t(head));
    river.widths.erase(river.widths.begin(), river.widths.begin() + std::ptrdiff_t(head));
}

// A spring that curls up looks like a hook: the river begins where it has found its way.
// Returns how many points it lost.
std::size_t unhook(River& river) {
    std::size_t head = 0;
    while (head + shortest < river.points.size() &&
           (straightness(river.points, head, 26) < 0.88 || straightness(river.points, head, shortest) < 0.76))
        head += 4;
    cutOff(river, head);
    return head;
}

// From a thread to its full width.
void thinSpring(River& river) {
    constexpr std::size_t reach = 44;
    for (std::size_t k = 0; k < std::min(reach, river.widths.size()); ++k)
        river.widths[k] *= 0.25 + 0.75 * double(k) / reach;
}

// Cuts rivers into the stretches outside the lakes, each ending in the water. A loop that only follows a
// lake's shore, or begins just beside it, is left out.
class LakeCutter {
  public:
    explicit LakeCutter(const Field& lakes);
    std::vector<River> dryStretches(const River& river) const;
    // Leads a river that ends just before a lake into it.
    void lead(River& river) const;

  private:
    bool wet(QPointF p) const { return lakes_.sampled(p.x() / cellSide, p.y() / cellSide) > wetCover; }
    int lakeAt(QPointF p) const;
    bool isLoop(const River& stretch) const;

    const Field& lakes_;
    Field toLake_;
    std::vector<int> numbers_; // of the lake that covers a cell
};

LakeCutter::LakeCutter(const Field& lakes)
    : lakes_(lakes), toLake_(lakes), numbers_(std::size_t(lakes.count()), -1) {
    std::vector<char> open(std::size_t(lakes.count()), 0);
    for (int cell = 0; cell < lakes.count(); ++cell) {
        open[std::size_t(cell)] = lakes[cell] > 0;
        toLake_[cell] = lakes[cell] > wetCover ? 0 : 1;
    }
    toLake_ = distances(std::move(toLake_));
    for (int cell = 0; cell < lakes.count(); ++cell)
        if (open[std::size_t(cell)])
            for (const int part : lakeFrom(lakes, cell, open))
                numbers_[std::size_t(part)] = cell;
}

int LakeCutter::lakeAt(QPointF p) const {
    const int x = std::clamp(int(p.x()) / cellSide, 0, lakes_.width() - 1);
    const int y = std::clamp(int(p.y()) / cellSide, 0, lakes_.height() - 1);
    return numbers_[std::size_t(y * lakes_.width() + x)];
}

bool LakeCutter::isLoop(const River& stretch) const {
    constexpr float reach = 26; // cells
    float farthest = 0;
    for (const QPointF& p : stretch.points)
        farthest = std::max(farthest, toLake_.clamped(int(p.x()) / cellSide, int(p.y()) / cellSide));
    const int from = wet(stretch.points.front()) ? lakeAt(stretch.points.front()) : -1;
    return farthest < reach && (from < 0 || from == lakeAt(stretch.points.back()));
}

void LakeCutter::lead(River& river) const {
    constexpr float reach = 20; // cells
    int cell =
        int(river.points.back().y()) / cellSide * lakes_.width() + int(river.points.back().x()) / cellSide;
    if (cell < 0 || cell >= lakes_.count() || toLake_[cell] > reach)
        return;
    while (toLake_[cell] > 0) {
        int nearest = cell;
        forNeighbours(toLake_, cell,
                      [&](int next) { nearest = toLake_[next] < toLake_[nearest] ? next : nearest; });
        if (nearest == cell)
            return;
        cell = nearest;
        river.points.emplace_back((cell % lakes_.width() + 0.5) * cellSide,
                                  (cell / lakes_.width() + 0.5) * cellSide);
        river.widths.push_back(river.widths.back());
    }
}

std::vector<River> LakeCutter::dryStretches(const River& river) const {
    std::vector<River> stretches;
    River stretch;
    for (std::size_t k = 0; k < river.points.size(); ++k) {
        stretch.points.push_back(river.points[k]);
        stretch.widths.push_back(river.widths[k]);
        const bool last = k + 1 == river.points.size();
        if (!last && !wet(river.points[k]))
            continue;
        const bool dry = stretch.points.size() > 2 || (last && !wet(river.points[k]));
        if (dry && !(wet(river.points[k]) && isLoop(stretch)))
            stretches.push_back(stretch);
        stretch = {{river.points[k]}, {river.widths[k]}};
    }
    return stretches;
}

bool joins(const std::vector<River>& rivers, std::size_t own) {
    constexpr double reach = 12; // pixels
    const QPointF mouth = rivers[own].points.back();
    for (std::size_t k = 0; k < rivers.size(); ++k)
        for (const QPointF& p : rivers[k].points)
            if (k != own && lengthOf(p.x() - mouth.x(), p.y() - mouth.y()) < reach)
                return true;
    return false;
}

bool leavesTheLand(const Landscape& land, QPointF mouth) {
    constexpr int border = 10; // pixels
    const QRectF inner = QRectF(QPointF(), land.size).adjusted(border, border, -border, -border);
    return !inner.contains(mouth) ||
           land.cells.clamped(int(mouth.x()) / cellSide, int(mouth.y()) / cellSide) <= 0;
}

} // namespace

std::vector<River> tracedRivers(const Landscape& land) {
    const double threshold = riverThreshold(land);
    const LakeCutter cutter(land.lakes);
    RiverBeds beds(land.cells);
    std::vector<River> rivers;
    for (const int spring : springs(land, threshold)) {
        std::vector<int> course = courseFrom(land, spring, beds);
        if (course.size() < shortest)
            continue;
        River river = riverAlong(land, course, threshold);
        if (const int mouth = beds.at(course.back()); mouth >= 0) {
            river.points.push_back(pixelOf(land, mouth));
            river.widths.push_back(river.widths.back());
        }
        smooth(river.points, 9);
        course.erase(course.begin(), course.begin() + std::ptrdiff_t(unhook(river)));
        if (course.size() < shortest)
            continue;
        beds.add(course);
        for (QPointF& p : river.points)
            p += meander(land, p);
        thinSpring(river);
        for (River& stretch : cutter.dryStretches(river))
            rivers.push_back(std::move(stretch));
    }
    // What flowed into a loop that was left out has lost its mouth.
    for (std::size_t k = 0; k < rivers.size(); ++k)
        if (!leavesTheLand(land, rivers[k].points.back()) && !joins(rivers, k))
            cutter.lead(rivers[k]);
    return rivers;
}

} // namespace worldgen
