#pragma once

#include "app/ProgramState.h"
#include "ui/map/MapLayer.h"
#include "ui/map/MarkerArt.h"

namespace orvinel {

// The zones of a region: part of its ground, since nothing switches or filters them.
class ZonesView : public MapLayer {
  public:
    ZonesView(const ProgramState& state, const MarkerArt& art) : state_(state), art_(art) {}

    void drawGround(QImage& ground, const QRect& part, const MapShown& shown) override {
        DrawZones(ground, part, shown);
    }

  private:
    void DrawZones(QImage& ground, const QRect& part, const MapShown& shown) const;

    const ProgramState& state_;
    const MarkerArt& art_;
};

} // namespace orvinel
