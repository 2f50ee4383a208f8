#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/Listing.h"
#include "layers/Treasure.h"
#include "world/HitIndex.h"
#include "world/MapLocation.h"
#include "world/Marker.h"
#include "world/modZones.h"

#include <QDate>
#include <QString>

#include <functional>
#include <vector>

namespace orvinel {

struct Content;

// The only campaign with chests.
inline constexpr int treasureCampaign = 3;

// OpenedOn gets an entry for every character number.
void LoadTreasures(Content& state, const Disk& disk, Complaints* complaints = nullptr);

struct TreasureChoice {
    Place place;
};

// Entries of lstKesraTreasures: "Name (Zone)" in table order; the item data is the chest's index.
std::vector<ListEntry> treasureEntries(const Content& state, const TreasureChoice& choice);

std::vector<Marker> treasureMarkers(const Content& state, ListedItems listed, const MapShown& shown);
// id = the chest's index.
std::vector<HitArea> treasureHitAreas(const Content& state, ListedItems listed, const MapShown& shown);

struct TreasureTooltip {
    struct Line {
        QString character; // may be empty
        QDate openedOn;    // invalid: not opened, the name stands alone

        bool operator==(const Line&) const = default;
    };
    QString name;
    QString headingLeft;
    QString headingRight;
    std::vector<Line> lines;
    QString instead; // what is shown when there are no lines
};

// `treasure` is an index of the table.
TreasureTooltip treasureTooltip(const Content& state, int treasure);

// `left`, as few blanks as make the whole at least `target` wide (always one at least), `right`. `width`
// measures a text; it never shrinks with a further blank. Measures a few times only, however wide the target.
QString padBetween(const QString& left, const QString& right, int target,
                   const std::function<int(const QString&)>& width);

} // namespace orvinel
