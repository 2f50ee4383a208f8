#pragma once

#include "world/MapView.h"
#include "world/Marker.h"

#include <QImage>
#include <QRect>

#include <vector>

namespace orvinel {

// One kind of content, as the map window sees it.
class MapLayer {
  public:
    virtual ~MapLayer() = default;

    // Draws what never changes onto a part of a region picture, once when it is first seen; the rest of the
    // picture is left alone.
    virtual void drawGround(QImage&, const QRect& /*part*/, const MapShown&) {}
    // What the markers follow from; empty: they are to be made anew each time.
    virtual MarkersFrom markersFrom() const { return {}; }
    // Appends the markers that the layer shows now, in drawing order; nothing when the layer is switched off.
    virtual void appendMarkers(std::vector<Marker>&) {}
    // True when the layer has an item at the place; its information window is shown then.
    virtual bool mouseOver(ViewPoint) { return false; }
    // True when the layer has an item at the place, whether or not something happened.
    virtual bool doubleClick(ViewPoint) { return false; }
};

} // namespace orvinel
