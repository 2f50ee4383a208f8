#pragma once

#include "base/Complaints.h"
#include "base/Listing.h"
#include "base/PlayerFiles.h"

#include <QString>

namespace orvinel {

struct ProgramState;

// Two digits name a character's files, so no more can be told apart.
inline constexpr int mostCharacters = 99;

void LoadCharacters(ProgramState& state, PlayerFiles& files, Complaints* complaints = nullptr);

QString charactersPath(const ProgramState& state);
// The text of Characters.txt for the table as it stands.
QString charactersFile(const ProgramState& state);
SaveResult SaveCharacters(const ProgramState& state, PlayerFiles& files, bool evenIfChanged = false);

// "Personal/CharNN" + `suffix` below the program's folder.
QString characterFilePath(const ProgramState& state, int character, const QString& suffix);

// Entries of cmbCharacter: pinned, then every named character in number order.
std::vector<ListEntry> characterEntries(const ProgramState& state);
// Every named character in number order, with its number.
std::vector<ListEntry> namedCharacters(const ProgramState& state);

} // namespace orvinel
