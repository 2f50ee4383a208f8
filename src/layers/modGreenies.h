#pragma once

#include "app/Complaints.h"
#include "app/Disk.h"

#include <QString>

#include <vector>

namespace orvinel {

struct ProgramState;

struct GreenItem {
    QString Name;
    QString Boss;
    int EliteID = -1;       // of the skill whose boss location carries the item; -1: not linked
    int LocationIndex = -1; // of that location; -1: not linked
    std::vector<QString> Stats;

    bool operator==(const GreenItem&) const = default;
};

void LoadGreens(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);

} // namespace orvinel
