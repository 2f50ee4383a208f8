#pragma once

#include "Landscape.h"

#include <QImage>
#include <QPoint>
#include <QPolygonF>

namespace worldgen {

struct Bridge {
    QPointF from, to; // both banks
};

struct RoadNet {
    std::vector<QPolygonF> roads;
    std::vector<Bridge> bridges;
};

// Roads that join all sites reachable over land, each along the easiest ground.
RoadNet builtRoads(const Landscape& land, const std::vector<QPoint>& sites);

void paintRoads(QImage& picture, const RoadNet& net, Theme theme);

} // namespace worldgen
