#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"

#include <QString>

namespace orvinel {

struct World;

// Fills the LanguageTable; False when Data/Language.txt is missing, empty or unreadable.
bool LoadLanguage(World& state, const Disk& disk, Complaints* complaints = nullptr);

// What is said when LoadLanguage fails; the text; the title is programName().
QString missingLanguageMessage();
inline QString programName() {
    return QStringLiteral("Orvinel");
}

} // namespace orvinel
