#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/Listing.h"
#include "layers/GreenItem.h"
#include "world/MapLocation.h"
#include "world/Marker.h"
#include "world/modZones.h"

#include <QString>

#include <string>
#include <unordered_map>
#include <vector>

namespace orvinel {

struct Content;

// Also fills GreenOrder and GreensOfBosses.
void LoadGreens(Content& state, const Disk& disk, Complaints* complaints = nullptr);

// Bosses that stand there only during an event, and those with code "D", carry no green items; one boss does
// whatever its line says.
bool carriesGreens(const MapLocation& at);

// Links every item of the location's boss to it and returns their indexes; letter case and blanks at the ends
// of the boss's name do not matter.
std::vector<int> LinkGreensToBoss(Content& state, int elite, int location);

// nullptr when the item does not exist or is not linked.
const MapLocation* greenLocation(const Content& state, int green);

// What the panel asks of the green items; a default asks nothing.
struct GreenChoice {
    Place place{};
    QString nameText{};                        // as it stands in the field; blanks at its ends do not count
    QString additionalText{};                  // as it stands in the field; blanks count
    std::vector<std::string> attributeWords{}; // folded; empty: no restriction
};

// Entries of lstGreens, in its alphabetical order; the item data is the item's index.
std::vector<ListEntry> greenEntries(const Content& state, const GreenChoice& choice);

// `eliteShown`: the layer of the elite skills is switched on, so that their bosses have boxes already.
std::vector<Marker> greenMarkers(const Content& state, ListedItems greens, ListedItems elite,
                                 const MapShown& shown, bool eliteShown);

} // namespace orvinel
