#include "tools/Marks.h"

#include "app/ProgramState.h"
#include "progress/CapturedSkills.h"
#include "progress/OpenedTreasures.h"
#include "tools/Csv.h"

#include <utility>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// The one number among `numbers` that is meant.
std::optional<int> onlyOne(const std::vector<int>& numbers, const QString& what, const QString& word,
                           QString& reason) {
    if (numbers.size() == 1)
        return numbers.front();
    QStringList texts;
    for (const int number : numbers)
        texts << QString::number(number);
    reason = numbers.empty()
                 ? u"there is no %1 \"%2\""_s.arg(what, word)
                 : u"several are called \"%1\": give the number (%2)"_s.arg(word, texts.join(u", "_s));
    return std::nullopt;
}

bool sameName(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

std::optional<Mark> readMark(const ProgramState& state, const QStringList& fields, const QDate& today,
                             QString& reason) {
    const QString kind = fields[0].toLower();
    if (kind != u"skill" && kind != u"chest") {
        reason = u"\"%1\" is neither skill nor chest"_s.arg(fields[0]);
        return std::nullopt;
    }
    const QString word = fields.value(1).isEmpty() ? fields.value(2) : fields.value(1);
    Mark mark;
    mark.kind = kind == u"skill" ? Mark::Kind::Skill : Mark::Kind::Chest;
    const auto number =
        mark.kind == Mark::Kind::Skill ? skillMeant(state, word, reason) : chestMeant(state, word, reason);
    if (!number)
        return std::nullopt;
    mark.number = *number;
    if (mark.kind == Mark::Kind::Chest) {
        const auto date = fields.value(3).isEmpty() ? std::optional(today) : dateMeant(fields[3]);
        if (!date) {
            reason = u"\"%1\" is not a day (2026-03-07)"_s.arg(fields[3]);
            return std::nullopt;
        }
        mark.date = *date;
    }
    return mark;
}

// What a character has, to be put back.
struct Before {
    std::vector<std::pair<int, bool>> skills;
    std::vector<std::pair<int, QDate>> chests;
};

Before setMarks(ProgramState& state, size_t character, const std::vector<Mark>& marks) {
    Before before;
    for (const Mark& mark : marks) {
        if (mark.kind == Mark::Kind::Skill) {
            auto captured = state.EliteSkills[mark.number].Captured[character];
            if (captured == mark.undo)
                before.skills.emplace_back(mark.number, captured);
            captured = !mark.undo;
        } else {
            QDate& date = state.Treasures[mark.number].OpenedOn[character];
            const QDate wanted = mark.undo ? QDate() : mark.date;
            if (date != wanted)
                before.chests.emplace_back(mark.number, date);
            date = wanted;
        }
    }
    return before;
}

// In reverse: a thing may have been marked twice.
void putBack(ProgramState& state, size_t character, const Before& before) {
    for (auto skill = before.skills.rbegin(); skill != before.skills.rend(); ++skill)
        state.EliteSkills[skill->first].Captured[character] = skill->second;
    for (auto chest = before.chests.rbegin(); chest != before.chests.rend(); ++chest)
        state.Treasures[chest->first].OpenedOn[character] = chest->second;
}

SaveResult saveChests(const ProgramState& state, PlayerFiles& files, int character) {
    return files.save(openedTreasuresPath(state, character), openedTreasuresFile(state, character));
}

} // namespace

std::optional<int> skillMeant(const ProgramState& state, const QString& word, QString& reason) {
    std::vector<int> found;
    bool isNumber = false;
    const int number = word.toInt(&isNumber);
    if (isNumber && state.EliteSkills.has(number) && state.EliteSkills[number].Exists)
        found.push_back(number);
    else
        for (int id = 1; id <= state.EliteSkills.highest(); ++id)
            if (state.EliteSkills[id].Exists && sameName(state.EliteSkills[id].Name, word))
                found.push_back(id);
    const auto meant = onlyOne(found, u"skill"_s, word, reason);
    if (meant && !isMarkable(*meant)) {
        reason =
            u"skill %1 cannot be remembered: its number is above %2"_s.arg(*meant).arg(highestMarkableSkill);
        return std::nullopt;
    }
    return meant;
}

std::optional<int> chestMeant(const ProgramState& state, const QString& word, QString& reason) {
    std::vector<int> found;
    bool isNumber = false;
    const int number = word.toInt(&isNumber);
    if (isNumber && state.Treasures.has(number))
        return number;
    for (int n = 1; n <= state.Treasures.count(); ++n)
        if (sameName(state.Treasures[n].Name, word))
            found.push_back(n);
    return onlyOne(found, u"chest"_s, word, reason);
}

std::optional<QDate> dateMeant(const QString& word) {
    const QDate date = QDate::fromString(word, u"yyyy-MM-dd"_s);
    return date.isValid() && date.year() >= 1 ? std::optional(date) : std::nullopt;
}

QString marksCsv(const ProgramState& state, int character) {
    QString text = u"kind,id,name,date\r\n"_s;
    for (const int id : state.EliteOrder)
        if (state.EliteSkills[id].Exists && state.EliteSkills[id].capturedBy(character))
            text += csvLine({u"skill"_s, QString::number(id), state.EliteSkills[id].Name, {}});
    for (int n = 1; n <= state.Treasures.count(); ++n)
        if (const QDate date = state.Treasures[n].openedBy(character); date.isValid())
            text += csvLine(
                {u"chest"_s, QString::number(n), state.Treasures[n].Name, date.toString(u"yyyy-MM-dd"_s)});
    return text;
}

MarkList readMarks(const ProgramState& state, const QString& text, const QDate& today) {
    MarkList list;
    for (const CsvRecord& record : readCsv(text)) {
        if (record.fields[0].toLower() == u"kind" && list.marks.empty() && list.problems.isEmpty())
            continue;
        QString reason;
        if (const auto mark = readMark(state, record.fields, today, reason))
            list.marks.push_back(*mark);
        else
            list.problems << u"line %1: %2"_s.arg(record.line).arg(reason);
    }
    return list;
}

SaveResult applyMarks(ProgramState& state, PlayerFiles& files, int character, const std::vector<Mark>& marks,
                      int& changed) {
    const auto column = static_cast<size_t>(character);
    const Before before = setMarks(state, column, marks);
    changed = static_cast<int>(before.skills.size() + before.chests.size());
    SaveResult result;
    if (!before.skills.empty())
        result = saveCaptured(state, files, character);
    const bool skillsSaved = result.saved();
    if (skillsSaved && !before.chests.empty())
        result = saveChests(state, files, character);
    if (!result.saved()) {
        putBack(state, column, before);
        if (skillsSaved && !before.skills.empty())
            saveCaptured(state, files, character);
    }
    return result;
}

} // namespace orvinel
