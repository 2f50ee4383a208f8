#pragma once

#include <QDate>
#include <QString>

#include <vector>

namespace orvinel {

struct ProgramState;

// What a character has won since some time before.
struct Winnings {
    struct Chest {
        QString name;
        QDate openedOn;
    };
    std::vector<QString> skills; // as in every list
    std::vector<Chest> chests;   // in order of their days

    bool empty() const { return skills.empty() && chests.empty(); }
};

// `character`: a number of today. Of `before` the character of the same name counts (it may have had another
// number), else that of the number if its name is gone today; else all is won since.
Winnings winningsSince(const ProgramState& before, const ProgramState& now, int character);

} // namespace orvinel
