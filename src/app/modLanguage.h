#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"

#include <QString>

namespace orvinel {

struct World;

// Fills the LanguageTable; False when Data/Language.txt is missing, empty or unreadable.
bool LoadLanguage(World& state, const Disk& disk, Complaints* complaints = nullptr);

// What is said when LoadLanguage fails; title and text.
QString missingLanguageMessage();
inline QString programName() {
    return QStringLiteral("Orvinel");
}

// Messages of our own. The language file may define them from number 201 up; when it does not, a built-in
// English text is used.
enum class OwnText {
    SaveFailed = 201, // %1 file, %2 reason
    TooManyCharacters = 202,
    TitleIsComment = 203,
    OldFileNotKept = 204,
    SkillNumberTooLarge = 205,
    ChangedOutside = 206, // %1 file
    QuitWithoutSaving = 207,
    NotOpened = 208, // %1 file
    Quit = 210,      // the map window's buttons, for screen readers
    Minimise = 211,
    Maximise = 212,
    Upkeep = 213, // what the numbers beside the skill's icons are, for screen readers
    Adrenaline = 214,
    Energy = 215,
    Recharge = 216,
    CastTime = 217,
    TooMuchData = 218
};
QString ownText(const World& state, OwnText number);

} // namespace orvinel
