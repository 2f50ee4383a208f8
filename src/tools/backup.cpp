// orvinel-backup: archives of the player's files.

#include "tools/Backup.h"
#include "base/FileDisk.h"
#include "base/SingleInstance.h"
#include "tools/CommandLine.h"

using namespace orvinel;
using namespace Qt::Literals::StringLiterals;

namespace {

const ToolTable table = {
    u"orvinel-backup"_s,
    u"Keeps the player's files as archives in the folder Backups, and brings them back."_s,
    {{u"FOLDER"_s, u"The program's folder."_s},
     {u"save|list|verify|restore"_s, u"What is to be done."_s},
     {u"[NAME]"_s, u"The archive's name; without it one made of date and time, or the latest."_s}},
    {{u"replace"_s, u"Let restore replace files that have changed; they are saved before."_s}}};

struct Order {
    QString folder;
    QString verb;
    QString name;
    bool replace = false;
};

// Empty when the words make sense together.
QString problemOf(const Order& order) {
    if (!QStringList{u"save"_s, u"list"_s, u"verify"_s, u"restore"_s}.contains(order.verb))
        return u"there is no \"%1\" to be done"_s.arg(order.verb);
    if (order.verb == u"list" && !order.name.isEmpty())
        return u"list takes no name"_s;
    return order.replace && order.verb != u"restore" ? u"--replace goes with restore"_s : QString();
}

// `bad`: how it ends when it is not good.
int tell(const Backup::Result& result, ExitCode bad = ExitUnusable) {
    if (result.good)
        print(result.text + u'\n');
    else
        printError(u"orvinel-backup: "_s + result.text + u'\n');
    return result.good ? ExitGood : bad;
}

int listAll(const Backup& backup) {
    for (const QString& name : backup.list())
        print(name + u'\n');
    return ExitGood;
}

int run(const Order& order, const QString& folder) {
    FileDisk disk(folder);
    Backup backup(disk, folder, [] { return QDateTime::currentDateTime(); });
    if (order.verb == u"list")
        return listAll(backup);
    if (order.verb == u"verify")
        return tell(backup.verify(order.name), ExitFindings);
    // Held until the end, so that Orvinel cannot start and write meanwhile either.
    const SingleInstance instance(folder);
    if (!instance.first()) {
        printError(u"orvinel-backup: Orvinel is running in this folder; quit it first\n"_s);
        return ExitUnusable;
    }
    return tell(order.verb == u"save" ? backup.save(order.name) : backup.restore(order.name, order.replace));
}

} // namespace

int main(int argc, char** argv) {
    const CommandLine line(table, argc, argv);
    if (line.ended())
        return *line.ended();
    const Order order{line.word(0), line.word(1), line.word(2), line.has(u"replace"_s)};
    if (const QString problem = problemOf(order); !problem.isEmpty())
        return line.misunderstood(problem);
    const QString folder = programFolder(order.folder);
    if (folder.isEmpty())
        return line.refuse(u"no folder %1"_s.arg(order.folder));
    return run(order, folder);
}
