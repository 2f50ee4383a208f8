#include "Placement.h"

#include "world/modZones.h"

#include <QImageReader>

#include <algorithm>
#include <cmath>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int borderGap = 36;     // the painted frame, and room for half a marker
constexpr int markerSpacing = 16; // one pixel more than the widest marker
constexpr int zoneSpacing = 60;
constexpr int markerHalf = 8;
constexpr int nameHeight = 16;
constexpr int chestReach = 200; // hidden things lie farther from the villages than people stand
constexpr int collectorReach = 110;
constexpr int bossReach = 200;
constexpr int petReach = 210;
constexpr int triesPerRing = 48;
constexpr int cellSize = 64;

SiteRole roleOf(ZoneKind kind) {
    switch (kind) {
    case ZoneKind::Outpost:
        return SiteRole::Outpost;
    case ZoneKind::Mission:
        return SiteRole::Mission;
    case ZoneKind::Town:
        return SiteRole::Town;
    case ZoneKind::Challenge:
        return SiteRole::Challenge;
    case ZoneKind::DungeonEntrance:
        return SiteRole::DungeonEntrance;
    case ZoneKind::Area:
        break;
    }
    return SiteRole::Area;
}

orvinel::Zone asShown(const SourceZone& zone) {
    return {zone.id, zone.name, int(zone.kind), zone.marker ? 1 : 0, 0, 0};
}

// Of the picture that the program draws there; of a name alone next to nothing.
QSize markerSize(const SourceZone& zone) {
    const std::optional<orvinel::Sprite> sprite = orvinel::zoneSprite(zone.campaign, asShown(zone));
    if (!sprite)
        return {2, 0};
    const QString name = QLatin1String(orvinel::spriteNames[std::size_t(*sprite)]);
    return QImageReader(QStringLiteral(WORLDGEN_MARKERS) + u'/' + name + u".png"_s).size();
}

bool liesIn(const SourceRegion& region, const SourceZone& zone) {
    return zone.campaign == region.campaign && zone.region == region.number;
}

// Places the markers of one region layer after layer.
class RegionFiller {
  public:
    RegionFiller(const WorldSource& source, const SourceRegion& region, const Ground& ground,
                 WorldPlaces& places)
        : source_(source), region_(region), places_(places),
          finder_(region.size, ground.land, quint64(region.seed) * 7919 + 17),
          centre_(region.size.width() / 2, region.size.height() / 2) {}

    void fillZones(const Ground& ground);
    template <typename Records>
    void fill(const Records& records, int reach, std::vector<QPoint>& places);

  private:
    QPoint place(QPoint near, int reach, int spacing);

    const WorldSource& source_;
    const SourceRegion& region_;
    WorldPlaces& places_;
    PlaceFinder finder_;
    QPoint centre_;
};

QPoint RegionFiller::place(QPoint near, int reach, int spacing) {
    for (int wanted = spacing; wanted > 0; wanted /= 2) {
        if (const auto found = finder_.placeNear(near, reach, wanted))
            return *found;
    }
    return near;
}

void RegionFiller::fillZones(const Ground& ground) {
    std::size_t site = 0;
    for (std::size_t i = 0; i < source_.zones.size(); ++i) {
        const SourceZone& zone = source_.zones[i];
        if (liesIn(region_, zone) && zone.painted) {
            places_.zones[i] = ground.sites.at(site++);
            finder_.block(zoneFootprint(zone, places_.zones[i]));
        }
    }
    for (std::size_t i = 0; i < source_.zones.size(); ++i) {
        const SourceZone& zone = source_.zones[i];
        if (liesIn(region_, zone) && !zone.painted) {
            places_.zones[i] =
                place(centre_, std::max(region_.size.width(), region_.size.height()), zoneSpacing);
        }
    }
}

template <typename Records>
void RegionFiller::fill(const Records& records, int reach, std::vector<QPoint>& places) {
    for (std::size_t i = 0; i < records.size(); ++i) {
        const int zone = records[i].zone;
        if (zone >= 0 && liesIn(region_, source_.zones[std::size_t(zone)]))
            places[i] = place(places_.zones[std::size_t(zone)], reach, markerSpacing);
    }
}

} // namespace

PlaceFinder::PlaceFinder(QSize picture, std::function<bool(QPoint)> land, quint64 seed)
    : inner_(QRect(QPoint(0, 0), picture).adjusted(borderGap, borderGap, -borderGap, -borderGap)),
      land_(std::move(land)), state_(seed), columns_(picture.width() / cellSize + 1),
      taken_(std::size_t(columns_) * std::size_t(picture.height() / cellSize + 1)), fullFrom_(cellSize + 1) {
}

quint32 PlaceFinder::random() {
    state_ += 0x9E3779B97F4A7C15ULL;
    quint64 mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9ULL;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBULL;
    return quint32(mixed >> 32);
}

std::vector<QPoint>& PlaceFinder::cellOf(QPoint place) {
    return taken_[std::size_t(place.y() / cellSize) * std::size_t(columns_) +
                  std::size_t(place.x() / cellSize)];
}

