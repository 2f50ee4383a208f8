#pragma once

#include "app/ProgramState.h"
#include "base/FileDisk.h"
#include "base/PlayerFiles.h"
#include "tools/WorldWalk.h"

#include <QString>

#include <optional>

namespace orvinel {

// A program folder with everything that the program would read from it.
struct OpenedFolder {
    // `word`: as the player named it.
    explicit OpenedFolder(const QString& word);
    OpenedFolder(const OpenedFolder&) = delete;
    OpenedFolder& operator=(const OpenedFolder&) = delete;

    QString path; // absolute, ending in '/'; empty when there is no such folder
    FileDisk disk;
    PlayerFiles files;
    ProgramState state;
    ComplaintList complaints;
    QString problem; // empty: all is read
};

// The named character that the player means by its name, letter case ignored, or by its number; nothing,
// with the reason, when none or several have that name.
std::optional<int> characterMeant(const ProgramState& state, const QString& word, QString& reason);

} // namespace orvinel
