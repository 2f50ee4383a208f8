// orvinel-backup FOLDER save|list|verify|restore [NAME] [--replace]: archives of the player's files.

#include "tools/Backup.h"
#include "base/FileDisk.h"
#include "base/SingleInstance.h"
#include "tools/CommandLine.h"

#include <optional>

using namespace orvinel;
using namespace Qt::Literals::StringLiterals;

namespace {

struct Order {
    QString folder;
    QString verb;
    QString name;
    bool replace = false;
};

std::optional<Order> orderOf(QStringList words) {
    Order order;
    order.replace = words.removeAll(u"--replace"_s) > 0;
    if (words.size() < 2 || words.size() > 3)
        return std::nullopt;
    order.folder = words[0];
    order.verb = words[1];
    order.name = words.value(2);
    const bool known = QStringList{u"save"_s, u"list"_s, u"verify"_s, u"restore"_s}.contains(order.verb);
    const bool fits = (order.verb != u"list" || order.name.isEmpty()) &&
                      (order.verb == u"restore" || !order.replace) && !order.name.startsWith(u"--"_s);
    return known && fits ? std::optional(order) : std::nullopt;
}

int tell(const Backup::Result& result) {
    if (result.good)
        print(result.text + u'\n');
    else
        printError(u"orvinel-backup: "_s + result.text + u'\n');
    return result.good ? exitGood : exitFindings;
}

int listAll(const Backup& backup) {
    for (const QString& name : backup.list())
        print(name + u'\n');
    return exitGood;
}

int run(const Order& order, const QString& folder) {
    FileDisk disk(folder);
    Backup backup(disk, folder, [] { return QDateTime::currentDateTime(); });
    if (order.verb == u"list")
        return listAll(backup);
    if (order.verb == u"verify")
        return tell(backup.verify(order.name));
    // Held until the end, so that Orvinel cannot start and write meanwhile either.
    const SingleInstance instance(folder);
    if (!instance.first()) {
        printError(u"orvinel-backup: Orvinel is running in this folder; quit it first\n"_s);
        return exitFindings;
    }
    return tell(order.verb == u"save" ? backup.save(order.name) : backup.restore(order.name, order.replace));
}

} // namespace

int main(int argc, char** argv) {
    const auto order = orderOf(arguments(argc, argv));
    if (!order) {
        printError(u"usage: orvinel-backup FOLDER save|list|verify|restore [NAME] [--replace]\n"_s);
        return exitUnusable;
    }
    const QString folder = programFolder(order->folder);
    if (folder.isEmpty()) {
        printError(u"orvinel-backup: no folder %1\n"_s.arg(order->folder));
        return exitUnusable;
    }
    return run(*order, folder);
}
