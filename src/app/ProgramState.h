#pragma once

#include "app/modOptions.h"
#include "base/IndexedTable.h"
#include "layers/modCollectors.h"
#include "layers/modElite.h"
#include "layers/modGreenies.h"
#include "layers/modNotes.h"
#include "layers/modPets.h"
#include "layers/modTreasures.h"
#include "progress/CapturedSkills.h"
#include "progress/OpenedTreasures.h"
#include "progress/modCharacters.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"

#include <QString>

#include <array>
#include <vector>

namespace orvinel {

// Everything that the program knows. Filled by the loaders, changed by the dialogs, read by everybody else.
struct ProgramState {
    QString AppPath; // the program's folder, ending in '/'
    IndexedTable<QString> LanguageTable;
    Options AppOptions;
    IndexedTable<QString> Characters; // by character number; an empty name is a free number
    IndexedTable<Campaign> Campaigns;
    IndexedTable<Profession> Professions;
    IndexedTable<Collector> Collectors;
    List1<RequestType> RequestTypes; // in order of first appearance
    std::vector<int> CollectorOrder; // IDs of the collectors from 1 up, by name; kept by the loader
    IndexedTable<EliteSkill> EliteSkills;
    std::vector<int> EliteOrder; // IDs of the skills from 1 up, in the order of lists; kept by the loader
    List1<GreenItem> GreenItems;
    std::vector<int> GreenOrder; // indexes of GreenItems, by name; kept by the loader
    GreensByBoss GreensOfBosses; // kept by the loader
    UnknownCaptures CapturesBeyondTable;
    List1<Note> Notes;
    std::vector<int> NoteOrder; // indexes of Notes, by title; kept by whoever changes the notes
    List1<Treasure> Treasures;
    UnknownChests ChestsBeyondTable;
    IndexedTable<Pet> Pets;
    std::array<Colour, 9> TabColors{}; // of the panel's tabs and the information windows

    // The caption or message of that number; empty when the language file lacks it.
    QString text(int number) const { return LanguageTable.has(number) ? LanguageTable[number] : QString(); }
};

} // namespace orvinel
