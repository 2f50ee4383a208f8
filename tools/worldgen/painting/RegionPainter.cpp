#include "RegionPainter.h"

#include "Frame.h"
#include "Ground.h"
#include "Maths.h"
#include "Roads.h"
#include "Scene.h"
#include "Settlements.h"
#include "Sites.h"

namespace worldgen {

namespace {

constexpr double meanLuminance = 0.13;

// No two alike, and none round.
QPolygonF clearing(const Landscape& land, QPoint middle, QSizeF room) {
    constexpr int corners = 48;
    QPolygonF outline;
    for (int k = 0; k < corners; ++k) {
        const double angle = k * 2 * pi / corners;
        const QPointF way(cosineOf(angle), sineOf(angle));
        const double out = 1 + 0.34 * land.noises.c.fbm(middle.x() / 90.0 + way.x() * 1.3,
                                                        middle.y() / 90.0 + way.y() * 1.3, 3);
        outline << QPointF(middle) + QPointF(way.x() * room.width(), way.y() * room.height()) * out;
    }
    return outline;
}

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
        painter.drawPolygon(clearing(land, sites[k], cleared ? QSizeF(66, 40) : settlementRoom(wish.role)));
    }
    return taken;
}

// The region's name, and the names of its places with their markers.
std::vector<QRect> writtenGround(const RegionRecipe& recipe, const SurveyedRegion& survey) {
    std::vector<QRect> written{survey.title};
    for (std::size_t k = 0; k < survey.sites.size(); ++k) {
        const QPoint site = survey.sites[k];
        const QRect marker(site - QPoint(34, 34), QSize(68, 68));
        const QRect name = nameBox(site, recipe.sites[k], recipe.campaign);
        written.push_back(recipe.sites[k].marked ? name | marker : name);
    }
    return written;
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

    const QImage taken = takenGround(land, net, recipe, survey.sites);

    QImage picture = paintedGround(land);
    paintCracks(picture, land, taken);
    paintCoast(picture, land);
    paintCliffs(picture, land);
    paintRivers(picture, land);
    Scene scene;
    Rng rng(recipe.seed * 5ULL);
    for (std::size_t k = 0; k < survey.sites.size(); ++k)
        ploughFields(picture, land, survey.sites[k], recipe.sites[k].role, rng);
    paintRoads(picture, net, recipe.theme);
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
    std::vector<QRect> written = writtenGround(recipe, survey);
    written.push_back(paintCompass(picture, land, written));
    paintSeafarers(picture, land, recipe.campaign, written);
    return picture;
}

} // namespace worldgen
