#pragma once

#include "base/Complaints.h"
#include "base/Desktop.h"
#include "base/PlayerFiles.h"

namespace orvinel {

struct ProgramState;

// Reads everything below AppPath into the tables, each loader after those of whose tables it reads. Moves
// files of older versions into Personal and swaps in a pending updater first. When the folder holds more than
// largestDataSum, the player is told what was left out.
void LoadAll(ProgramState& state, PlayerFiles& files, Desktop& desktop);

// Bytes that all tables are read from, hundreds of times what a world takes: a byte of text can take thirty
// in memory, and the program is to stay below 1 GB with whatever folder.
inline constexpr qint64 largestDataSum = 24ll * 1024 * 1024;

// Only the reading part of LoadAll: changes nothing on the disk. Gives the paths of the files that were left
// out because all of them together are larger than largestDataSum.
std::vector<QString> loadTables(ProgramState& state, PlayerFiles& files, Complaints* complaints = nullptr);

// First start: brings the characters and captured skills from Data into a new Personal folder; a file of that
// name is put aside as .bak. A start that was cut off in the middle is repeated the next time, and what one
// left in Personal.new is brought into a Personal that lacks it. File errors are ignored.
void MoveToPersonalFolder(const ProgramState& state, Disk& disk);

// Replaces update.exe by update.dat, made runnable, when that has at least one byte. Any file error ends it
// silently.
void InstallPendingUpdater(const ProgramState& state, Disk& disk, Desktop& desktop);

} // namespace orvinel
