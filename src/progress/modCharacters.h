#pragma once

#include "base/Complaints.h"
#include "base/Listing.h"
#include "base/PlayerFiles.h"

#include <QString>

namespace orvinel {

struct Progress;

// Two digits name a character's files, so no more can be told apart.
inline constexpr int mostCharacters = 99;

void LoadCharacters(Progress& state, PlayerFiles& files, Complaints* complaints = nullptr);

QString charactersPath(const Progress& state);
// The text of Characters.txt for the table as it stands.
QString charactersFile(const Progress& state);
SaveResult SaveCharacters(const Progress& state, PlayerFiles& files, bool evenIfChanged = false);

// "Personal/CharNN" + `suffix` below the program's folder.
QString characterFilePath(const Progress& state, int character, const QString& suffix);

// Entries of cmbCharacter: pinned, then every named character in number order.
std::vector<ListEntry> characterEntries(const Progress& state);
// Every named character in number order, with its number.
std::vector<ListEntry> namedCharacters(const Progress& state);

} // namespace orvinel
