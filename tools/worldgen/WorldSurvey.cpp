#include "WorldSurvey.h"

#include "InParallel.h"
#include "Placement.h"

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int grid = 8; // every eighth pixel along and down is looked at

std::vector<QPoint> placesIn(const WorldSource& source, const SourceRegion& region,
                             const WorldPlaces& places) {
    std::vector<QPoint> all;
    const auto isHere = [&](int zone) {
        return zone >= 0 && source.zones[std::size_t(zone)].campaign == region.campaign &&
               source.zones[std::size_t(zone)].region == region.number;
    };
    const auto add = [&](const auto& records, const std::vector<QPoint>& at) {
        for (std::size_t i = 0; i < records.size(); ++i) {
            if (isHere(records[i].zone))
                all.push_back(at[i]);
        }
    };
    for (std::size_t i = 0; i < source.zones.size(); ++i) {
        if (isHere(int(i)))
            all.push_back(places.zones[i]);
    }
    add(source.bosses, places.bosses);
    add(source.collectors, places.collectors);
    add(source.chests, places.chests);
    add(source.petPlaces, places.petPlaces);
    return all;
}

double emptyShare(const SurveyedRegion& survey, QSize size, const std::vector<QPoint>& places) {
    int land = 0;
    int empty = 0;
    for (int y = frameWidth; y < size.height() - frameWidth; y += grid) {
        for (int x = frameWidth; x < size.width() - frameWidth; x += grid) {
            const QPoint here(x, y);
            if (survey.distanceToWater(here) <= 0)
                continue;
            ++land;
            const bool near = std::any_of(places.begin(), places.end(), [&](QPoint place) {
                const QPoint gap = place - here;
                return QPoint::dotProduct(gap, gap) <= emptyReach * emptyReach;
            });
            empty += near ? 0 : 1;
        }
    }
    return land == 0 ? 0 : double(empty) / land;
}

RegionFinding look(const WorldSource& source, const SourceRegion& region) {
    RegionFinding finding{u"%1/%2 %3"_s.arg(region.campaign).arg(region.fileNumber, region.name), 0, {}};
    const RegionRecipe recipe = recipeFor(source, region);
    const SurveyedRegion survey = surveyRegion(recipe);
    WorldPlaces places(source);
    placeRegion(source, region, groundOf(survey), places);
    const QRect inner =
        QRect(QPoint(), region.size).adjusted(frameWidth, frameWidth, -frameWidth, -frameWidth);
    for (std::size_t i = 0; i < recipe.sites.size(); ++i) {
        const SiteWish& wish = recipe.sites[i];
        if (!survey.offers(survey.sites[i], wish.near))
            finding.problems.append(wish.name + u": the ground is not what the name says"_s);
        if (!inner.contains(nameBox(survey.sites[i], wish, region.campaign)))
            finding.problems.append(wish.name + u": the name lies on the frame"_s);
    }
    finding.emptyShare = emptyShare(survey, region.size, placesIn(source, region, places));
    return finding;
}

} // namespace

std::vector<RegionFinding> surveyWorld(const WorldSource& source) {
    std::vector<RegionFinding> findings(source.regions.size());
    inParallel(findings.size(), [&](std::size_t i) { findings[i] = look(source, source.regions[i]); });
    return findings;
}

} // namespace worldgen
