#pragma once

#include "base/PlayerFiles.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

namespace orvinel {

struct ProgramState;

// The region that the player means by its name, letter case ignored, or as CAMPAIGN:REGION in numbers;
// nothing, with the reason, when there is none, or several of that name.
std::optional<std::pair<int, int>> regionMeant(const ProgramState& state, const QString& word,
                                               QString& reason);

// The notes of one region, or of all, as a file that the program itself could read. `count`: of them.
QString exportedNotes(const ProgramState& state, std::optional<std::pair<int, int>> region, int& count);

struct MergedNotes {
    int added = 0;
    int known = 0;        // the same title, text and place was there already
    QStringList problems; // "line N: reason"; then nothing is added
    SaveResult saved;
};
// Adds the notes of an exported file and saves them: all or none.
MergedNotes mergeNotes(ProgramState& state, PlayerFiles& files, const QByteArray& exported,
                       std::optional<std::pair<int, int>> region);

} // namespace orvinel
