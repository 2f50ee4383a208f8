#include "updater/SetupPlan.h"

#include "updater/Package.h"
#include "updater/UpdatePlan.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1String uninstaller("Uninstall.exe"); // the setup's own; no package lists it

QByteArray asLines(const QStringList& paths) {
    QByteArray text;
    for (const QString& path : paths)
        text += QString(path).replace(u'/', u'\\').toLatin1() + "\r\n";
    return text;
}

// No updater runs while a setup replaces it.
void replaceUpdaterAtOnce(const Disk& disk, const QString& folder, UpdatePlan& plan) {
    const auto pending = plan.bring.find(pendingUpdater);
    if (pending == plan.bring.end())
        return;
    plan.bring.erase(pending);
    plan.bring[updaterFileName] = updaterFileName;
    if (disk.read(folder + pendingUpdater).outcome != ReadResult::Outcome::NotThere)
        plan.gone.push_back(pendingUpdater);
}

// What comes under another name, a text in the language that was chosen, gets it in "new".
DiskError rename(Disk& disk, const QString& fresh, const UpdatePlan& plan) {
    for (const auto& [to, from] : plan.bring) {
        if (to == from)
            continue;
        const ReadResult read = disk.read(fresh + from);
        if (read.outcome != ReadResult::Outcome::Read)
            return u"%1: %2"_s.arg(from, read.reason);
        if (const DiskError error = disk.replace(fresh + to, read.bytes))
            return error;
    }
    return std::nullopt;
}

} // namespace

DiskError planSetup(Disk& disk, const QString& folder) {
    const QString fresh = folder + setupNewFolder + u'/';
    const QString work = folder + u"Setup.tmp/"_s;
    const std::optional<FileSums> sums = installedSums(disk, fresh);
    if (!sums)
        return fresh + installedListPath;
    UpdatePlan plan = planUpdate(disk, folder, *sums);
    if (!plan.inTheWay.isEmpty())
        return disk.replace(work + u"inTheWay.txt"_s, asLines({plan.inTheWay}));
    replaceUpdaterAtOnce(disk, folder, plan);
    if (const DiskError error = rename(disk, fresh, plan))
        return error;
    QStringList bring;
    for (const auto& [to, from] : plan.bring)
        if (to != installedListPath)
            bring << to;
    bring << uninstaller << installedListPath;
    if (const DiskError error = disk.replace(work + u"bring.txt"_s, asLines(bring)))
        return error;
    return disk.replace(work + u"gone.txt"_s, asLines(QStringList(plan.gone.begin(), plan.gone.end())));
}

} // namespace orvinel
