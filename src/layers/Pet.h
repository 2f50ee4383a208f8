#pragma once

#include "base/IndexedTable.h"
#include "world/MapLocation.h"

#include <QString>

namespace orvinel {

struct Pet {
    QString Name;
    QString Picture; // full path of the JPEG, whether or not it exists; empty: none
    List1<MapLocation> Locations;

    bool operator==(const Pet&) const = default;
};

} // namespace orvinel
