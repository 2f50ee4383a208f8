#pragma once

#include "base/Colour.h"

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

namespace orvinel {

// The pictures that are copied onto the map, by the name of their picture box; the number is the picture set.
enum class Sprite : std::uint8_t {
    Vanquish0,
    DungeonEntrance0,
    Outpost1,
    Outpost2,
    Outpost3,
    Mission1,
    Mission2,
    Mission3,
    Town1,
    Town2,
    Town3,
    Challenge2,
    Challenge3,
    CollArmi,
    CollArmature,
    GreenMarker,
    Note,
    Treasure,
    Pet,
    Selezione,
    CollSelezione,
    GreenSelezione,
    NoteSelezione,
    TreasureSelezione,
    Count
};
// Of their files, without the ending.
inline constexpr std::array spriteNames = {
    "picVanquish0",     "picDungeonEntrance0",
    "picOutpost1",      "picOutpost2",
    "picOutpost3",      "picMission1",
    "picMission2",      "picMission3",
    "picTown1",         "picTown2",
    "picTown3",         "picChallenge2",
    "picChallenge3",    "picCollArmi",
    "picCollArmature",  "picGreenMarker",
    "picNote",          "picTreasure",
    "picPet",           "picSelezione",
    "picCollSelezione", "picGreenSelezione",
    "picNoteSelezione", "picTreasureSelezione",
};
static_assert(spriteNames.size() == static_cast<size_t>(Sprite::Count));

// One thing that a layer draws over the region picture, in map pixels.
struct Marker {
    enum class Kind : std::uint8_t {
        Box, // left..right x top..bottom inclusive, black outline, filled with `fill`; `code` printed in bold
        Sprite // a picture with its top left corner at (left, top), magenta see-through
    };
    Kind kind = Kind::Box;
    Sprite sprite = Sprite::Count; // Sprite only
    int left = 0;
    int top = 0;
    int right = 0;  // Box only
    int bottom = 0; // Box only
    Colour fill = 0;
    QString code; // Box only; at most two characters are meant

    static Marker box(int l, int t, int r, int b, Colour fill, QString code = {}) {
        return {Kind::Box, Sprite::Count, l, t, r, b, fill, std::move(code)};
    }
    static Marker picture(Sprite sprite, int left, int top) {
        return {Kind::Sprite, sprite, left, top, 0, 0, 0, {}};
    }

    bool operator==(const Marker&) const = default;
};

// Appends markers to others.
inline void appendTo(std::vector<Marker>& markers, std::vector<Marker> more) {
    if (markers.empty())
        markers = std::move(more);
    else
        markers.insert(markers.end(), std::make_move_iterator(more.begin()),
                       std::make_move_iterator(more.end()));
}

// What a layer's markers follow from, in numbers and a text: equal ones mean equal markers. Empty: unknown.
struct MarkersFrom {
    std::vector<int> numbers;
    QString text;

    bool empty() const { return numbers.empty(); }
    bool operator==(const MarkersFrom&) const = default;
};

// What the map shows, for the layers' rules. campaign and region are -1 when it shows no region; zone is the
// identifier of the zone chosen in the panel, looked up in the region shown (0: no zone filter).
struct MapShown {
    int campaign = -1;
    int region = -1;
    int zone = 0;

    bool shows(int otherCampaign, int otherRegion) const {
        return campaign == otherCampaign && region == otherRegion;
    }
    bool passesZone(int otherZone) const { return zone == 0 || zone == otherZone; }
};

} // namespace orvinel
