#pragma once

#include "world/MapLocation.h"

#include <QString>

#include <string>

namespace orvinel {

// The player's own annotation of a place.
struct Note {
    QString ShortDesc; // empty: deleted; the slot stays until the program ends
    QString Body;      // lines end with CR LF
    MapLocation At;    // Campaign, Region, X, Y and the rectangle only
    std::string FoldedShortDesc;
    std::string FoldedBody;

    // The only writer of the texts.
    void setTexts(const QString& title, const QString& body);

    bool operator==(const Note&) const = default;
};

} // namespace orvinel
