#include "Sites.h"

#include "Maths.h"

namespace worldgen {

namespace {

constexpr int kBorder = 84; // half of a long name, plus the frame
constexpr double kNarrowest = 62;

/// Markers of towns are large and names hang below them: both ends of that span, per campaign.
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
    QPoint randomPoint();

    const Landscape& land_;
    Rng rng_;
    std::vector<QPoint> taken_;
};

QPoint Finder::randomPoint() {
    const int bx = std::min(kBorder, land_.size.width() / 3);
    const int by = std::min(kBorder, land_.size.height() / 3);
    const int x = rng_.whole(bx, land_.size.width() - bx);
    return {x, rng_.whole(by, land_.size.height() - by)};
}

/// Pixels to the nearest site already placed.
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
    case SiteNear::Ridge: {
        double highest = 0;
        for (int j = -3; j <= 3; ++j)
            for (int i = -3; i <= 3; ++i)
                highest = std::max<double>(highest, land_.height.clamped(x + i * 30, y + j * 30));
        return smoothStep(0.24, 0.40, highest);
    }
    case SiteNear::Forest:
        return smoothStep(0.02, 0.22, land_.woodsAt(x, y));
    case SiteNear::Anything:
        break;
    }
    return 0.5 + 0.25 * smoothStep(150, 30, shore) + 0.25 * smoothStep(120, 30, land_.riverDistance(x, y));
}

/// Negative where nothing can stand.
double Finder::suitability(QPoint p, const SiteWish& wish) const {
    const int x = p.x();
    const int y = p.y();
    const double shore = land_.toWater.clamped(x, y);
    const bool large = wish.role == SiteRole::Town || wish.role == SiteRole::Mission;
    if (shore < (large ? 30 : 20) || land_.highGround(x, y) || nameOnSnow(p))
        return -1;
    if (land_.riverDistance(x, y) < (large ? 18 : 12))
        return -1;
    const double flat = smoothStep(0.05, 0.01, land_.slope(x, y, 8));
    const double spacing = smoothStep(60, wish.role == SiteRole::Area ? 190 : 260, room(p));
    return 2.2 * nearness(p, wish.near) + 0.8 * flat + 1.6 * spacing;
}

QPoint Finder::place(const SiteWish& wish) {
    QPoint best(land_.size.width() / 2, land_.size.height() / 2);
    double bestScore = -2;
    for (int attempt = 0; attempt < 1400; ++attempt) {
        const QPoint p = randomPoint();
        const double here = room(p) < kNarrowest ? -1 : suitability(p, wish) + rng_.range(0, 0.12);
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

/// Large places choose first: they need the most room.
int rankOf(SiteRole role) {
    switch (role) {
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
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return rankOf(wishes[a].role) < rankOf(wishes[b].role);
    });
    Finder finder(land, seed);
    std::vector<QPoint> result(wishes.size());
    for (const std::size_t k : order)
        result[k] = finder.place(wishes[k]);
    return result;
}

QRect nameBox(QPoint site, const SiteWish& wish, int campaign) {
    constexpr int letter = 8;      // widest mean advance of the program's bold face
    constexpr int lineHeight = 15; // of one line
    const int half = int(wish.name.size()) * letter / 2 + 3;
    const Reach reach = markerReach(wish.role, campaign);
    // An explorable area may stand without a marker, its name centred on the point.
    const int top = wish.role == SiteRole::Area ? -lineHeight / 2 - 2 : reach.below - 2;
    return {site.x() - half, site.y() + top, 2 * half, reach.below + lineHeight + 3 - top};
}

} // namespace worldgen
