#include "../RegionPainter.h"

#include "Frame.h"
#include "Ground.h"
#include "Roads.h"
#include "Scene.h"
#include "Settlements.h"
#include "Sites.h"

namespace worldgen {

namespace {

constexpr double kMeanLuminance = 0.13;
constexpr int kFrame = 20;

/// White where roads and settlements keep nature away.
QImage takenGround(const Landscape& land, const RoadNet& net, const RegionRecipe& recipe,
                   const std::vector<QPoint>& sites) {
    QImage taken(land.size, QImage::Format_Grayscale8);
    taken.fill(0);
    QPainter painter(&taken);
    painter.setPen(QPen(Qt::white, 13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const QPolygonF& road : net.roads)
        painter.drawPolyline(road);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    for (std::size_t k = 0; k < sites.size(); ++k) {
        const QSizeF room = settlementRoom(recipe.sites[k].role);
        painter.drawEllipse(QPointF(sites[k]), room.width(), room.height());
    }
    return taken;
}

} // namespace

bool PaintedRegion::land(QPoint point) const {
    const QRect inner = picture.rect().adjusted(kFrame, kFrame, -kFrame, -kFrame);
    return inner.contains(point) && landscape->toWater.clamped(point.x(), point.y()) > 2 &&
           !landscape->highGround(point.x(), point.y());
}

bool PaintedRegion::forest(QPoint point) const {
    return land(point) && landscape->woodsAt(point.x(), point.y()) > 0.16;
}

double PaintedRegion::height(QPoint point) const {
    return landscape->height.clamped(point.x(), point.y());
}

double PaintedRegion::distanceToWater(QPoint point) const {
    return landscape->toWater.clamped(point.x(), point.y());
}

double PaintedRegion::distanceToRiver(QPoint point) const {
    return landscape->riverDistance(point.x(), point.y());
}

PaintedRegion paintRegion(const RegionRecipe& recipe) {
    PaintedRegion result;
    const auto shared = std::make_shared<const Landscape>(recipe);
    const Landscape& land = *shared;
    result.landscape = shared;
    result.sites = placedSites(land, recipe.sites, recipe.seed);
    const RoadNet net = builtRoads(land, result.sites);

    QImage picture = paintedGround(land);
    paintCracks(picture, land);
    paintCoast(picture, land);
    paintCliffs(picture, land);
    paintRivers(picture, land);
    Scene scene;
    Rng rng(recipe.seed * 5ULL);
    for (std::size_t k = 0; k < result.sites.size(); ++k)
        ploughFields(picture, land, result.sites[k], recipe.sites[k].role, rng);
    paintRoads(picture, net, recipe.theme);
    const QImage taken = takenGround(land, net, recipe, result.sites);
    growNature(scene, land, {picture, taken}, recipe.seed);
    for (std::size_t k = 0; k < result.sites.size(); ++k)
        settle(scene, land, {result.sites[k], recipe.sites[k].role, recipe.campaign}, rng);
    scene.paint(picture);

    agePicture(picture, land);
    limitLuminance(picture, kMeanLuminance);
    for (std::size_t k = 0; k < result.sites.size(); ++k)
        quietenGround(picture, nameBox(result.sites[k], recipe.sites[k], recipe.campaign));
    paintFrame(picture);
    const QRect title = paintTitle(picture, land, result.sites, recipe.title);
    const QRect rose = paintCompass(picture, land, title);
    paintSeafarers(picture, land, {title, rose});
    result.picture = std::move(picture);
    return result;
}

} // namespace worldgen
