#include "Sites.h"

#include "Maths.h"

#include <array>

namespace worldgen {

namespace {

constexpr int border = 84; // half of a long name, plus the frame
constexpr double narrowest = 62;
constexpr int frameGap = 26;
constexpr int landmarkAbove = 26; // pixels from a name up to what is painted beside it

// Markers of towns are large and names hang below them: both ends of that span, per campaign.
struct Reach {
    int above, below;
};

Reach markerReach(SiteRole role, int campaign) {
    const bool small = campaign != 2 && campaign != 3;
    switch (role) {
    case SiteRole::Town:
        return small ? Reach{18, 18} : Reach{31, 31};
    case SiteRole::Outpost:
        return small ? Reach{12, 12} : Reach{21, 21};
    case SiteRole::Mission:
        return small ? Reach{24, 24} : Reach{31, 31};
    case SiteRole::Challenge:
        return campaign == 2 ? Reach{26, 26} : Reach{34, 34};
    case SiteRole::Area:
        return {15, 15};
    case SiteRole::DungeonEntrance:
        break;
    }
    return {13, 13};
}

bool onWater(SiteNear near) {
    return near == SiteNear::Water || near == SiteNear::Sea;
}

// A mere or a deep is a lake: its name off the coast would say something else than the picture.
bool isWaterOf(const Landscape& land, QPoint p, SiteNear near) {
    return land.water(p.x(), p.y()) && land.sea(p.x(), p.y()) == (near == SiteNear::Sea);
}

double highestAround(const Landscape& land, QPoint p, int reach) {
    double highest = 0;
    for (int j = -3; j <= 3; ++j)
        for (int i = -3; i <= 3; ++i)
            highest =
                std::max<double>(highest, land.height.clamped(p.x() + i * reach / 3, p.y() + j * reach / 3));
    return highest;
}

// Heights on two opposite sides, and a way through on the others.
bool passBetweenHeights(const Landscape& land, QPoint p) {
    constexpr std::array<QPoint, 4> ways{QPoint(1, 0), QPoint(0, 1), QPoint(1, 1), QPoint(1, -1)};
    const auto rises = [&](QPoint way) {
        for (int out = 40; out <= 150; out += 10)
            if (land.height.clamped(p.x() + way.x() * out, p.y() + way.y() * out) > 0.33)
                return true;
        return false;
    };
    return std::any_of(ways.begin(), ways.end(), [&](QPoint way) { return rises(way) && rises(-way); });
}

// Share of the ground around a point that is wooded.
double woodedShare(const Landscape& land, QPoint p, int reach) {
    int wooded = 0;
    for (int j = -3; j <= 3; ++j)
        for (int i = -3; i <= 3; ++i)
            wooded += land.woodsAt(p.x() + i * reach / 3.0, p.y() + j * reach / 3.0) > 0.16 ? 1 : 0;
    return wooded / 49.0;
}

bool waterAround(const Landscape& land, QPoint p, int reach, bool sea) {
    for (int y = -reach; y <= reach; y += 6)
        for (int x = -reach; x <= reach; x += 6)
            if (land.inside(p.x() + x, p.y() + y) && land.water(p.x() + x, p.y() + y) &&
                land.sea(p.x() + x, p.y() + y) == sea)
                return true;
    return false;
}

class Finder {
  public:
    Finder(const Landscape& land, quint32 seed) : land_(land), rng_(seed * 5ULL + 1) {}

    QPoint place(const SiteWish& wish);
    const std::vector<QPoint>& taken() const { return taken_; }

  private:
    double room(QPoint p) const;
    double suitability(QPoint p, const SiteWish& wish) const;
    double nearness(QPoint p, SiteNear near) const;
    bool nameOnSnow(QPoint p) const;
    QPoint randomPoint(const SiteWish& wish);