// Markers are squares: apart along one axis is apart. A spacing is never larger than a cell, so that the
// neighbouring cells hold all that can be too near.
bool PlaceFinder::isCrowded(QPoint place, int spacing) const {
    const auto tooNear = [&](QPoint other) {
        const QPoint gap = other - place;
        return std::abs(gap.x()) < spacing && std::abs(gap.y()) < spacing;
    };
    const int rows = int(taken_.size()) / columns_;
    const int column = place.x() / cellSize;
    const int row = place.y() / cellSize;
    for (int y = std::max(0, row - 1); y <= std::min(rows - 1, row + 1); ++y) {
        for (int x = std::max(0, column - 1); x <= std::min(columns_ - 1, column + 1); ++x) {
            const std::vector<QPoint>& cell = taken_[std::size_t(y) * std::size_t(columns_) + std::size_t(x)];
            if (std::any_of(cell.begin(), cell.end(), tooNear))
                return true;
        }
    }
    return false;
}

bool PlaceFinder::isFree(QPoint place, int spacing) const {
    const auto covers = [&](const QRect& area) { return area.contains(place); };
    return inner_.contains(place) && std::none_of(blocked_.begin(), blocked_.end(), covers) &&
           !isCrowded(place, spacing) && land_(place);
}

// Draws points from the square around the centre and keeps those inside the circle: whole numbers only, so
// that no machine rounds differently.
std::optional<QPoint> PlaceFinder::tryRing(QPoint centre, int reach, int spacing) {
    const quint32 side = quint32(2 * reach + 1);
    for (int i = 0; i < triesPerRing; ++i) {
        const QPoint offset(int(random() % side) - reach, int(random() % side) - reach);
        const bool inCircle = offset.x() * offset.x() + offset.y() * offset.y() <= reach * reach;
        if (inCircle && isFree(centre + offset, spacing))
            return centre + offset;
    }
    return std::nullopt;
}

std::optional<QPoint> PlaceFinder::searchAll(QPoint centre, int spacing) const {
    constexpr int step = 5;
    std::optional<QPoint> best;
    for (int y = inner_.top(); y <= inner_.bottom(); y += step) {
        for (int x = inner_.left(); x <= inner_.right(); x += step) {
            const QPoint place(x, y);
            const bool nearer =
                !best || (place - centre).manhattanLength() < (*best - centre).manhattanLength();
            if (nearer && isFree(place, spacing))
                best = place;
        }
    }
    return best;
}

std::optional<QPoint> PlaceFinder::placeNear(QPoint centre, int reach, int spacing) {
    if (spacing >= fullFrom_)
        return std::nullopt;
    const int farthest = std::max(inner_.width(), inner_.height());
    std::optional<QPoint> found;
    for (int radius = reach; !found && radius < 2 * farthest; radius += radius / 2 + 1)
        found = tryRing(centre, radius, spacing);
    if (!found)
        found = searchAll(centre, spacing);
    if (found) {
        cellOf(*found).push_back(*found);
    } else {
        fullFrom_ = spacing;
    }
    return found;
}

WorldPlaces::WorldPlaces(const WorldSource& source)
    : zones(source.zones.size()), bosses(source.bosses.size()), collectors(source.collectors.size()),
      chests(source.chests.size()), petPlaces(source.petPlaces.size()) {
}

QRect zoneFootprint(const SourceZone& zone, QPoint place) {
    constexpr int halfLetter = 4;
    const int nameHalf = halfLetter * int(zone.name.size()) + markerHalf;
    const QSize marker = markerSize(zone);
    const int down = marker.height() / 2 + 1;
    const QRect name = asShown(zone).nameOnly() ? QRect(-nameHalf, -nameHeight / 2, 2 * nameHalf, nameHeight)
                                                : QRect(-nameHalf, down, 2 * nameHalf, nameHeight);
    const QRect picture(-marker.width() / 2, -down, marker.width(), 2 * down);
    constexpr int clear = 12;
    const QRect least(-20, -20, 40, 40);
    return name.adjusted(0, -markerHalf, 0, markerHalf)
        .united(picture.adjusted(-clear, -clear, clear, clear))
        .united(least)
        .translated(place);
}

RegionRecipe recipeFor(const WorldSource& source, const SourceRegion& region) {
    RegionRecipe recipe{region.seed, region.size, region.theme,   region.campaign,
                        region.name, {},          region.landform};
    for (const SourceZone& zone : source.zones) {
        if (liesIn(region, zone) && zone.painted) {
            recipe.sites.push_back({zone.name, roleOf(zone.kind), zone.nearTo, zone.marker, zone.landmark});
        }
    }
    return recipe;
}

Ground groundOf(const SurveyedRegion& survey) {
    const QRect title = survey.title.adjusted(-markerSpacing, -markerSpacing, markerSpacing, markerSpacing);
    return {survey.sites, [&survey, title](QPoint place) {
                return survey.land(place) && !title.contains(place) &&
                       survey.distanceToWater(place) > markerHalf &&
                       survey.distanceToRiver(place) > markerHalf;
            }};
}

void placeRegion(const WorldSource& source, const SourceRegion& region, const Ground& ground,
                 WorldPlaces& places) {
    RegionFiller filler(source, region, ground, places);
    filler.fillZones(ground);
    filler.fill(source.chests, chestReach, places.chests);
    filler.fill(source.collectors, collectorReach, places.collectors);
    filler.fill(source.bosses, bossReach, places.bosses);
    filler.fill(source.petPlaces, petReach, places.petPlaces);
}

} // namespace worldgen
