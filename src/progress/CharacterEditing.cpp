#include "progress/CharacterEditing.h"

#include "base/TextRules.h"
#include "progress/CapturedSkills.h"
#include "progress/OpenedTreasures.h"
#include "progress/Progress.h"

#include <map>
#include <utility>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Caption allText = Caption::All;

std::vector<QString> characterFiles(const Progress& state, int number) {
    return {capturedPath(state, number), openedTreasuresPath(state, number)};
}

// Whoever had the number before left nothing behind.
void forgetProgress(Progress& state, int number) {
    for (EliteSkill& skill : state.EliteSkills)
        if (static_cast<size_t>(number) < skill.Captured.size())
            skill.Captured[static_cast<size_t>(number)] = false;
    if (state.CapturesBeyondTable.has(number))
        state.CapturesBeyondTable[number].clear();
    forgetOpenedTreasures(state, number);
}

void growProgress(Progress& state) {
    for (EliteSkill& skill : state.EliteSkills)
        skill.Captured.resize(static_cast<size_t>(state.Characters.highest()) + 1);
    growOpenedTreasures(state);
}

// A second program's or an earlier player's files would become the new character's.
SaveResult putLeftoversAside(const Progress& state, PlayerFiles& files, int number) {
    for (const QString& path : characterFiles(state, number))
        if (files.disk().length(path) >= 1)
            if (const SaveResult aside = files.putAside(path); !aside.saved())
                return aside;
    return {};
}

void takeSelection(Progress& state, int number, const SkillSelection& selection) {
    for (int id = 1; id <= state.EliteSkills.highest() && isMarkable(id); ++id)
        state.EliteSkills[id].Captured[static_cast<size_t>(number)] =
            static_cast<size_t>(id) < selection.size() && selection[static_cast<size_t>(id)];
}

SaveResult saveSelection(Progress& state, PlayerFiles& files, const CharacterEdit& edit, bool evenIfChanged) {
    const SkillSelection before = characterSelection(state, edit.number);
    takeSelection(state, edit.number, edit.selection);
    SaveResult result = saveCaptured(state, files, edit.number, evenIfChanged);
    if (!result.saved())
        takeSelection(state, edit.number, before);
    return result;
}

SaveResult saveName(Progress& state, PlayerFiles& files, int number, const QString& name,
                    bool evenIfChanged) {
    const QString before = std::exchange(state.Characters[number], name);
    SaveResult result = SaveCharacters(state, files, evenIfChanged);
    if (!result.saved())
        state.Characters[number] = before;
    return result;
}

// The captures go first: a character that is in the table has all its files.
SaveResult changeCharacter(Progress& state, PlayerFiles& files, const CharacterEdit& edit,
                           bool evenIfChanged) {
    if (SaveResult result = saveSelection(state, files, edit, evenIfChanged); !result.saved())
        return result;
    return saveName(state, files, edit.number, oneLine(edit.name), evenIfChanged);
}

// Makes room for the number in all tables and fills it. The captures' file does not stay behind alone.
SaveResult addCharacter(Progress& state, PlayerFiles& files, const CharacterEdit& edit, bool evenIfChanged) {
    state.Characters.grow(edit.number);
    growProgress(state);
    forgetProgress(state, edit.number);
    if (SaveResult result = saveSelection(state, files, edit, evenIfChanged); !result.saved())
        return result;
    SaveResult result = saveName(state, files, edit.number, oneLine(edit.name), evenIfChanged);
    if (!result.saved()) {
        forgetProgress(state, edit.number);
        files.remove(capturedPath(state, edit.number));
    }
    return result;
}

SaveResult createCharacter(Progress& state, PlayerFiles& files, CharacterEdit& edit, bool evenIfChanged) {
    CharacterEdit created = edit;
    created.number = freeCharacterNumber(state);
    if (created.number > mostCharacters)
        return {SaveResult::Outcome::Refused, {}, {}};
    if (SaveResult aside = putLeftoversAside(state, files, created.number); !aside.saved())
        return aside;
    const IndexedTable<QString> before = state.Characters;
    SaveResult result = addCharacter(state, files, created, evenIfChanged);
    if (result.saved())
        edit.number = created.number;
    else
        state.Characters = before;
    return result;
}

