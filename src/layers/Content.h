#pragma once

#include "base/IndexedTable.h"
#include "base/TextFile.h"
#include "layers/Collector.h"
#include "layers/EliteSkill.h"
#include "layers/GreenItem.h"
#include "layers/Note.h"
#include "layers/Pet.h"
#include "layers/Treasure.h"
#include "world/World.h"

#include <vector>

namespace orvinel {

// The world with what is to be found in it. Skills, collectors and items stay in the object that loaded them:
// only notes, whose texts are their own, may move to another. Filled by the loaders; notes are changed by
// their dialog too.
struct Content : World {
    IndexedTable<Collector> Collectors;
    FileTexts CollectorTexts;        // what their texts are parts of; so for skills and items below
    List1<RequestType> RequestTypes; // in order of first appearance
    std::vector<int> CollectorOrder; // IDs of the collectors from 1 up, by name; kept by the loader
    IndexedTable<EliteSkill> EliteSkills;
    FileTexts EliteTexts;
    std::vector<int> EliteOrder; // IDs of the skills from 1 up, in the order of lists; kept by the loader
    List1<GreenItem> GreenItems;
    FileTexts GreenTexts;
    std::vector<int> GreenOrder; // indexes of GreenItems, by name; kept by the loader
    GreensByBoss GreensOfBosses; // kept by the loader
    List1<Note> Notes;
    std::vector<int> NoteOrder; // indexes of Notes, by title; kept by whoever changes the notes
    List1<Treasure> Treasures;
    IndexedTable<Pet> Pets;
};

} // namespace orvinel