    const Landscape& land_;
    Rng rng_;
    std::vector<QPoint> taken_;
};

QPoint Finder::randomPoint(const SiteWish& wish) {
    const int halfName = nameBox({}, wish, 0).width() / 2;
    const int bx = std::min(std::max(border, halfName + frameGap), land_.size.width() / 3);
    const int by = std::min(border, land_.size.height() / 3);
    const int x = rng_.whole(bx, land_.size.width() - bx);
    return {x, rng_.whole(by, land_.size.height() - by)};
}

// Pixels to the nearest site already placed.
double Finder::room(QPoint p) const {
    double nearest = 1e6;
    for (const QPoint& q : taken_)
        nearest = std::min(nearest, lengthOf(p.x() - q.x(), p.y() - q.y()));
    return nearest;
}

bool Finder::nameOnSnow(QPoint p) const {
    for (int y = -6; y <= 54; y += 10)
        for (int x = -70; x <= 70; x += 14)
            if (!land_.water(p.x() + x, p.y() + y) && land_.highGround(p.x() + x, p.y() + y))
                return true;
    return false;
}

double Finder::nearness(QPoint p, SiteNear near) const {
    const int x = p.x();
    const int y = p.y();
    const double shore = land_.toWater.clamped(x, y);
    switch (near) {
    case SiteNear::Coast:
    case SiteNear::Lake: {
        if (shore > 110)
            return 0;
        bool wanted = false;
        for (int j = -2; j <= 2; ++j)
            for (int i = -2; i <= 2; ++i) {
                const int sx = x + i * 32, sy = y + j * 32;
                wanted |= land_.water(sx, sy) && land_.sea(sx, sy) == (near == SiteNear::Coast);
            }
        return wanted ? 1 - shore / 140 : 0;
    }
    case SiteNear::River:
        return smoothStep(120, 20, land_.riverDistance(x, y));
    case SiteNear::Cliffs:
    case SiteNear::Ridge: {
        double highest = 0;
        for (int j = -3; j <= 3; ++j)
            for (int i = -3; i <= 3; ++i)
                highest = std::max<double>(highest, land_.height.clamped(x + i * 30, y + j * 30));
        return smoothStep(0.24, 0.40, highest);
    }
    case SiteNear::Open:
        return smoothStep(0.2, -0.1, land_.woodsAt(x, y)) *
               smoothStep(0.34, 0.24, highestAround(land_, p, 70));
    case SiteNear::Forest:
    case SiteNear::Bamboo:
        return smoothStep(0.02, 0.22, land_.woodsAt(x, y));
    default:
        break;
    }
    return 0.5 + 0.25 * smoothStep(150, 30, shore) + 0.25 * smoothStep(120, 30, land_.riverDistance(x, y));
}

// Negative where nothing can stand.
double Finder::suitability(QPoint p, const SiteWish& wish) const {
    const int x = p.x();
    const int y = p.y();
    if (wish.near == SiteNear::Pass)
        return passBetweenHeights(land_, p) && land_.height.clamped(x, y) < 0.46 &&
                       land_.toWater.clamped(x, y) > 20
                   ? 2 + smoothStep(60, 260, room(p)) - 4 * land_.height.clamped(x, y)
                   : -1;
    if (onWater(wish.near))
        return !isWaterOf(land_, p, wish.near) || land_.toLand.clamped(x, y) < 22 ||
                       wish.role != SiteRole::Area
                   ? -1
                   : 2 + smoothStep(60, 260, room(p)) + smoothStep(22, 60, land_.toLand.clamped(x, y)) -
                         smoothStep(60, 140, land_.toLand.clamped(x, y));
    const double shore = land_.toWater.clamped(x, y);
    const bool large = wish.role == SiteRole::Town || wish.role == SiteRole::Mission;
    if (shore < (large ? 30 : 20) || land_.highGround(x, y) ||
        (wish.landmark == Landmark::None && nameOnSnow(p)))
        return -1;
    if (land_.riverDistance(x, y) < (large ? 18 : 12))
        return -1;
    if (wish.landmark != Landmark::None && land_.toWater.clamped(x, y - landmarkAbove) < 14)
        return -1;
    if (wish.landmark != Landmark::None)
        return 3 * smoothStep(60, 460, room(p)) - (nameOnSnow(p) ? 1 : 0) +
               (wish.near == SiteNear::Anything ? 0 : 2.4 * nearness(p, wish.near));
    const double flat = smoothStep(0.05, 0.01, land_.slope(x, y, 8));
    const double spacing = smoothStep(60, 260, room(p));
    return 2.2 * nearness(p, wish.near) + 0.8 * flat + 1.6 * spacing;
}

QPoint Finder::place(const SiteWish& wish) {
    QPoint best(land_.size.width() / 2, land_.size.height() / 2);
    double bestScore = -2;
    for (int attempt = 0; attempt < 1400; ++attempt) {
        const QPoint p = randomPoint(wish);
        const double here = room(p) < narrowest ? -1 : suitability(p, wish) + rng_.range(0, 0.12);
        // Without any suitable place, solid ground with the most room still takes the site.
        const bool solid = land_.toWater.clamped(p.x(), p.y()) > 4 && !land_.highGround(p.x(), p.y());
        const double fallback = -1.9 + (solid ? 0.4 : 0) + std::min(room(p), 60.0) * 0.005;
        const double score = std::round((here < 0 ? fallback : here) * 4096);
        if (score > bestScore || attempt == 0) {
            bestScore = score;
            best = p;
        }
    }
    taken_.push_back(best);
    return best;
}

// Large places choose first: they need the most room.
int rankOf(const SiteWish& wish) {
    if (wish.landmark != Landmark::None)
        return 3;
    switch (wish.role) {
    case SiteRole::Town:
        return 0;
    case SiteRole::Mission:
    case SiteRole::Outpost:
        return 1;
    default:
        return 2;
    }
}

} // namespace

std::vector<QPoint> placedSites(const Landscape& land, const std::vector<SiteWish>& wishes, quint32 seed) {
    std::vector<std::size_t> order(wishes.size());
    for (std::size_t k = 0; k < order.size(); ++k)
        order[k] = k;
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return rankOf(wishes[a]) < rankOf(wishes[b]); });
    Finder finder(land, seed);
    std::vector<QPoint> result(wishes.size());
    for (const std::size_t k : order)
        result[k] = finder.place(wishes[k]);
    return result;
}