// The text of what the character has on the disk, by path.
std::map<QString, QString> writtenProgress(const Progress& state, const PlayerFiles& files, int number) {
    std::map<QString, QString> texts = {
        {capturedPath(state, number), capturedFile(state, number)},
        {openedTreasuresPath(state, number), openedTreasuresFile(state, number)}};
    std::erase_if(texts, [&](const auto& text) { return files.disk().length(text.first) < 1; });
    return texts;
}

// The character was taken out of the table, but not all its files could be removed: a file that stays would
// be read as somebody's at the next start. True when the character is there again with all it had.
bool bringBack(Progress& state, PlayerFiles& files, int number, const QString& name,
               const std::map<QString, QString>& removed) {
    for (const auto& [path, text] : removed)
        if (!files.save(path, text).saved())
            return false;
    return saveName(state, files, number, name, false).saved();
}

} // namespace

NameProblem checkName(const Progress& state, const QString& name, int edited) {
    const QString wanted = oneLine(name);
    if (wanted.trimmed().isEmpty())
        return NameProblem::Empty;
    for (const ListEntry& character : namedCharacters(state))
        if (character.data != edited && character.text.compare(wanted, Qt::CaseInsensitive) == 0)
            return NameProblem::Taken;
    return NameProblem::None;
}

int freeCharacterNumber(const Progress& state) {
    int number = 1;
    while (state.Characters.has(number) && !state.Characters[number].isEmpty())
        ++number;
    return number;
}

SkillSelection characterSelection(const Progress& state, int number) {
    SkillSelection selection;
    for (const EliteSkill& skill : state.EliteSkills)
        selection.push_back(skill.capturedBy(number));
    return selection;
}

std::vector<ListEntry> editorSkillEntries(const Progress& state, int campaign, int profession) {
    std::vector<ListEntry> entries;
    for (int id = 1; id <= state.EliteSkills.highest(); ++id) {
        const EliteSkill& skill = state.EliteSkills[id];
        if ((campaign < 0 || skill.Campaign == campaign) &&
            (profession < 0 || skill.Profession == profession))
            entries.push_back({skill.ListText, id});
    }
    return entries;
}

std::vector<ListEntry> editorProfessionEntries(const Progress& state) {
    std::vector<ListEntry> entries = {{pinnedText(state.text(allText)), -1}};
    for (int p = 1; p <= state.Professions.highest(); ++p)
        if (!state.Professions[p].Name.isEmpty())
            entries.push_back({state.Professions[p].Name, p});
    return entries;
}

void selectListed(SkillSelection& selection, ListedItems listed, bool selected) {
    for (const int id : listed)
        if (isMarkable(id))
            selection[static_cast<size_t>(id)] = selected;
}

void invertListed(SkillSelection& selection, ListedItems listed) {
    for (const int id : listed)
        if (isMarkable(id))
            selection[static_cast<size_t>(id)] = !selection[static_cast<size_t>(id)];
}

SaveResult saveCharacter(Progress& state, PlayerFiles& files, CharacterEdit& edit, bool evenIfChanged) {
    return edit.number < 1 ? createCharacter(state, files, edit, evenIfChanged)
                           : changeCharacter(state, files, edit, evenIfChanged);
}

SaveResult deleteCharacter(Progress& state, PlayerFiles& files, int number, bool evenIfChanged) {
    const QString name = state.Characters[number];
    if (SaveResult result = saveName(state, files, number, {}, evenIfChanged); !result.saved())
        return result;
    std::map<QString, QString> removed;
    SaveResult result;
    for (const auto& [path, text] : writtenProgress(state, files, number)) {
        result = files.remove(path);
        if (!result.saved())
            break;
        removed.emplace(path, text);
    }
    if (result.saved() || !bringBack(state, files, number, name, removed))
        forgetProgress(state, number);
    return result;
}

} // namespace orvinel
