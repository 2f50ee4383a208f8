#pragma once

#include "base/Caption.h"
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

    // Empty for a caption below 201 that the language file lacks.
    QString text(Caption caption) const;
};

} // namespace orvinel
