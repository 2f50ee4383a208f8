#pragma once

#include "app/ProgramState.h"
#include "ui/map/MapLayer.h"
#include "ui/map/MarkerArt.h"
#include "ui/platform/TextRun.h"

#include <unordered_map>

namespace orvinel {

class Drawing;

// The zones of a region: part of its ground, since nothing switches or filters them.
class ZonesView : public MapLayer {
  public:
    ZonesView(const ProgramState& state, const MarkerArt& art) : state_(state), art_(art) {}

    void drawGround(QImage& ground, const QRect& part, const MapShown& shown) override {
        DrawZones(ground, part, shown);
    }

  private:
    void DrawZones(QImage& ground, const QRect& part, const MapShown& shown);
    void drawMarker(Drawing& drawing, int campaign, const Zone& zone) const;
    void writeName(Drawing& drawing, const QRect& part, int campaign, const Zone& zone);

    const ProgramState& state_;
    const MarkerArt& art_;
    // The names that were seen, ready to be drawn again in the next part; of one region at a time.
    const Region* namesOf_ = nullptr;
    std::unordered_map<const Zone*, TextRun> names_;
};

} // namespace orvinel
