#pragma once

#include "app/Complaints.h"
#include "app/Disk.h"
#include "layers/MapLocation.h"

#include <QString>

#include <vector>

namespace orvinel {

struct ProgramState;

struct CollectorObject {
    QString Name;
    int HandMask = 0; // bits 1, 2, 4, 8
    std::vector<QString> Stats;

    bool operator==(const CollectorObject&) const = default;
};

struct Collector {
    QString Name;
    bool IsArmour = false;
    int Level = 0; // 0..255
    QString LocationText;
    QString Request;
    MapLocation Location;
    std::vector<CollectorObject> Objects;

    bool operator==(const Collector&) const = default;
};

struct RequestType {
    QString Text;
    int Level = 0;

    bool operator==(const RequestType&) const = default;
};

void LoadCollectors(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);
void LoadCollectorLocations(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);

} // namespace orvinel
