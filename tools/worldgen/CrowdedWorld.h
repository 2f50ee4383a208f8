#pragma once

#include "Placement.h"

#include <QByteArray>

namespace worldgen {

// A world to measure with, of the shape that makes maps slow: everything stands in one region of 3000 x 2400
// pixels. Times `scale`, 1..100: 400 zones, 1,500 bosses of 400 skills, 600 collectors of 4 rewards with 3
// lines each, 500 notes, 300 chests, 300 places of 30 pets, 200 green items; about 9,300 lines. What goes
// beyond the program's bounds (65,535 bosses or rewards of a campaign, 32,767 zones) is left out. Always the
// same.
class CrowdedWorld {
  public:
    explicit CrowdedWorld(int scale);

    const WorldSource& source() const { return source_; }
    const WorldPlaces& places() const { return places_; }
    // Of Personal/Notes.txt.
    const QByteArray& notes() const { return notes_; }

  private:
    WorldSource source_;
    WorldPlaces places_;
    QByteArray notes_;
};

} // namespace worldgen
