#pragma once

#include "app/Complaints.h"
#include "app/PlayerFiles.h"
#include "layers/MapLocation.h"

#include <QDate>
#include <QString>

#include <vector>

namespace orvinel {

struct ProgramState;

struct Treasure {
    QString Name;
    MapLocation Location;
    std::vector<QDate> OpenedOn; // by character number, 0..highest; an invalid date: not opened

    bool operator==(const Treasure&) const = default;
};

void LoadTreasures(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);

} // namespace orvinel
