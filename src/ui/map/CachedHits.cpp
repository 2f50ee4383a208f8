#include "ui/map/CachedHits.h"

namespace orvinel {

const HitArea* CachedHits::at(ViewPoint place) {
    std::vector<int> now = {map_.MapCampaign(), map_.MapRegion()};
    for (const ListBox* list : lists_)
        now.push_back(list->revision());
    if (now != builtFor_) {
        index_ = HitIndex(areas_(map_.shown(0)));
        builtFor_ = std::move(now);
    }
    return index_.first(map_.toMap(place).point());
}

} // namespace orvinel