bool groundOffers(const Landscape& land, QPoint site, SiteNear near) {
    constexpr int beside = 120;
    switch (near) {
    case SiteNear::Coast:
    case SiteNear::Lake:
        return waterAround(land, site, beside, near == SiteNear::Coast);
    case SiteNear::River:
        return land.riverDistance(site.x(), site.y()) < beside;
    case SiteNear::Ridge:
    case SiteNear::Cliffs:
        return highestAround(land, site, beside) > 0.27;
    case SiteNear::Pass:
        return passBetweenHeights(land, site);
    case SiteNear::Water:
    case SiteNear::Sea:
        return isWaterOf(land, site, near);
    case SiteNear::Forest:
    case SiteNear::Bamboo:
        return woodedShare(land, site, 80) > 0.4;
    case SiteNear::Open:
        return woodedShare(land, site, 80) < 0.2 && highestAround(land, site, 50) < 0.36;
    case SiteNear::Anything:
        break;
    }
    return true;
}

QRect nameBox(QPoint site, const SiteWish& wish, int campaign) {
    constexpr int letter = 8;      // widest mean advance of the program's bold face
    constexpr int lineHeight = 15; // of one line
    const int half = int(wish.name.size()) * letter / 2 + 3;
    const Reach reach = markerReach(wish.role, campaign);
    const bool nameOnly = wish.role == SiteRole::Area && !wish.marked;
    const int top = nameOnly ? -lineHeight / 2 - 2 : reach.below - 2;
    return {site.x() - half, site.y() + top, 2 * half, lineHeight + 5};
}

} // namespace worldgen
