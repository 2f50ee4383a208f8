#include "progress/modCharacters.h"

#include "base/TextFile.h"
#include "progress/Progress.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

void take(QString& name, TextFile& file) {
    file.keepsOnly(2, {0});
    if (!name.isEmpty() && name != file.field(1))
        file.skip(u"number"_s, u"a second line of this number, after \"%1\""_s.arg(name));
    name = file.text(1);
}

} // namespace

void LoadCharacters(Progress& state, PlayerFiles& files, Complaints* complaints) {
    state.Characters.reset();
    TextFile file(files.source(), charactersPath(state), complaints);
    while (file.nextLine()) {
        if (!file.hasFields(2))
            continue;
        if (const auto number = file.integer(0, "number", 1, mostCharacters))
            take(state.Characters.grow(*number), file);
    }
    files.loaded(charactersPath(state), file);
}

QString charactersPath(const Progress& state) {
    return state.AppPath + u"Personal/Characters.txt"_s;
}

QString charactersFile(const Progress& state) {
    QString text;
    for (const ListEntry& character : namedCharacters(state))
        text += fixedDigits(character.data, 2) + u'\t' + character.text + u"\r\n"_s;
    return text;
}

SaveResult SaveCharacters(const Progress& state, PlayerFiles& files, bool evenIfChanged) {
    return files.save(charactersPath(state), charactersFile(state), evenIfChanged);
}

QString characterFilePath(const Progress& state, int character, const QString& suffix) {
    return state.AppPath + u"Personal/Char"_s + fixedDigits(character, 2) + suffix;
}

std::vector<ListEntry> characterEntries(const Progress& state) {
    std::vector<ListEntry> entries = namedCharacters(state);
    entries.insert(entries.begin(), {pinnedText(state.text(Caption::AnyCharacter)), 0});
    return entries;
}

std::vector<ListEntry> namedCharacters(const Progress& state) {
    std::vector<ListEntry> entries;
    for (int n = 1; n <= state.Characters.highest(); ++n)
        if (!state.Characters[n].isEmpty())
            entries.push_back({state.Characters[n], n});
    return entries;
}

} // namespace orvinel
