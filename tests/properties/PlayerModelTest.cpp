// Whatever a player does in whatever order, the files hold what a model of ten lines predicts, and a start
// reads the same.

#include "app/ProgramState.h"
#include "app/modData.h"
#include "layers/modNotes.h"
#include "progress/CapturedSkills.h"
#include "progress/CharacterEditing.h"
#include "progress/OpenedTreasures.h"
#include "progress/modCharacters.h"
#include "support/MemoryDisk.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <map>
#include <memory>
#include <set>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int skills = 9;
constexpr int chests = 4;

// What the player has, as a player would count it.
struct Model {
    struct Written {
        QString title;
        QString body;
        int x = 0;
    };
    std::map<int, QString> names;
    std::map<int, std::set<int>> captured;
    std::map<int, std::map<int, QDate>> opened;
    std::vector<Written> notes;

    int lowestFree() const {
        int number = 1;
        while (names.contains(number))
            ++number;
        return number;
    }
    QByteArray characters() const {
        QString text;
        for (const auto& [number, name] : names)
            text += u"0%1\t%2\r\n"_s.arg(number).arg(name);
        return text.toLatin1();
    }
    QByteArray captures(int number) const {
        QByteArray text;
        if (const auto found = captured.find(number); found != captured.end())
            for (const int skill : found->second)
                text += "000" + QByteArray::number(skill) + "\r\n";
        return text;
    }
    QByteArray openings(int number) const {
        QByteArray text;
        if (const auto found = opened.find(number); found != opened.end())
            for (const auto& [chest, date] : found->second)
                text += "000" + QByteArray::number(chest) + "\t" + date.toString(u"ddMMyyyy"_s).toLatin1() +
                        "\r\n";
        return text;
    }
    QByteArray notesText() const {
        QString text;
        for (const auto& [title, body, x] : notes)
            text += u"%1\t%2\t%3\t20\t3\t1\r\n"_s.arg(title, QString(body).replace(u"\n"_s, u"{#ENTER#}"_s))
                        .arg(x);
        return text.toLatin1();
    }
};

// The program's tables and files, without windows.
class Session {
  public:
    Session() {
        disk.put(u"/o/Data/Language.txt"_s, "9\tAll\r\n");
        disk.put(u"/o/Campaign.03.Sunhollow/Regions.txt"_s, "1\tMarsh\r\n");
        QByteArray list, boxes;
        for (int i = 1; i <= skills; ++i)
            list += QByteArray::number(i) + "\t1\tSkill" + QByteArray::number(i) + "\r\n";
        for (int i = 1; i <= chests; ++i)
            boxes += "Box\t" + QByteArray::number(50 * i) + "\t50\t1\t0\r\n";
        disk.put(u"/o/Campaign.03.Sunhollow/EliteList.txt"_s, list);
        disk.put(u"/o/Campaign.03.Sunhollow/Treasures.txt"_s, boxes);
        restart();
    }

    void restart() {
        state = std::make_unique<ProgramState>();
        state->AppPath = u"/o/"_s;
        files = std::make_unique<PlayerFiles>(disk);
        loadTables(*state, *files);
    }
    QByteArray file(const QString& name) const { return disk.content(u"/o/Personal/"_s + name); }

    MemoryDisk disk;
    std::unique_ptr<ProgramState> state;
    std::unique_ptr<PlayerFiles> files;
};

int oneOf(const std::map<int, QString>& names) {
    return std::next(names.begin(), *rc::gen::inRange<int>(0, static_cast<int>(names.size())))->first;
}

// Letters in both cases and one beyond ASCII, so that names meet again.
QString word() {
    const auto letters = *rc::gen::container<std::string>(rc::gen::element('a', 'A', 'b', '\xE9', ' '));
    return QString::fromLatin1(letters.data(), static_cast<qsizetype>(letters.size()));
}

SkillSelection selectionOf(const std::set<int>& chosen) {
    SkillSelection selection(skills + 1, false);
    for (const int skill : chosen)
        selection[static_cast<size_t>(skill)] = true;
    return selection;
}

void edit(Session& session, Model& model, int number) {
    const QString name = word();
    const auto chosen = *rc::gen::container<std::set<int>>(rc::gen::inRange(1, skills + 1));
    bool taken = name.trimmed().isEmpty();
    for (const auto& [other, has] : model.names)
        taken = taken || (other != number && has.compare(name, Qt::CaseInsensitive) == 0);
    RC_ASSERT(taken == (checkName(*session.state, name, number) != NameProblem::None));
    if (taken || (number < 0 && model.lowestFree() > 8))
        return;
    CharacterEdit change{number, name, selectionOf(chosen)};
    RC_ASSERT(saveCharacter(*session.state, *session.files, change).saved());
    RC_ASSERT(change.number == (number < 0 ? model.lowestFree() : number));
    model.names[change.number] = name;
    model.captured[change.number] = chosen;
}

