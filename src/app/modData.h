#pragma once

#include "app/Complaints.h"
#include "app/Desktop.h"
#include "app/PlayerFiles.h"

namespace orvinel {

struct ProgramState;

// Reads everything below AppPath into the tables, in the one order in which later loaders find what they
// need. Moves files of older versions into Personal and swaps in a pending updater first.
void LoadAll(ProgramState& state, PlayerFiles& files, Desktop& desktop);

// Only the reading part of LoadAll: changes nothing on the disk.
void loadTables(ProgramState& state, PlayerFiles& files, Complaints* complaints = nullptr);

// First start: brings the characters and captured skills from Data into a new Personal folder. A start that
// was cut off in the middle is repeated the next time. File errors are ignored.
void MoveToPersonalFolder(const ProgramState& state, Disk& disk);

// Replaces update.exe by update.dat when that has at least one byte. Any file error ends it silently.
void InstallPendingUpdater(const ProgramState& state, Disk& disk, Desktop& desktop);

} // namespace orvinel
