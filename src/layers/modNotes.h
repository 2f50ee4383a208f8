#pragma once

#include "app/Complaints.h"
#include "app/PlayerFiles.h"
#include "layers/MapLocation.h"

#include <QString>

namespace orvinel {

struct ProgramState;

// The player's own annotation of a place.
struct Note {
    QString ShortDesc; // empty: deleted
    QString Body;      // lines end with CR LF
    MapLocation At;    // Campaign, Region, X, Y and the rectangle only

    bool operator==(const Note&) const = default;
};

void LoadNotes(ProgramState& state, PlayerFiles& files, Complaints* complaints = nullptr);

} // namespace orvinel
