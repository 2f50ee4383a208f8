#pragma once

#include "base/Complaints.h"
#include "base/IndexedTable.h"
#include "base/Listing.h"
#include "base/PlayerFiles.h"

#include <QString>

#include <vector>

namespace orvinel {

struct Progress;

// The file names skills with four digits: a higher number would be read back as another skill's.
inline constexpr int highestMarkableSkill = 9999;
constexpr bool isMarkable(int skill) {
    return skill >= 1 && skill <= highestMarkableSkill;
}

void LoadCapturedSkills(Progress& state, PlayerFiles& files, Complaints* complaints = nullptr);

QString capturedPath(const Progress& state, int character);
// The text of the character's file for the tables as they stand.
QString capturedFile(const Progress& state, int character);
SaveResult saveCaptured(const Progress& state, PlayerFiles& files, int character, bool evenIfChanged = false);

// Marks the skill and rewrites the character's file; when that fails the skill is not marked. Refused
// for a skill that is not markable.
SaveResult captureSkill(Progress& state, PlayerFiles& files, int skill, int character,
                        bool evenIfChanged = false);

// The named characters that have not captured the skill, which exists, in number order; the item data is the
// character's number.
std::vector<ListEntry> charactersToCapture(const Progress& state, int skill);

} // namespace orvinel
