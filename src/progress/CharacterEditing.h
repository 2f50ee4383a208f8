#pragma once

#include "base/Listing.h"
#include "base/PlayerFiles.h"
#include "progress/modCharacters.h"

#include <QString>

#include <vector>

namespace orvinel {

struct Progress;

enum class NameProblem {
    None,
    Empty, // nothing but blanks
    Taken  // another character's name, letter case ignored
};
// `name` as it stands in the field; `edited` is the number of the character that is to have it, -1 for a new
// one.
NameProblem checkName(const Progress& state, const QString& name, int edited);

// The number that a new character gets: the lowest free one. Above mostCharacters: there is no room.
int freeCharacterNumber(const Progress& state);

// By skill ID, 0..highest: what the character has captured; all False for number -1, a new character.
using SkillSelection = std::vector<bool>;
SkillSelection characterSelection(const Progress& state, int number);

// The skills that the editor lists, in ID order, with their IDs. `campaign` and `profession` are -1 for all.
std::vector<ListEntry> editorSkillEntries(const Progress& state, int campaign, int profession);
// The editor's choice of professions: pinned with -1, then those with a name in number order. (Its choice of
// campaigns has the panel's entries.)
std::vector<ListEntry> editorProfessionEntries(const Progress& state);

// Skills that are not markable keep their state: what is shown as checked can be saved.
void selectListed(SkillSelection& selection, ListedItems listed, bool selected);
void invertListed(SkillSelection& selection, ListedItems listed);

struct CharacterEdit {
    int number = -1; // -1: a new character
    QString name;    // as it stands in the field; checkName has nothing against it
    SkillSelection selection;
};

// Writes the character's captures and the table of characters, and takes over into the tables what has been
// written. A new character comes whole or not at all, and files that lie there for its number are put aside
// first; of an existing one the captures may be saved although the name could not be. Skills that are not
// markable stay as they are. Refused when there is no number left for a new one. On success `edit.number` is
// the character's number.
SaveResult saveCharacter(Progress& state, PlayerFiles& files, CharacterEdit& edit,
                         bool evenIfChanged = false);

// The character goes whole or not at all: when one of its files cannot be removed, it comes back with all it
// had. The table is written first, so that a program that is killed half-way leaves no character without its
// files. Only when coming back fails as well is the character gone with a file left, which the result names
// and which is put aside when a new character takes the number.
SaveResult deleteCharacter(Progress& state, PlayerFiles& files, int number, bool evenIfChanged = false);

} // namespace orvinel
