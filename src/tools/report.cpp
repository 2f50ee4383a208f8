// orvinel-report: how far each character has come, and what is left to do.

#include "tools/Report.h"
#include "app/modData.h"
#include "tools/Backup.h"
#include "tools/CommandLine.h"
#include "tools/OpenedFolder.h"
#include "tools/SnapshotDisk.h"

#include <QDir>

using namespace orvinel;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 largestPicture = 64 * 1024; // a small picture of a skill takes a few KB

const ToolTable table = {
    u"orvinel-report"_s,
    u"Tells how far each character has come, by campaign, region and profession, and what is still to do."_s,
    {{u"FOLDER"_s, u"The program's folder."_s}},
    {{u"format"_s, u"text (as without this option), html, csv or json."_s, u"FORMAT"_s},
     {u"character"_s, u"Only this character, by name or number."_s, u"NAME|NUMBER"_s},
     {u"missing"_s, u"List what is still to do; the page (html) always does."_s},
     {u"since"_s, u"Tell what was won since this backup was made."_s, u"BACKUP"_s},
     {u"output"_s, u"Write to this file, whole or not at all, instead of printing."_s, u"FILE"_s}}};

int write(const CommandLine& line, OpenedFolder& folder, const Report& report) {
    const QString format = line.has(u"format"_s) ? line.value(u"format"_s) : u"text"_s;
    QString text;
    if (format == u"html")
        text = reportHtml(folder.state, report, [&](const QString& path) {
            const qint64 length = folder.disk.length(path);
            return length > 0 && length <= largestPicture ? folder.disk.read(path).bytes : QByteArray();
        });
    else
        text = format == u"csv"    ? reportCsv(report)
               : format == u"json" ? reportJson(report)
                                   : reportText(folder.state, report);
    if (!line.has(u"output"_s)) {
        print(text);
        return ExitGood;
    }
    const QString path = QDir::cleanPath(QDir::current().absoluteFilePath(line.value(u"output"_s)));
    if (const DiskError error = folder.disk.replace(path, text.toUtf8()))
        return line.refuse(u"%1: %2"_s.arg(path, *error));
    return ExitGood;
}

int run(const CommandLine& line) {
    const QString format = line.value(u"format"_s);
    if (line.has(u"format"_s) && !QStringList{u"text"_s, u"html"_s, u"csv"_s, u"json"_s}.contains(format))
        return line.misunderstood(u"there is no format \"%1\""_s.arg(format));
    OpenedFolder folder(line.word(0));
    if (!folder.problem.isEmpty())
        return line.refuse(folder.problem);
    int character = 0;
    if (line.has(u"character"_s)) {
        QString reason;
        const auto meant = characterMeant(folder.state, line.value(u"character"_s), reason);
        if (!meant)
            return line.refuse(reason);
        character = *meant;
    }
    ProgramState before;
    const bool since = line.has(u"since"_s);
    if (since) {
        const Backup backup(folder.disk, folder.path, [] { return QDateTime::currentDateTime(); });
        const Backup::Content archive = backup.content(line.value(u"since"_s));
        if (!archive.problem.isEmpty())
            return line.refuse(archive.problem);
        SnapshotDisk then(folder.disk, folder.path, archive.files);
        PlayerFiles files(then);
        before.AppPath = folder.path;
        loadTables(before, files);
    }
    Report report = makeReport(folder.state, character, since ? &before : nullptr);
    report.since = line.value(u"since"_s);
    report.missing = line.has(u"missing"_s);
    return write(line, folder, report);
}

} // namespace

int main(int argc, char** argv) {
    const CommandLine line(table, argc, argv);
    return line.ended() ? *line.ended() : run(line);
}
