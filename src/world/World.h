#pragma once

#include "base/IndexedTable.h"
#include "world/Campaign.h"
#include "world/Profession.h"

#include <QString>

namespace orvinel {

// The ground of everything that the program knows: what every layer stands on. Filled by the loaders.
struct World {
    QString AppPath; // the program's folder, ending in '/'
    IndexedTable<QString> LanguageTable;
    IndexedTable<QString> Characters; // by character number; an empty name is a free number
    IndexedTable<Campaign> Campaigns;
    IndexedTable<Profession> Professions;

    // The caption or message of that number; empty when the language file lacks it.
    QString text(int number) const { return LanguageTable.has(number) ? LanguageTable[number] : QString(); }
};

} // namespace orvinel
