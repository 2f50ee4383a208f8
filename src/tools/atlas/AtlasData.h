#pragma once

#include <QByteArray>

namespace orvinel {

struct Atlas;
struct AtlasRegion;
struct ProgramState;

// The data of the scripts, as scripts themselves: a page from the disk may load nothing else. All of them
// fill the one object `Atlas`; web/README.md names its members.

// Texts, layers and regions: comes before all others.
QByteArray worldData(const ProgramState& state, const Atlas& atlas);
QByteArray regionData(const AtlasRegion& region);
// One row for everything that can be searched for, with its place.
QByteArray searchData(const ProgramState& state, const Atlas& atlas);

} // namespace orvinel
