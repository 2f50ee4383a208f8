#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/Listing.h"
#include "world/MapLocation.h"
#include "world/Marker.h"
#include "world/modZones.h"

#include <QString>

#include <string>
#include <unordered_map>
#include <vector>

namespace orvinel {

struct ProgramState;

// An item that one boss carries. It belongs to the last location of a boss of that name.
struct GreenItem {
    QString Name; // texts are written by setTexts only
    QString Boss;
    int EliteID = -1;       // of the skill whose boss location carries the item; -1: not linked
    int LocationIndex = -1; // of that location; -1: not linked
    std::vector<QString> Stats;
    std::string FoldedName;
    std::string FoldedStats; // the lines that are not blank, each ended by '\n'

    // An item without a name has no stat lines.
    void setTexts(const QString& name, const QString& boss, std::vector<QString> stats);

    bool operator==(const GreenItem&) const = default;
};

// Indexes of green items by their boss's folded name.
using GreensByBoss = std::unordered_map<std::string, std::vector<int>>;

// Also fills GreenOrder and GreensOfBosses.
void LoadGreens(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);

// Links every item of the boss to that location and returns their indexes; letter case and blanks at the ends
// of `boss` do not matter.
std::vector<int> LinkGreensToBoss(ProgramState& state, int elite, int location, const QString& boss);

// nullptr when the item does not exist or is not linked.
const MapLocation* greenLocation(const ProgramState& state, int green);

// What the panel asks of the green items; a default asks nothing.
struct GreenChoice {
    Place place{};
    QString nameText{};                        // as it stands in the field; blanks at its ends do not count
    QString additionalText{};                  // as it stands in the field; blanks count
    std::vector<std::string> attributeWords{}; // folded; empty: no restriction
};

// Entries of lstGreens, in its alphabetical order; the item data is the item's index.
std::vector<ListEntry> greenEntries(const ProgramState& state, const GreenChoice& choice);

// `eliteShown`: the layer of the elite skills is switched on, so that their bosses have boxes already.
std::vector<Marker> greenMarkers(const ProgramState& state, ListedItems greens, ListedItems elite,
                                 const MapShown& shown, bool eliteShown);

} // namespace orvinel
