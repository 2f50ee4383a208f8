#pragma once

#include "world/MapLocation.h"

namespace orvinel {

// A kind of content with a list in the panel: what the panel and the map ask of it without knowing which it
// is.
class ListedLayer {
  public:
    virtual ~ListedLayer() = default;

    // Refills the list by the panel's choice, unless the panel is not ready; with True the map is redrawn
    // afterwards.
    virtual void refilter(bool updateMap) = 0;
    // Where the list's selected entry stands; nullptr: nothing is selected, or it has no place.
    virtual const MapLocation* selected() const = 0;
    // Its layer is drawn on the map.
    virtual bool switchedOn() const = 0;
    // Its page is the one that the panel shows.
    virtual bool inFront() const = 0;
};

} // namespace orvinel
