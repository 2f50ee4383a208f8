#pragma once

#include "WorldSource.h"

#include <QRect>

#include <functional>
#include <optional>
#include <vector>

namespace worldgen {

// Hands out free places for the markers of one region. The same questions in the same order give the same
// places on every machine.
class PlaceFinder {
  public:
    // `land` tells whether a marker may stand at a point of the picture.
    PlaceFinder(QSize picture, std::function<bool(QPoint)> land, quint64 seed);

    // Keeps marker centres out of `area` (pixels).
    void block(const QRect& area) { blocked_.push_back(area); }

    // A point of land at least `spacing` pixels, along x or y, from every place given out so far, outside
    // all blocked areas, and as close to `centre` as chance and room allow: first within `reach` pixels,
    // then farther and farther. Nothing when the whole region has no such point.
    std::optional<QPoint> placeNear(QPoint centre, int reach, int spacing);

  private:
    bool isFree(QPoint place, int spacing) const;
    bool isCrowded(QPoint place, int spacing) const;
    std::vector<QPoint>& cellOf(QPoint place);
    quint32 random();
    std::optional<QPoint> tryRing(QPoint centre, int reach, int spacing);
    std::optional<QPoint> searchAll(QPoint centre, int spacing) const;

    QRect inner_;
    std::function<bool(QPoint)> land_;
    quint64 state_;
    std::vector<QRect> blocked_;
    int columns_;
    std::vector<std::vector<QPoint>> taken_; // by cell, row after row
    int fullFrom_;                           // no place is left for this spacing or a larger one
};

// Coordinates (pixels of the region picture) for the tables of a WorldSource, entry by entry.
struct WorldPlaces {
    explicit WorldPlaces(const WorldSource& source);

    std::vector<QPoint> zones;
    std::vector<QPoint> bosses;
    std::vector<QPoint> collectors;
    std::vector<QPoint> chests;
    std::vector<QPoint> petPlaces;
};

// The part of the picture that a zone's marker and name cover.
QRect zoneFootprint(const SourceZone& zone, QPoint place);

// What the painter is asked for. The wishes follow the order of the region's painted zones.
RegionRecipe recipeFor(const WorldSource& source, const SourceRegion& region);

// What placing needs to know of a painted region.
struct Ground {
    std::vector<QPoint> sites; // of the region's painted zones, in their order
    std::function<bool(QPoint)> land;
};

// Markers stand with their feet dry all around, and off the region's written name. `survey` must live as
// long.
Ground groundOf(const SurveyedRegion& survey);

// Fills in all places that lie in `region`, and no others, so that regions may be done side by side.
// Spacing is given up, step by step, only where a region is full (in scaled worlds).
void placeRegion(const WorldSource& source, const SourceRegion& region, const Ground& ground,
                 WorldPlaces& places);

} // namespace worldgen
