#pragma once

#include "base/Listing.h"
#include "world/HitIndex.h"
#include "world/MapLocation.h"
#include "world/Marker.h"

#include <optional>
#include <vector>

namespace orvinel {

// Markers and hit areas of the listed things that stand in the region shown, in the list's order. `table` has
// the things by number; numbers that it lacks are passed over. `eachPlace(thing, visit)` calls visit(part,
// place) for each place of a thing.

template <typename Table, typename EachPlace, typename Visit>
void forEachShown(const Table& table, ListedItems listed, const MapShown& shown, const EachPlace& eachPlace,
                  const Visit& visit) {
    for (const int id : listed) {
        if (!table.has(id))
            continue;
        eachPlace(table[id], [&](int part, const MapLocation& at) {
            if (shown.shows(at.Campaign, at.Region))
                visit(id, part, at);
        });
    }
}

// `spriteOf(thing, place)`: its picture there; none: no marker.
template <typename Table, typename EachPlace, typename SpriteOf>
std::vector<Marker> markersOf(const Table& table, ListedItems listed, const MapShown& shown,
                              const EachPlace& eachPlace, const SpriteOf& spriteOf) {
    std::vector<Marker> markers;
    forEachShown(table, listed, shown, eachPlace, [&](int id, int, const MapLocation& at) {
        if (const std::optional<Sprite> sprite = spriteOf(table[id], at))
            markers.push_back(Marker::picture(*sprite, at.Left, at.Top));
    });
    return markers;
}

template <typename Table, typename EachPlace>
std::vector<HitArea> hitAreasOf(const Table& table, ListedItems listed, const MapShown& shown,
                                const EachPlace& eachPlace) {
    std::vector<HitArea> areas;
    forEachShown(table, listed, shown, eachPlace, [&](int id, int part, const MapLocation& at) {
        areas.push_back(HitArea::of(at, id, part));
    });
    return areas;
}

} // namespace orvinel
