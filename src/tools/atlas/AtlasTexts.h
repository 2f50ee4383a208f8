#pragma once

#include <QString>

namespace orvinel {

struct World;

// What the pages say beyond the program's captions. The language file may define these numbers; a built-in
// English text is used where it does not.
enum class AtlasText {
    LanguageCode = 401, // of the language file's language, as in "en"
    Atlas,
    SearchEverything,
    Found, // %1 number
    NothingFound,
    NeedsScript,
    ShowOnMap,
    BackToMap,
    ReadingLists,
    GivenBy,   // %1 collector
    DroppedBy, // %1 boss
    CarriedBy, // %1 boss
    AndMore,   // %1 number
    Layers,
    AlreadyWon,
    CapturedBy, // %1 character
    OpenedBy,   // %1 character, %2 date
    NoPicture,
    SkipToLists,
    ShownWith, // %1 library
    ZoomIn,
    ZoomOut,
    NoSuchPlace,
    InThisRegion,
    NothingHere,
    PlaceUnknown,
    ExplorableArea, // the kinds of zones, in the order of their numbers
    Outpost,
    Mission,
    Town,
    Challenge,
    Dungeon,
    Map,
    Zones,
    End
};

QString atlasText(const World& state, AtlasText number);

} // namespace orvinel
