#pragma once

#include "base/Caption.h"

#include <QString>

namespace orvinel {

struct World;

// What the tools say beyond the program's captions. The language file may define these numbers; a built-in
// English text is used where it does not.
enum class ToolText {
    LanguageCode = static_cast<int>(Caption::LanguageCode),
    ProgressTitle,
    World,
    Campaign,
    Region,
    Profession,
    Zone,
    Skills,
    Chests,
    ByCampaign,
    ByRegion,
    ByProfession,
    Grid,
    ChestPlot,
    StillToDo,
    DoneOf,
    NothingMissing,
    NoZone,
    NoPlace,
    CarriedBy,
    MarkerCode,
    GreenItem,
    Chest,
    NoCharacters,
    WonSince,
    NothingWon,
    Characters,
    Captured,
    OpenedOn,
    Marked,
    TakenBack,
    AlreadySo,
    NotesMerged,
    NotesExported,
    Month,
    Places,
    Waiting,
    End
};

QString toolText(const World& state, ToolText number);

} // namespace orvinel
