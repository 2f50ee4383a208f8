#pragma once

#include <QByteArray>

namespace orvinel {

struct Atlas;
struct AtlasRegion;
struct ProgramState;

// The pages as HTML, as UTF-8. They allow nothing from elsewhere and no script but the atlas's own.

// index.html: the map, the search, and links to the lists of all regions, which need no script.
QByteArray startPage(const ProgramState& state, const Atlas& atlas);
// regions/KEY.html: the picture, and everything that stands on it as a list; works without any script.
QByteArray regionPage(const ProgramState& state, const AtlasRegion& region);

} // namespace orvinel
