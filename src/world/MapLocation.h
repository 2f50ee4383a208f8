#pragma once

#include "base/TextRules.h"

#include <QString>

#include <string>
#include <vector>

namespace orvinel {

// Coordinates from data files lie within ± this many pixels.
inline constexpr int largestCoordinate = 1'000'000;

// Where an elite boss, a collector, a chest or a pet stands on a region picture.
struct MapLocation {
    int Campaign = 0; // 0..255
    int Region = 0;   // 0..255
    int Zone = 0;     // a zone's identifier; 0: none
    int X = -1;       // pixels of the region picture; -1, -1: no place yet
    int Y = -1;
    int Left = -1; // the marker's rectangle, edges included
    int Top = -1;
    int Right = -1;
    int Bottom = -1;
    QString Boss;            // written by setBoss only
    QString Note;            // may hold line breaks (CR LF)
    QString MarkerCode;      // one or two characters printed in the marker, or none
    std::vector<int> Greens; // indexes of the green items that this boss drops
    std::string FoldedBoss;

    // The only writer of the place and its marker rectangle: `reach` pixels to each side of the centre.
    void placeAt(int x, int y, int reach) {
        X = x;
        Y = y;
        Left = x - reach;
        Top = y - reach;
        Right = x + reach;
        Bottom = y + reach;
    }
    void setBoss(const QString& boss) {
        Boss = boss;
        FoldedBoss = folded(boss);
    }
    bool placed() const { return X != -1 && Y != -1; }

    bool operator==(const MapLocation&) const = default;
};

// Pixels from a marker's centre to its edges.
inline constexpr int bossReach = 6;     // elite bosses and collectors: 13 x 13
inline constexpr int treasureReach = 7; // chests, pets and notes: 15 x 15

} // namespace orvinel
