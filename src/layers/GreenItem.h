#pragma once

#include "base/TextLines.h"

#include <QString>

#include <string>
#include <unordered_map>
#include <vector>

namespace orvinel {

// An item that one boss carries. It belongs to the last location of a boss of that name.
struct GreenItem {
    QString Name; // texts are written by setTexts only
    QString Boss;
    int EliteID = -1;       // of the skill whose boss location carries the item; -1: not linked
    int LocationIndex = -1; // of that location; -1: not linked
    TextLines Stats;
    std::string FoldedName;
    std::string FoldedStats; // the lines that are not blank, each ended by '\n'

    // An item without a name has no stat lines.
    void setTexts(const QString& name, const QString& boss, const TextLines& stats);

    bool operator==(const GreenItem&) const = default;
};

// Indexes of green items by their boss's folded name.
using GreensByBoss = std::unordered_map<std::string, std::vector<int>>;

} // namespace orvinel
