// orvinel-notes: notes taken out of a folder, and into another.

#include "base/SingleInstance.h"
#include "base/TextRules.h"
#include "tools/CommandLine.h"
#include "tools/NoteExchange.h"
#include "tools/OpenedFolder.h"
#include "tools/ToolText.h"

#include <QDir>
#include <QFile>

using namespace orvinel;
using namespace Qt::Literals::StringLiterals;

namespace {

const ToolTable table = {
    u"orvinel-notes"_s,
    u"Writes notes to a file for somebody else, and adds those of such a file without doubles."_s,
    {{u"FOLDER"_s, u"The program's folder; for merge Orvinel must not be running in it."_s},
     {u"export|merge"_s, u"What is to be done."_s},
     {u"FILE"_s, u"The file to be written or read."_s}},
    {{u"region"_s, u"Only the notes of this region, by name or in numbers."_s, u"NAME|CAMPAIGN:REGION"_s}}};

using Region = std::optional<std::pair<int, int>>;

int exportTo(const CommandLine& line, OpenedFolder& folder, Region region) {
    int count = 0;
    const QString text = exportedNotes(folder.state, region, count);
    const QString path = QDir::cleanPath(QDir::current().absoluteFilePath(line.word(2)));
    if (const DiskError error = folder.disk.replace(path, encodeText(text)))
        return line.refuse(u"%1: %2"_s.arg(path, *error));
    print(toolText(folder.state, ToolText::NotesExported).arg(QString::number(count), path) + u'\n');
    return ExitGood;
}

int mergeFrom(const CommandLine& line, OpenedFolder& folder, Region region) {
    QFile file(line.word(2));
    if (!file.open(QIODevice::ReadOnly))
        return line.refuse(u"%1: %2"_s.arg(line.word(2), file.errorString()));
    if (file.size() > largestDataFile)
        return line.refuse(u"%1: too large"_s.arg(line.word(2)));
    const MergedNotes merged = mergeNotes(folder.state, folder.files, file.readAll(), region);
    for (const QString& problem : merged.problems)
        line.refuse(u"%1: %2"_s.arg(line.word(2), problem));
    if (!merged.problems.isEmpty())
        return ExitUnusable;
    if (!merged.saved.saved())
        return line.refuse(u"%1: %2"_s.arg(merged.saved.file, merged.saved.reason));
    print(toolText(folder.state, ToolText::NotesMerged)
              .arg(QString::number(merged.added), QString::number(merged.known)) +
          u'\n');
    return ExitGood;
}

int run(const CommandLine& line) {
    const bool merge = line.word(1) == u"merge";
    if (!merge && line.word(1) != u"export")
        return line.misunderstood(u"there is no \"%1\" to be done"_s.arg(line.word(1)));
    // Held until the end, so that Orvinel cannot start and write meanwhile either.
    std::optional<SingleInstance> instance;
    if (const QString path = programFolder(line.word(0)); merge && !path.isEmpty())
        instance.emplace(path);
    if (instance && !instance->first())
        return line.refuse(u"Orvinel is running in this folder; quit it first"_s);
    OpenedFolder folder(line.word(0));
    if (!folder.problem.isEmpty())
        return line.refuse(folder.problem);
    Region region;
    if (line.has(u"region"_s)) {
        QString reason;
        region = regionMeant(folder.state, line.value(u"region"_s), reason);
        if (!region)
            return line.refuse(reason);
    }
    return merge ? mergeFrom(line, folder, region) : exportTo(line, folder, region);
}

} // namespace

int main(int argc, char** argv) {
    const CommandLine line(table, argc, argv);
    return line.ended() ? *line.ended() : run(line);
}
