#pragma once

#include "base/IndexedTable.h"
#include "layers/Content.h"

#include <QDate>

#include <map>
#include <vector>

namespace orvinel {

// By character number: what the character's file says beyond the skills of today, in file order (a campaign
// folder may be missing, or its number has five digits). Written back with every rewrite.
using UnknownCaptures = IndexedTable<std::vector<int>>;

// Chests that a character's file names and the table lacks, because their campaign folder is not here today:
// chest index to date, by character number. They go back into the file when it is rewritten.
using UnknownChests = std::map<int, std::map<int, QDate>>;

// The content with what the characters have won of it. What a file names beyond the tables is kept here.
struct Progress : Content {
    UnknownCaptures CapturesBeyondTable;
    UnknownChests ChestsBeyondTable;
};

} // namespace orvinel
