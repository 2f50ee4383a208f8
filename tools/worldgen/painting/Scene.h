#pragma once

#include "Sprites.h"

#include <deque>

namespace worldgen {

// Everything that stands on the ground. What stands further south is painted later and hides what is behind.
class Scene {
  public:
    // Keeps a sprite that stands in many places; valid as long as the scene.
    const Sprite& keep(Sprite sprite);
    void stand(const Sprite& kept, QPointF at) { things_.push_back({&kept, at}); }
    void standNew(Sprite sprite, QPointF at) { stand(keep(std::move(sprite)), at); }
    void paint(QImage& picture) const;

  private:
    struct Thing {
        const Sprite* sprite;
        QPointF at;
    };
    std::deque<Sprite> sprites_;
    std::vector<Thing> things_;
};

// Two pictures as large as the region's.
struct GroundPlan {
    const QImage& ground; // the land without what stands on it
    const QImage& taken;  // grayscale; nature keeps away where it is not black
};

// Woods, mountains, hills, reeds and rocks.
void growNature(Scene& scene, const Landscape& land, const GroundPlan& plan, quint32 seed);

} // namespace worldgen
