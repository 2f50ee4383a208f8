#include "ui/map/ShowOnMap.h"

#include "ui/map/frmMap.h"
#include "world/modCampaigns.h"

namespace orvinel {

void showOnMap(frmMap& map, const ProgramState& state, const RegionPoint& point) {
    const Region* region = findRegion(state, point.campaign, point.region);
    map.InizializzaVariabili(region ? region->RegionPicture : QString(), point.campaign, point.region);
    map.UpdateMapWithNewEliteSkills();
    map.CenterMapOn(point.x, point.y);
}

} // namespace orvinel
