#pragma once

#include "ui/map/frmMap.h"
#include "ui/platform/ListBox.h"
#include "world/HitIndex.h"

#include <functional>
#include <vector>

namespace orvinel {

// The marker rectangles of what a layer lists on the region shown, for the mouse. They are collected when the
// mouse first asks after the lists or the region changed.
class CachedHits {
  public:
    // The zone in MapShown is always 0: the choice of a zone hides no marker from the mouse.
    using Areas = std::function<std::vector<HitArea>(const MapShown&)>;

    // `lists`: those that `areas` reads. All outlive this.
    CachedHits(const frmMap& map, std::vector<const ListBox*> lists, Areas areas)
        : map_(map), lists_(std::move(lists)), areas_(std::move(areas)) {}

    // The first area, in the layer's order, that holds the place; nullptr: none. Valid until the next call.
    const HitArea* at(ViewPoint place);

  private:
    const frmMap& map_;
    std::vector<const ListBox*> lists_;
    Areas areas_;
    std::vector<int> builtFor_; // campaign, region and the lists' revisions
    HitIndex index_;
};

} // namespace orvinel
