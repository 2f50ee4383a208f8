#include "progress/CapturedSkills.h"

#include "base/TextFile.h"
#include "progress/Progress.h"
#include "progress/modCharacters.h"

#include <algorithm>
#include <limits>
#include <set>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

void loadCaptures(Progress& state, PlayerFiles& files, int character, Complaints* complaints) {
    const QString path = capturedPath(state, character);
    TextFile file(files.source(), path, complaints);
    while (file.nextLine()) {
        if (!file.hasFields(1) || file.line().trimmed().isEmpty())
            continue;
        const auto id = file.integer(0, "skill", 1, std::numeric_limits<int>::max());
        if (!id)
            continue;
        file.keepsOnly(1, {0});
        if (state.EliteSkills.has(*id))
            state.EliteSkills[*id].Captured[static_cast<size_t>(character)] = true;
        if (!state.EliteSkills.has(*id) || !isMarkable(*id))
            state.CapturesBeyondTable.grow(character).push_back(*id);
    }
    files.loaded(path, file);
}

QString captureLine(int id) {
    return QString::number(id).rightJustified(4, u'0') + u"\r\n"_s;
}

} // namespace

void LoadCapturedSkills(Progress& state, PlayerFiles& files, Complaints* complaints) {
    state.CapturesBeyondTable.reset();
    for (int c = 1; c <= state.Characters.highest(); ++c)
        loadCaptures(state, files, c, complaints);
}

QString capturedPath(const Progress& state, int character) {
    return characterFilePath(state, character, u"CapElite.txt"_s);
}

QString capturedFile(const Progress& state, int character) {
    QString text;
    for (int id = 1; id <= std::min(state.EliteSkills.highest(), highestMarkableSkill); ++id)
        if (state.EliteSkills[id].capturedBy(character))
            text += captureLine(id);
    if (state.CapturesBeyondTable.has(character)) {
        const std::vector<int>& beyond = state.CapturesBeyondTable[character];
        for (const int id : std::set<int>(beyond.begin(), beyond.end()))
            text += captureLine(id);
    }
    return text;
}

SaveResult saveCaptured(const Progress& state, PlayerFiles& files, int character, bool evenIfChanged) {
    return files.save(capturedPath(state, character), capturedFile(state, character), evenIfChanged);
}

SaveResult captureSkill(Progress& state, PlayerFiles& files, int skill, int character, bool evenIfChanged) {
    if (!isMarkable(skill))
        return {SaveResult::Outcome::Refused, {}, {}};
    auto captured = state.EliteSkills[skill].Captured[static_cast<size_t>(character)];
    const bool before = captured;
    captured = true;
    SaveResult result = saveCaptured(state, files, character, evenIfChanged);
    if (!result.saved())
        captured = before;
    return result;
}

std::vector<ListEntry> charactersToCapture(const Progress& state, int skill) {
    std::vector<ListEntry> entries = namedCharacters(state);
    std::erase_if(entries, [&](const ListEntry& character) {
        return state.EliteSkills[skill].capturedBy(character.data);
    });
    return entries;
}

} // namespace orvinel
