#include "RegionPainter.h"

#include "Frame.h"
#include "Ground.h"
#include "Roads.h"
#include "Scene.h"
#include "Settlements.h"
#include "Sites.h"

namespace worldgen {

namespace {

constexpr double meanLuminance = 0.13;

// White where roads and settlements keep nature away.
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
        const SiteWish& wish = recipe.sites[k];
        const bool cleared =
            wish.near == SiteNear::Open || wish.near == SiteNear::Pass || wish.landmark != Landmark::None;
        const QSizeF room = cleared ? QSizeF(70, 44) : settlementRoom(wish.role);
        painter.drawEllipse(QPointF(sites[k]), room.width(), room.height());
    }
    return taken;
}

} // namespace

bool SurveyedRegion::land(QPoint point) const {
    const QRect inner =
        QRect(QPoint(), landscape->size).adjusted(frameWidth, frameWidth, -frameWidth, -frameWidth);
    return inner.contains(point) && landscape->toWater.clamped(point.x(), point.y()) > 2 &&
           !landscape->highGround(point.x(), point.y());
}

bool SurveyedRegion::forest(QPoint point) const {
    return land(point) && landscape->woodsAt(point.x(), point.y()) > 0.16;
}

double SurveyedRegion::height(QPoint point) const {
    return landscape->height.clamped(point.x(), point.y());
}

double SurveyedRegion::distanceToWater(QPoint point) const {
    return landscape->toWater.clamped(point.x(), point.y());
}

double SurveyedRegion::distanceToRiver(QPoint point) const {
    return landscape->riverDistance(point.x(), point.y());
}

bool SurveyedRegion::offers(QPoint site, SiteNear near) const {
    return groundOffers(*landscape, site, near);
}

// The woods are as the names say: the land follows where the finder of sites had no better ground.
SurveyedRegion surveyRegion(const RegionRecipe& recipe) {
    const auto land = std::make_shared<Landscape>(recipe);
    SurveyedRegion result;
    result.sites = placedSites(*land, recipe.sites, recipe.seed);
    for (std::size_t k = 0; k < result.sites.size(); ++k) {
        const SiteNear near = recipe.sites[k].near;
        if (near == SiteNear::Forest || near == SiteNear::Bamboo)
            land->plant(result.sites[k], 170, 0.42);
        else if (near == SiteNear::Open)
            land->plant(result.sites[k], 170, -0.6);
    }
    result.title = titleBox(*land, result.sites, recipe.title);
    result.landscape = land;
    return result;
}

QImage paintRegion(const RegionRecipe& recipe, const SurveyedRegion& survey) {
    const Landscape& land = *survey.landscape;
    std::vector<QPoint> reachable;
    for (const QPoint& site : survey.sites)
        if (!land.water(site.x(), site.y()))
            reachable.push_back(site);
    const RoadNet net = builtRoads(land, reachable);

    QImage picture = paintedGround(land);
    paintCracks(picture, land);
    paintCoast(picture, land);
    paintCliffs(picture, land);
    paintRivers(picture, land);
    Scene scene;
    Rng rng(recipe.seed * 5ULL);
    for (std::size_t k = 0; k < survey.sites.size(); ++k)
        ploughFields(picture, land, survey.sites[k], recipe.sites[k].role, rng);
    paintRoads(picture, net, recipe.theme);
    const QImage taken = takenGround(land, net, recipe, survey.sites);
    growNature(scene, land, {picture, taken}, recipe.seed);
    for (std::size_t k = 0; k < survey.sites.size(); ++k)
        settle(scene, land, {survey.sites[k], recipe.campaign, recipe.sites[k]}, rng);
    scene.paint(picture);

    agePicture(picture, land);
    limitLuminance(picture, meanLuminance);
    for (std::size_t k = 0; k < survey.sites.size(); ++k)
        shadeName(picture, nameBox(survey.sites[k], recipe.sites[k], recipe.campaign), recipe.sites[k].name);
    paintFrame(picture);
    paintTitle(picture, survey.title, recipe.title);
    const QRect rose = paintCompass(picture, land, survey.title);
    paintSeafarers(picture, land, recipe.campaign, {survey.title, rose});
    return picture;
}

} // namespace worldgen
