#include "tools/OpenedFolder.h"

#include "app/modData.h"
#include "app/modLanguage.h"
#include "progress/modCharacters.h"
#include "tools/CommandLine.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

OpenedFolder::OpenedFolder(const QString& word) : path(programFolder(word)), disk(path), files(disk) {
    state.AppPath = path;
    if (path.isEmpty()) {
        problem = u"no folder %1"_s.arg(word);
    } else if (!LoadLanguage(state, disk)) {
        problem = u"%1 is no program folder"_s.arg(word);
    } else if (!loadTables(state, files, &complaints).empty()) {
        problem = u"%1: the data files are too large"_s.arg(word);
    } else {
        for (const Complaint& complaint : complaints.all())
            if (complaint.line == 0 && complaint.field.isEmpty()) // a whole file
                problem = u"%1: %2"_s.arg(complaint.file, complaint.reason);
    }
}

std::optional<int> characterMeant(const ProgramState& state, const QString& word, QString& reason) {
    std::vector<int> meant;
    for (const ListEntry& character : namedCharacters(state))
        if (character.text.compare(word, Qt::CaseInsensitive) == 0)
            meant.push_back(character.data);
    bool isNumber = false;
    const int number = word.toInt(&isNumber);
    if (meant.empty() && isNumber && state.Characters.has(number) && !state.Characters[number].isEmpty())
        meant.push_back(number);
    if (meant.size() == 1)
        return meant.front();
    reason = meant.empty()
                 ? u"there is no character \"%1\""_s.arg(word)
                 : u"%1 characters are called \"%2\": give the number"_s.arg(meant.size()).arg(word);
    return std::nullopt;
}

} // namespace orvinel
