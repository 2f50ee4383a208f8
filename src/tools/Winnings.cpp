#include "tools/Winnings.h"

#include "app/ProgramState.h"
#include "progress/modCharacters.h"

#include <algorithm>

namespace orvinel {

namespace {

bool hasName(const ProgramState& state, const QString& name, int& number) {
    for (const ListEntry& character : namedCharacters(state))
        if (character.text.compare(name, Qt::CaseInsensitive) == 0) {
            number = character.data;
            return true;
        }
    return false;
}

// 0: there was no such character.
int numberBefore(const ProgramState& before, const ProgramState& now, int character) {
    int number = 0;
    if (hasName(before, now.Characters[character], number))
        return number;
    const bool renamed = before.Characters.has(character) && !before.Characters[character].isEmpty() &&
                         !hasName(now, before.Characters[character], number);
    return renamed ? character : 0;
}

} // namespace

Winnings winningsSince(const ProgramState& before, const ProgramState& now, int character) {
    const int then = numberBefore(before, now, character);
    Winnings won;
    for (const int id : now.EliteOrder)
        if (now.EliteSkills[id].capturedBy(character) &&
            !(then > 0 && before.EliteSkills.has(id) && before.EliteSkills[id].capturedBy(then)))
            won.skills.push_back(now.EliteSkills[id].ListText);
    for (int n = 1; n <= now.Treasures.count(); ++n) {
        const QDate date = now.Treasures[n].openedBy(character);
        if (date.isValid() &&
            !(then > 0 && before.Treasures.has(n) && before.Treasures[n].openedBy(then).isValid()))
            won.chests.push_back({now.Treasures[n].Name, date});
    }
    std::stable_sort(won.chests.begin(), won.chests.end(),
                     [](const auto& a, const auto& b) { return a.openedOn < b.openedOn; });
    return won;
}

} // namespace orvinel
