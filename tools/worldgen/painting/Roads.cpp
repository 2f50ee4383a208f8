#include "Roads.h"

#include "Maths.h"

#include <QPainter>

#include <functional>
#include <queue>

namespace worldgen {

namespace {

constexpr int pace = 4;       // pixels per step of the path search
constexpr int edgeSteps = 14; // steps kept from the border

using Front = std::priority_queue<std::pair<float, int>, std::vector<std::pair<float, int>>, std::greater<>>;

class PathFinder {
  public:
    explicit PathFinder(const Landscape& land);

    // Empty when there is no way over land. Ways found earlier are cheaper to follow than new ground.
    QPolygonF way(QPoint from, QPoint to);

  private:
    int cellOf(QPoint p) const {
        return std::min(p.y() / pace, rows_ - 1) * columns_ + std::min(p.x() / pace, columns_ - 1);
    }
    void relax(int cell, float reached, Front& front);
    QPolygonF traced(int end);

    int columns_;
    int rows_;
    std::vector<float> toll_; // of entering a cell
    std::vector<float> height_;
    std::vector<float> cost_;
    std::vector<int> from_;
    std::vector<char> trodden_; // cells with a road
};

PathFinder::PathFinder(const Landscape& land)
    : columns_(land.size.width() / pace), rows_(land.size.height() / pace) {
    for (int row = 0; row < rows_; ++row)
        for (int column = 0; column < columns_; ++column) {
            const int x = column * pace;
            const int y = row * pace;
            const double height = land.height.clamped(x, y);
            double toll = 1 + std::max(0.0, height - 0.25) * 22 +
                          1.1 * (1 + land.noises.d.fbm(column / 10.0, row / 10.0, 2));
            toll += 2.5 * smoothStep(0.1, 0.25, land.woodsAt(x, y));
            if (land.toWater.clamped(x, y) < 12)
                toll += land.water(x, y) ? 240 : 4;
            if (land.riverDistance(x, y) < 8)
                toll += 6;
            height_.push_back(float(height));
            toll_.push_back(float(toll));
        }
}

void PathFinder::relax(int cell, float reached, Front& front) {
    const int x = cell % columns_;
    const int y = cell / columns_;
    for (int j = -1; j <= 1; ++j)
        for (int i = -1; i <= 1; ++i) {
            if ((i == 0 && j == 0) || x + i < edgeSteps || y + j < edgeSteps ||
                x + i >= columns_ - edgeSteps || y + j >= rows_ - edgeSteps)
                continue;
            const std::size_t next = std::size_t((y + j) * columns_ + x + i);
            const float climb = std::fabs(height_[next] - height_[std::size_t(cell)]) * 260;
            const float reach = reached + (i != 0 && j != 0 ? 1.41421356F : 1.0F) * (toll_[next] + climb);
            if (reach < cost_[next]) {
                cost_[next] = reach;
                from_[next] = cell;
                front.emplace(reach, int(next));
            }
        }
}

QPolygonF PathFinder::traced(int end) {
    QPolygonF way;
    for (int cell = end; cell >= 0; cell = from_[std::size_t(cell)]) {
        way.append(QPointF((cell % columns_ + 0.5) * pace, (cell / columns_ + 0.5) * pace));
        if (trodden_[std::size_t(cell)] && way.size() > 1)
            break; // from here on an older road leads to the goal
        trodden_[std::size_t(cell)] = 1;
        toll_[std::size_t(cell)] = std::min(toll_[std::size_t(cell)], 0.5F);
    }
    for (int pass = 0; pass < 4; ++pass) {
        const QPolygonF old = way;
        for (int k = 1; k + 1 < way.size(); ++k)
            way[k] = (old[k - 1] + old[k] * 2 + old[k + 1]) / 4;
    }
    return way;
}

QPolygonF PathFinder::way(QPoint from, QPoint to) {
    trodden_.resize(toll_.size(), 0);
    cost_.assign(toll_.size(), 1e9F);
    from_.assign(toll_.size(), -1);
    const int start = cellOf(from);
    const int end = cellOf(to);
    // A way many times longer than the crow flies is not a road but a walk around the map.
    const float tooFar = float(120 + 9 * lengthOf(to.x() - from.x(), to.y() - from.y()) / pace);
    Front front;
    cost_[std::size_t(start)] = 0;
    front.emplace(0.0F, start);
    while (!front.empty()) {
        const auto [reached, cell] = front.top();
        front.pop();
        if (cell == end || reached > tooFar)
            break;
        if (reached <= cost_[std::size_t(cell)])
            relax(cell, reached, front);
    }
    return cost_[std::size_t(end)] > tooFar ? QPolygonF() : traced(end);
}

// Pairs of sites that form the shortest net joining all.
std::vector<std::pair<QPoint, QPoint>> shortestNet(const std::vector<QPoint>& sites) {
    std::vector<std::pair<QPoint, QPoint>> net;
    std::vector<QPoint> open(sites.begin(), sites.end());
    std::vector<QPoint> joined;
    while (!open.empty()) {
        std::size_t bestOpen = 0;
        std::size_t bestJoined = 0;
        int best = -1;
        for (std::size_t i = 0; i < open.size(); ++i)
            for (std::size_t j = 0; j < joined.size(); ++j) {
                const QPoint d = open[i] - joined[j];
                const int square = QPoint::dotProduct(d, d);
                if (best < 0 || square < best) {
                    best = square;
                    bestOpen = i;
                    bestJoined = j;
                }
            }
        if (best >= 0)
            net.emplace_back(joined[bestJoined], open[bestOpen]);
        joined.push_back(open[bestOpen]);
        open.erase(open.begin() + std::ptrdiff_t(bestOpen));
    }
    return net;
}

QImage riverMask(const Landscape& land) {
    QImage mask(land.size, QImage::Format_Grayscale8);
    mask.fill(0);
    QPainter painter(&mask);
    for (const River& river : land.rivers)
        for (std::size_t k = 1; k < river.points.size(); ++k)
            if (river.widths[k] > 1.6) {
                painter.setPen(QPen(Qt::white, river.widths[k] + 1));
                painter.drawLine(river.points[k - 1], river.points[k]);
            }
    return mask;
}

bool wet(const QImage& mask, QPointF p) {
    return mask.rect().contains(p.toPoint()) && qGray(mask.pixel(p.toPoint())) > 0;
}

// Where a road enters and leaves a river; a road that follows the river's bed for long gets none.
void addBridges(const QPolygonF& road, const QImage& mask, std::vector<Bridge>& bridges) {
    constexpr double longest = 26;
    int entered = -1;
    for (int k = 1; k + 1 < road.size(); ++k) {
        const bool water = wet(mask, road[k]) || wet(mask, (road[k] + road[k - 1]) / 2);
        if (water && entered < 0)
            entered = k;
        if (water || entered < 0)
            continue;
        const QPointF from = road[std::max(0, entered - 1)];
        const QPointF to = road[k];
        entered = -1;
        bool isNew = lengthOf(to.x() - from.x(), to.y() - from.y()) < longest;
        for (const Bridge& other : bridges)
            isNew &= lengthOf(other.from.x() - from.x(), other.from.y() - from.y()) > 24;
        if (isNew)
            bridges.push_back({from, to});
    }
}

void paintBridge(QPainter& painter, const Bridge& bridge, Theme theme) {
    const QPointF along = bridge.to - bridge.from;
    const double length = std::max(1.0, lengthOf(along.x(), along.y()));
    const QPointF unit = along / length;
    const QPointF side(-unit.y(), unit.x());
    const QPointF a = bridge.from - unit * 1.5;
    const QPointF b = bridge.to + unit * 1.5;
    const bool timber = theme == Theme::Ash || theme == Theme::Frost;
    painter.setPen(QPen(QColor(10, 8, 6, 150), 9.5, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(a + QPointF(1.5, 2), b + QPointF(1.5, 2));
    painter.setPen(QPen(timber ? QColor(104, 82, 56) : QColor(132, 124, 110), 7, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(a, b);
    painter.setPen(QPen(QColor(40, 32, 24, 150), 0.8));
    for (double at = 2; at < length + 2; at += 2.6)
        painter.drawLine(a + unit * at + side * 3, a + unit * at - side * 3);
    painter.setPen(QPen(timber ? QColor(60, 44, 28) : QColor(84, 78, 70), 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(a + side * 3.6, b + side * 3.6);
    painter.setPen(
        QPen(timber ? QColor(140, 112, 78) : QColor(176, 168, 150), 1.2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(a - side * 3.6, b - side * 3.6);
}

} // namespace

RoadNet builtRoads(const Landscape& land, const std::vector<QPoint>& sites) {
    RoadNet net;
    PathFinder finder(land);
    const QImage mask = riverMask(land);
    for (const auto& [from, to] : shortestNet(sites)) {
        const QPolygonF road = finder.way(from, to);
        if (road.size() < 2)
            continue;
        addBridges(road, mask, net.bridges);
        net.roads.push_back(road);
    }
    return net;
}

void paintRoads(QImage& picture, const RoadNet& net, Theme theme) {
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(24, 16, 8, 115), 5.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const QPolygonF& road : net.roads)
        painter.drawPolyline(road);
    QPen dashes(QColor(190, 160, 112), 2.2, Qt::CustomDashLine, Qt::FlatCap, Qt::RoundJoin);
    dashes.setDashPattern({3.2, 1.6});
    painter.setPen(dashes);
    for (const QPolygonF& road : net.roads)
        painter.drawPolyline(road);
    for (const Bridge& bridge : net.bridges)
        paintBridge(painter, bridge, theme);
}

} // namespace worldgen
