#pragma once

#include "base/PlayerFiles.h"

#include <QDate>
#include <QString>

#include <optional>
#include <vector>

namespace orvinel {

struct ProgramState;

// A skill or chest that is to be marked for a character, or whose mark is to be taken back.
struct Mark {
    enum class Kind { Skill, Chest };
    Kind kind = Kind::Skill;
    int number = 0; // the skill's ID or the chest's number
    QDate date;     // of a chest; invalid: take the mark back
    bool undo = false;

    bool operator==(const Mark&) const = default;
};

// The skill or chest that the player means by its number or its name, letter case ignored; nothing, with the
// reason, when there is none, or several of that name, or the program could not remember it.
std::optional<int> skillMeant(const ProgramState& state, const QString& word, QString& reason);
std::optional<int> chestMeant(const ProgramState& state, const QString& word, QString& reason);

// "2026-03-07"; nothing when that is no day.
std::optional<QDate> dateMeant(const QString& word);

// What the character has, as a table that readMarks takes back: kind,id,name,date.
QString marksCsv(const ProgramState& state, int character);

// A table of marks: kind ("skill" or "chest"), id, name, date; the id may be empty when there is a name, the
// date of a chest when it is today. A first line that begins with "kind" is a heading.
struct MarkList {
    std::vector<Mark> marks;
    QStringList problems; // "line N: reason"
};
MarkList readMarks(const ProgramState& state, const QString& text, const QDate& today);

// Marks and saves them all, or none of them: captures and chests have a file each, and when the second cannot
// be saved the first is put back. `changed` counts the marks that were not so before.
SaveResult applyMarks(ProgramState& state, PlayerFiles& files, int character, const std::vector<Mark>& marks,
                      int& changed);

} // namespace orvinel
