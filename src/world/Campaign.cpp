#include "world/Campaign.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

void Region::addZone(Zone zone) {
    const int identifier = zone.ZoneID;
    ZoneByIdentifier.try_emplace(identifier, RegionZones.append(std::move(zone)));
}

} // namespace orvinel
