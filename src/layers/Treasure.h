#pragma once

#include "world/MapLocation.h"

#include <QDate>
#include <QString>

#include <vector>

namespace orvinel {

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

} // namespace orvinel
