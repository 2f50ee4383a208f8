// orvinel-mark: what a character has captured and opened, marked without the program.

#include "base/SingleInstance.h"
#include "tools/CommandLine.h"
#include "tools/Csv.h"
#include "tools/Marks.h"
#include "tools/OpenedFolder.h"
#include "tools/ToolText.h"

#include <QFile>

using namespace orvinel;
using namespace Qt::Literals::StringLiterals;

namespace {

const ToolTable table = {
    u"orvinel-mark"_s,
    u"Marks a skill as captured or a chest as opened, or takes the mark back; without an option it lists the marks."_s,
    {{u"FOLDER"_s, u"The program's folder; Orvinel must not be running in it."_s},
     {u"CHARACTER"_s, u"The character's name or number."_s}},
    {{u"skill"_s, u"Mark this skill; may be given several times."_s, u"ID|NAME"_s},
     {u"chest"_s, u"Mark this chest; may be given several times."_s, u"NUMBER|NAME"_s},
     {u"date"_s, u"The day on which the chests were opened (2026-03-07), instead of today."_s, u"DATE"_s},
     {u"undo"_s, u"Take the marks back."_s},
     {u"import"_s, u"Mark what this table (CSV: kind,id,name,date) names; all of it or nothing."_s,
      u"FILE"_s}}};

// The marks that the options name; nothing when one of them makes no sense, which has been said.
std::optional<std::vector<Mark>> marksOf(const CommandLine& line, const ProgramState& state) {
    QString reason;
    std::vector<Mark> marks;
    const bool undo = line.has(u"undo"_s);
    const auto date =
        line.has(u"date"_s) ? dateMeant(line.value(u"date"_s)) : std::optional(QDate::currentDate());
    if (!date)
        reason = u"\"%1\" is not a day (2026-03-07)"_s.arg(line.value(u"date"_s));
    for (const QString& word : line.values(u"skill"_s))
        if (const auto skill = skillMeant(state, word, reason))
            marks.push_back({Mark::Kind::Skill, *skill, {}, undo});
    for (const QString& word : line.values(u"chest"_s))
        if (const auto chest = chestMeant(state, word, reason))
            marks.push_back({Mark::Kind::Chest, *chest, date.value_or(QDate()), undo});
    if (reason.isEmpty())
        return marks;
    line.refuse(reason);
    return std::nullopt;
}

std::optional<std::vector<Mark>> marksOfFile(const CommandLine& line, const ProgramState& state) {
    QFile file(line.value(u"import"_s));
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestDataFile) {
        line.refuse(u"%1: %2"_s.arg(file.fileName(), file.isOpen() ? u"too large"_s : file.errorString()));
        return std::nullopt;
    }
    const MarkList list = readMarks(state, tableText(file.readAll()), QDate::currentDate());
    for (const QString& problem : list.problems)
        line.refuse(u"%1: %2"_s.arg(file.fileName(), problem));
    return list.problems.isEmpty() ? std::optional(list.marks) : std::nullopt;
}

int apply(const CommandLine& line, OpenedFolder& folder, int character, const std::vector<Mark>& marks) {
    int changed = 0;
    const SaveResult result = applyMarks(folder.state, folder.files, character, marks, changed);
    if (!result.saved())
        return line.refuse(u"%1: %2"_s.arg(result.file, result.reason));
    const ToolText done = line.has(u"undo"_s) ? ToolText::TakenBack : ToolText::Marked;
    print(u"%1 %2, %3 %4\n"_s.arg(changed)
              .arg(toolText(folder.state, done))
              .arg(std::ssize(marks) - changed)
              .arg(toolText(folder.state, ToolText::AlreadySo)));
    return ExitGood;
}

int run(const CommandLine& line) {
    const bool import = line.has(u"import"_s);
    const bool named = line.has(u"skill"_s) || line.has(u"chest"_s);
    if (import && (named || line.has(u"undo"_s) || line.has(u"date"_s)))
        return line.misunderstood(u"--import stands alone"_s);
    if (!named && (line.has(u"undo"_s) || line.has(u"date"_s)))
        return line.misunderstood(u"--skill or --chest is missing"_s);
    // Held until the end, so that Orvinel cannot start and write meanwhile either.
    std::optional<SingleInstance> instance;
    if (const QString path = programFolder(line.word(0)); (named || import) && !path.isEmpty())
        instance.emplace(path);
    if (instance && !instance->first())
        return line.refuse(u"Orvinel is running in this folder; quit it first"_s);
    OpenedFolder folder(line.word(0));
    if (!folder.problem.isEmpty())
        return line.refuse(folder.problem);
    QString reason;
    const auto character = characterMeant(folder.state, line.word(1), reason);
    if (!character)
        return line.refuse(reason);
    if (!named && !import) {
        print(marksCsv(folder.state, *character));
        return ExitGood;
    }
    const auto marks = import ? marksOfFile(line, folder.state) : marksOf(line, folder.state);
    return marks ? apply(line, folder, *character, *marks) : ExitUnusable;
}

} // namespace

int main(int argc, char** argv) {
    const CommandLine line(table, argc, argv);
    return line.ended() ? *line.ended() : run(line);
}
