#pragma once

#include "base/TextLines.h"
#include "world/MapLocation.h"

#include <QString>

#include <string>
#include <vector>

namespace orvinel {

// A reward. Its texts are searched in the collector's FoldedObjects, where the positions below point.
struct CollectorObject {
    QString Name;
    int HandMask = 0; // bits 1, 2, 4, 8
    TextLines Stats;
    int FoldedName = 0;  // where the folded name begins
    int FoldedStats = 0; // where the folded stat lines begin; equal to FoldedEnd: none that is not blank
    int FoldedEnd = 0;

    bool operator==(const CollectorObject&) const = default;
};

struct Collector {
    bool Exists = false; // a header line defined it
    QString Name;
    bool IsArmour = false;
    int Level = 0; // 0..255
    QString LocationText;
    QString Request; // written by setRequest only
    MapLocation Location;
    std::vector<CollectorObject> Objects; // written by addObject only
    std::string FoldedRequest;
    std::string FoldedObjects; // names and stat lines that are not blank, each ended by 0xFF

    void setRequest(const QString& text);
    void addObject(const QString& name, int handMask, const TextLines& stats);

    bool operator==(const Collector&) const = default;
};

struct RequestType {
    QString Text;
    int Level = 0; // of the first collector that asked for it

    bool operator==(const RequestType&) const = default;
};

} // namespace orvinel
