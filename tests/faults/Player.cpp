#include "faults/Player.h"

#include "app/modData.h"
#include "app/modLanguage.h"
#include "layers/modNotes.h"
#include "progress/CapturedSkills.h"
#include "progress/CharacterEditing.h"
#include "progress/OpenedTreasures.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int skills = 40;
constexpr int chests = 12;
constexpr int fewestCharacters = 2;

} // namespace

std::map<QString, QByteArray> faultWorld() {
    QByteArray list;
    for (int id = 1; id <= skills; ++id)
        list += QByteArray::number(id) + "\t1\tSkill " + QByteArray::number(id) + "\r\n";
    QByteArray treasures;
    for (int t = 1; t <= chests; ++t)
        treasures += "Chest\t" + QByteArray::number(20 * t) + "\t9\t1\t5\r\n";
    return {{u"Data/Language.txt"_s, "1\tText\r\n"},
            {u"Campaign.03.Sunhollow/Regions.txt"_s, "1\tFjord\r\n"},
            {u"Campaign.03.Sunhollow/EliteList.txt"_s, list},
            {u"Campaign.03.Sunhollow/Treasures.txt"_s, treasures},
            {u"Personal/Characters.txt"_s, "01\tAda\r\n02\tBert\r\n"}};
}

Player::Player(Disk& disk, const QString& folder) : files_(disk) {
    state.AppPath = folder;
    LoadLanguage(state, disk);
    loadTables(state, files_);
}

int Player::someCharacter(int n) const {
    const std::vector<ListEntry> named = namedCharacters(state);
    return named.empty() ? 1 : named[static_cast<size_t>(n) % named.size()].data;
}

SaveResult Player::createCharacter(int n) {
    CharacterEdit edit{-1, u"Hero %1"_s.arg(n), SkillSelection(skills + 1)};
    edit.selection[static_cast<size_t>(n % skills) + 1] = true;
    return saveCharacter(state, files_, edit);
}

SaveResult Player::changeCharacter(int n) {
    CharacterEdit edit{someCharacter(n), u"Changed %1"_s.arg(n), SkillSelection(skills + 1)};
    for (int id = 1 + n % 3; id <= skills; id += 3)
        edit.selection[static_cast<size_t>(id)] = true;
    return saveCharacter(state, files_, edit);
}

SaveResult Player::removeCharacter() {
    const std::vector<ListEntry> named = namedCharacters(state);
    return static_cast<int>(named.size()) > fewestCharacters
               ? deleteCharacter(state, files_, named[named.size() / 2].data)
               : SaveResult();
}

SaveResult Player::capture(int n) {
    return captureSkill(state, files_, n % skills + 1, someCharacter(n));
}

SaveResult Player::open(int n) {
    return openTreasure(state, files_, {n % chests + 1, someCharacter(n), QDate(2026, 1, 1).addDays(n)});
}

SaveResult Player::writeNote(int n, int bulk, int index) {
    NoteEdit edit{index, u"Note %1"_s.arg(n), QString(bulk, QChar(u'a' + n % 26)), 3, 1, n, n};
    return storeNote(state, files_, edit);
}

SaveResult Player::dropNote() {
    for (int index = 1; index <= state.Notes.count(); ++index)
        if (!state.Notes[index].ShortDesc.isEmpty())
            return deleteNote(state, files_, index);
    return {};
}

SaveResult Player::saveOptions(int n) {
    state.AppOptions = {.Zone = 0, .PosX = n}; // the zone is read as 0 whatever was written
    return files_.save(optionsPath(state), optionsFile(state.AppOptions));
}

bool Player::step(int n, int bulk) {
    switch (n % 11) {
    case 0:
        return createCharacter(n).saved();
    case 1:
    case 6:
        return capture(n).saved();
    case 2:
        return open(n).saved();
    case 3:
    case 8:
        return writeNote(n, bulk, -1).saved();
    case 4:
        return writeNote(n, bulk / 2, state.Notes.count()).saved();
    case 5:
        return changeCharacter(n).saved();
    case 7:
        return saveOptions(n).saved();
    case 9:
        return dropNote().saved();
    default:
        return removeCharacter().saved();
    }
}

QString progressOf(const ProgramState& state) {
    QString text;
    for (const ListEntry& character : namedCharacters(state))
        text += u"%1 %2: %3| %4\n"_s.arg(character.data)
                    .arg(character.text, capturedFile(state, character.data),
                         openedTreasuresFile(state, character.data));
    return text + notesFile(state);
}

} // namespace orvinel
