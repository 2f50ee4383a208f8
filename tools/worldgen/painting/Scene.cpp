#include "Scene.h"

#include "Maths.h"

namespace worldgen {

const Sprite& Scene::keep(Sprite sprite) {
    sprites_.push_back(std::move(sprite));
    return sprites_.back();
}

void Scene::paint(QImage& picture) const {
    std::vector<Thing> order = things_;
    std::stable_sort(order.begin(), order.end(),
                     [](const Thing& a, const Thing& b) { return int(a.at.y() * 8) < int(b.at.y() * 8); });
    QPainter painter(&picture);
    for (const Thing& thing : order)
        painter.drawImage((thing.at - thing.sprite->anchor).toPoint(), thing.sprite->image);
}

namespace {

// Ready-made sprites of one kind in several sizes, so that no two neighbours are alike.
class Grove {
  public:
    Grove(Scene& scene, TreeStyle style, const Palette& palette, Rng& rng) {
        for (int k = 0; k < 40; ++k)
            trees_.push_back(&scene.keep(paintedTree(style, palette, 0.72 + 0.014 * k, rng)));
    }
    const Sprite& any(Rng& rng) const { return *rng.pick(trees_); }

  private:
    std::vector<const Sprite*> trees_;
};

Sprite paintedRock(Colour rock, double scale, Rng& rng) {
    SpriteCanvas canvas(12, 10, {6, 7});
    QPainter& p = canvas.painter();
    p.setBrush(QColor(10, 10, 10, 90));
    p.drawEllipse(QPointF(1, 0.6) * scale, 3.4 * scale, 1.6 * scale);
    QPolygonF outline;
    for (int k = 0; k < 7; ++k) {
        const double angle = pi + k * pi / 6;
        const double radius = rng.range(2.2, 3.2) * scale;
        outline << QPointF(cosineOf(angle) * radius, sineOf(angle) * radius * 0.9 + scale * 0.4);
    }
    p.setBrush(inked(rock.times(0.72)));
    p.drawPolygon(outline);
    p.setBrush(inked(rock.times(1.35)));
    p.drawPolygon(QPolygonF{outline[0], outline[1], outline[2], outline[3], QPointF(-0.4, -0.6) * scale});
    return canvas.finished();
}

Sprite paintedReeds(Rng& rng) {
    SpriteCanvas canvas(12, 10, {6, 8});
    QPainter& p = canvas.painter();
    p.setPen(QPen(QColor(120, 150, 140, 110), 0.7));
    p.drawLine(QPointF(-4.5, 0.6), QPointF(4.5, 0.6));
    for (int k = -3; k <= 3; ++k) {
        const double light = rng.range(0.75, 1.25);
        p.setPen(QPen(inked(Colour{74, 88, 46}.times(light)), 0.8, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(k * 0.8, 0.5), QPointF(k * 1.35 + rng.range(-0.4, 0.4), -rng.range(2.5, 5.5)));
    }
    return canvas.finished();
}

class Nature {
  public:
    Nature(Scene& scene, const Landscape& land, const QImage& taken, quint32 seed);
    void grow(const QImage& ground);

  private:
    bool reedy(QPoint at) const;
    void growAt(QPointF at);
    PeakShape shapeAt(double height, double scale);
    bool crowded(QPointF at, double gap) const;
    bool openBehind(QPointF at, double scale) const;
    void raisePeaks();
    void raiseHills(const QImage& ground);
    bool free(QPointF at) const { return qGray(taken_.pixel(at.toPoint())) == 0; }
    const Sprite& treeFor(double height);

    Scene& scene_;
    const Landscape& land_;
    const QImage& taken_;
    Rng rng_;
    Grove lowland_;
    Grove upland_;
    std::vector<const Sprite*> rocks_;
    std::vector<const Sprite*> reeds_;
    std::vector<std::pair<QPointF, double>> raised_; // mountains and hills with the room they need
};

Nature::Nature(Scene& scene, const Landscape& land, const QImage& taken, quint32 seed)
    : scene_(scene), land_(land), taken_(taken), rng_(seed * 5ULL + 2),
      lowland_(scene, land.palette.lowland, land.palette, rng_),
      upland_(scene, land.palette.upland, land.palette, rng_) {
    for (int k = 0; k < 8; ++k) {
        rocks_.push_back(&scene.keep(
            paintedRock(mixed(land.palette.rock, Colour{120, 114, 104}, 0.5), 0.7 + 0.12 * k, rng_)));
        reeds_.push_back(&scene.keep(paintedReeds(rng_)));
    }
}

const Sprite& Nature::treeFor(double height) {
    const double border = land_.theme == Theme::Ash ? 0.24 : 0.19;
    return height + rng_.range(-0.035, 0.035) > border ? upland_.any(rng_) : lowland_.any(rng_);
}

bool Nature::reedy(QPoint at) const {
    const bool fens = land_.landform == Landform::Fens;
    const bool low =
        land_.height.at(at.x(), at.y()) < (fens ? 0.18 : 0.12) && land_.slope(at.x(), at.y(), 4) < 0.014;
    return low && land_.moistureAt(at.x(), at.y()) > 0.14 && (fens || land_.toWater.at(at.x(), at.y()) < 60);
}

void Nature::growAt(QPointF at) {
    const int x = int(at.x());
    const int y = int(at.y());
    const double shore = land_.toWater.clamped(x, y);
    if (!land_.inside(x, y) || shore < 8 || land_.riverDistance(x, y) < 6 || !free(at))
        return;
    const double height = land_.height.at(x, y);
    const double slope = land_.slope(x, y, 4);
    const double woods = std::round(land_.woodsAt(x, y) * 4096) / 4096;
    if (woods > 0.16 && slope < 0.07 && height < 0.42) {
        if (rng_.chance(0.94))
            scene_.stand(treeFor(height), at);
    } else if (woods > 0.02 && slope < 0.05 && height < 0.36 && rng_.chance(0.10)) {
        scene_.stand(treeFor(height), at);
    } else if (reedy({x, y}) && rng_.chance(0.30)) {
        scene_.stand(*rng_.pick(reeds_), at);
    } else if (height < 0.32 && rng_.chance(height > 0.2 ? 0.02 : 0.005)) {
        scene_.stand(*rng_.pick(rocks_), at);
    }
}

PeakShape Nature::shapeAt(double height, double scale) {
    PeakShape shape{PeakStyle::Alpine, scale, 0, {}};
    const double line = land_.palette.snowline;
    const double snow = line > 1.2 ? 0 : std::clamp(0.25 + 1.6 * (height - (line - 0.42)), 0.0, 0.82);
    shape.snow = snow > 0.25 ? snow : 0;
    if (land_.theme == Theme::Desert && rng_.chance(height < 0.44 ? 0.6 : 0.12))
        shape.style = PeakStyle::Mesa;
    if (land_.theme == Theme::Ash && scale > 1.05 && rng_.chance(0.3))
        shape.style = PeakStyle::Volcanic;
    return shape;
}

bool Nature::crowded(QPointF at, double gap) const {
    return std::any_of(raised_.begin(), raised_.end(), [&](const auto& other) {
        return lengthOf(other.first.x() - at.x(), (other.first.y() - at.y()) * 1.6) <
               std::max(gap, other.second);
    });
}

// Whether a peak would hide no road and no place that lies behind it.
bool Nature::openBehind(QPointF at, double scale) const {
    for (const QPointF part : {QPointF(-13, -4), QPointF(13, -4), QPointF(-7, -18), QPointF(7, -18),
                               QPointF(0, -10), QPointF(0, -28), QPointF(0, -38)})
        if (const QPointF behind = at + part * scale;
            taken_.rect().contains(behind.toPoint()) && !free(behind))
            return false;
    return true;
}

void Nature::raisePeaks() {
    const int attempts = land_.size.width() * land_.size.height() / 48;
    for (int k = 0; k < attempts; ++k) {
        const double wantedX = rng_.range(44, land_.size.width() - 44);
        const QPointF at(wantedX, rng_.range(56, land_.size.height() - 40));
        const int x = int(at.x());
        const int y = int(at.y());
        const double height = std::round(land_.height.at(x, y) * 4096) / 4096;
        if (height < 0.34 || height < land_.surroundAt(x, y) + 0.01 || land_.toWater.at(x, y) < 16 ||
            !free(at))
            continue;
        const double scale = 0.80 + 2.0 * std::min(0.55, height - 0.30);
        if (crowded(at, 33 * scale) || !openBehind(at, scale))
            continue;
        const PeakShape shape = shapeAt(height, scale);
        raised_.emplace_back(at, (shape.style == PeakStyle::Mesa ? 42 : 33) * scale);
        scene_.standNew(paintedPeak(land_.palette, shape, rng_), at + QPointF(0, 5 * scale));
    }
}

void Nature::raiseHills(const QImage& ground) {
    const int attempts = land_.size.width() * land_.size.height() / 1500;
    for (int k = 0; k < attempts; ++k) {
        const double wantedX = rng_.range(44, land_.size.width() - 44);
        const QPointF at(wantedX, rng_.range(56, land_.size.height() - 40));
        const int x = int(at.x());
        const int y = int(at.y());
        const double height = std::round(land_.height.at(x, y) * 4096) / 4096;
        const bool hilly = height > 0.20 && height < 0.36 && land_.toWater.at(x, y) > 26;
        if (!hilly || land_.riverDistance(x, y) < 22 || land_.woodsAt(x, y) > 0.1 || !free(at) ||
            !free(at + QPointF(16, 0)) || !free(at - QPointF(16, 0)))
            continue;
        const double scale = rng_.range(0.7, 1.15);
        if (crowded(at, 62 * scale) || rng_.chance(0.4))
            continue;
        raised_.emplace_back(at, 62 * scale);
        const PeakShape shape{PeakStyle::Hill, scale, 0, colourOf(ground.pixel(x, y)).times(1.04)};
        scene_.standNew(paintedPeak(land_.palette, shape, rng_), at);
    }
}

void Nature::grow(const QImage& ground) {
    constexpr double pitch = 7;
    for (double y = 8; y < land_.size.height() - 2; y += pitch)
        for (double x = 8; x < land_.size.width() - 8; x += pitch)
            growAt({x + rng_.range(-3.2, 3.2), y + rng_.range(-3.2, 1.8)});
    raisePeaks();
    raiseHills(ground);
}

} // namespace

void growNature(Scene& scene, const Landscape& land, const GroundPlan& plan, quint32 seed) {
    Nature(scene, land, plan.taken, seed).grow(plan.ground);
}

} // namespace worldgen
