#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/Listing.h"
#include "world/HitIndex.h"
#include "world/MapLocation.h"
#include "world/Marker.h"
#include "world/modZones.h"

#include <QDate>
#include <QString>

#include <functional>
#include <vector>

namespace orvinel {

struct ProgramState;

struct Treasure {
    QString Name;
    MapLocation Location;
    std::vector<QDate> OpenedOn; // by character number, 0..highest; an invalid date: not opened

    // Also for characters that the chest knows nothing of.
    QDate openedBy(int character) const {
        const auto c = static_cast<size_t>(character);
        return character >= 0 && c < OpenedOn.size() ? OpenedOn[c] : QDate();
    }

    bool operator==(const Treasure&) const = default;
};

// The only campaign with chests.
inline constexpr int treasureCampaign = 3;

// OpenedOn gets an entry for every character number.
void LoadTreasures(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);

struct TreasureChoice {
    Place place;
};

// Entries of lstKesraTreasures: "Name (Zone)" in table order; the item data is the chest's index.
std::vector<ListEntry> treasureEntries(const ProgramState& state, const TreasureChoice& choice);

std::vector<Marker> treasureMarkers(const ProgramState& state, ListedItems listed, const MapShown& shown);
// id = the chest's index.
std::vector<HitArea> treasureHitAreas(const ProgramState& state, ListedItems listed, const MapShown& shown);

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
TreasureTooltip treasureTooltip(const ProgramState& state, int treasure);

// `left`, as few blanks as make the whole at least `target` wide (always one at least), `right`. `width`
// measures a text; it never shrinks with a further blank. Measures a few times only, however wide the target.
QString padBetween(const QString& left, const QString& right, int target,
                   const std::function<int(const QString&)>& width);

} // namespace orvinel