void capture(Session& session, Model& model) {
    const int number = oneOf(model.names), skill = *rc::gen::inRange(1, skills + 1);
    RC_ASSERT(captureSkill(*session.state, *session.files, skill, number).saved());
    model.captured[number].insert(skill);
}

void open(Session& session, Model& model) {
    const int number = oneOf(model.names), chest = *rc::gen::inRange(1, chests + 1);
    const QDate date = QDate(2026, 1, 1).addDays(*rc::gen::inRange(0, 400));
    RC_ASSERT(openTreasure(*session.state, *session.files, {chest, number, date}).saved());
    model.opened[number][chest] = date;
}

void remove(Session& session, Model& model) {
    const int number = oneOf(model.names);
    RC_ASSERT(deleteCharacter(*session.state, *session.files, number).saved());
    model.names.erase(number);
    model.captured.erase(number);
    model.opened.erase(number);
}

// A slot of a deleted note stays until the program ends, so notes are told by their place among those that
// are left.
int slotOf(const Session& session, size_t place) {
    for (int slot = 1; slot <= session.state->Notes.count(); ++slot)
        if (!session.state->Notes[slot].ShortDesc.isEmpty() && place-- == 0)
            return slot;
    return -1;
}

void note(Session& session, Model& model) {
    const QString title = word().trimmed(), body = word().trimmed() + u"\n"_s + word().trimmed();
    if (title.isEmpty())
        return;
    NoteEdit change{-1, title, body, 3, 1, *rc::gen::inRange(0, 99), 20};
    if (!model.notes.empty() && *rc::gen::arbitrary<bool>()) {
        const auto place = *rc::gen::inRange<size_t>(0, model.notes.size());
        change.index = slotOf(session, place);
        model.notes[place] = {title, body, model.notes[place].x};
    } else {
        model.notes.push_back({title, body, change.x});
    }
    RC_ASSERT(storeNote(*session.state, *session.files, change).saved());
}

void tear(Session& session, Model& model) {
    const auto place = *rc::gen::inRange<size_t>(0, model.notes.size());
    RC_ASSERT(deleteNote(*session.state, *session.files, slotOf(session, place)).saved());
    model.notes.erase(model.notes.begin() + static_cast<ptrdiff_t>(place));
}

void step(Session& session, Model& model) {
    switch (*rc::gen::inRange(0, 8)) {
    case 0:
        return edit(session, model, -1);
    case 1:
        return model.names.empty() ? void() : edit(session, model, oneOf(model.names));
    case 2:
    case 3:
        return model.names.empty() ? void() : capture(session, model);
    case 4:
        return model.names.empty() ? void() : open(session, model);
    case 5:
        return note(session, model);
    case 6:
        if (!model.notes.empty())
            tear(session, model);
        return model.names.empty() || *rc::gen::inRange(0, 3) ? void() : remove(session, model);
    default:
        session.restart();
    }
}

void compare(const Session& session, const Model& model) {
    RC_ASSERT(session.file(u"Characters.txt"_s) == model.characters());
    RC_ASSERT(session.file(u"Notes.txt"_s) == model.notesText());
    for (int number = 1; number <= 9; ++number) {
        const QString name = u"Char0%1"_s.arg(number);
        RC_ASSERT(session.file(name + u"CapElite.txt"_s) == model.captures(number));
        RC_ASSERT(session.file(name + u"OpenedTreasures.txt"_s) == model.openings(number));
        for (int skill = 1; skill <= skills; ++skill)
            RC_ASSERT(session.state->EliteSkills[skill].capturedBy(number) ==
                      (model.captured.contains(number) && model.captured.at(number).contains(skill)));
    }
}

RC_GTEST_PROP(PlayerModel, filesHoldWhatWasDoneInWhateverOrder, ()) {
    Session session;
    Model model;
    const int steps = *rc::gen::inRange(1, 40);
    for (int i = 0; i < steps; ++i) {
        step(session, model);
        compare(session, model);
    }
    session.restart();
    compare(session, model);
    for (const QString& name : session.disk.list(u"/o/Personal"_s))
        RC_ASSERT(!name.contains(u".bak"_s)); // nothing that the program wrote itself is strange to it
}

} // namespace
} // namespace orvinel
