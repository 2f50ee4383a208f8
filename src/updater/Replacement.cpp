#include "updater/Replacement.h"

#include "base/UpdateMark.h"
#include "updater/UpdateFolder.h"

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// What an updater needs to run by itself: its libraries lie in "lib" where they are not part of it.
bool isOfUpdater(const QString& path) {
    return path == updaterFileName || path == u"qt.conf"_s || path.startsWith(u"lib/"_s);
}

// Stands in the program's place while its libraries may be of two versions, with which neither the old
// program nor the new one would start. Nothing where programs have no libraries beside them.
QByteArray guardProgram() {
#ifdef Q_OS_WIN
    return {};
#else
    return "#!/bin/sh\n"
           "# Orvinel is being updated, or an update was cut off. Its updater takes that back.\n"
           "exec \"$(dirname \"$(readlink -f \"$0\")\")/Update.tmp/repair/update.exe\"\n";
#endif
}

DiskError restore(UpdateFolder& update, const QString& path, bool brought) {
    if (brought && !update.there(update.fresh(path)) && update.there(update.here(path)))
        if (const DiskError error = update.move(update.here(path), update.fresh(path)))
            return error;
    // What somebody else has put there meanwhile is left to them.
    if (!update.there(update.old(path)) || update.there(update.here(path)))
        return std::nullopt;
    return update.move(update.old(path), update.here(path));
}

DiskError restoreProgram(Disk& disk, UpdateFolder& update) {
    const QString place = update.here(programFileName());
    const QString aside = update.old(programFileName());
    if (update.there(aside))
        return update.copyProgram(aside, place);
    return update.there(place) ? disk.remove(place) : std::nullopt;
}

} // namespace

Replacement::Replacement(Disk& disk, QString folder, Package package, UpdatePlan plan)
    : disk_(disk), folder_(std::move(folder)), package_(std::move(package)), plan_(std::move(plan)) {
    // It has a way of its own, see above.
    plan_.bring.erase(programFileName());
    std::erase(plan_.gone, programFileName());
    prepare();
    apply();
}

void Replacement::prepare() {
    add([this]() -> DiskError {
        removeLeftovers(disk_, folder_);
        return std::nullopt;
    });
    const UpdateFolder update(disk_, folder_);
    for (const auto& [path, file] : package_.files)
        if (isOfUpdater(path))
            prepareFile(update.repair(path), path);
    for (const auto& [to, from] : plan_.bring)
        prepareFile(update.fresh(to), from);
    add([this] { return copyProgramAside(); });
    add([this] { return disk_.replace(updateMark(folder_), journal()); });
}

void Replacement::prepareFile(const QString& to, const QString& from) {
    add([this, to, from] { return write(to, package_.files.at(from)); });
}

void Replacement::apply() {
    if (!guardProgram().isEmpty())
        add([this] { return placeGuard(); });
    for (const QString& path : plan_.gone)
        add([this, path] { return clearAway(path); });
    for (const auto& [path, from] : plan_.bring)
        if (path != installedListPath)
            add([this, path] { return putInPlace(path); });
    // The list last: it says what has been brought.
    add([this] { return putInPlace(installedListPath); });
    add([this] { return write(folder_ + programFileName(), package_.files.at(programFileName())); });
    add([this] { return disk_.remove(updateMark(folder_)); });
}

QByteArray Replacement::journal() const {
    Journal journal;
    for (const auto& [to, from] : plan_.bring)
        journal.bring << to;
    for (const QString& path : plan_.gone)
        journal.gone << path;
    return writeJournal(journal);
}

DiskError Replacement::write(const QString& path, const PackageFile& file) {
    if (const DiskError error = disk_.replace(path, file.bytes))
        return error;
    return file.runnable ? disk_.makeRunnable(path) : std::nullopt;
}

DiskError Replacement::copyProgramAside() {
    UpdateFolder update(disk_, folder_);
    const QString place = update.here(programFileName());
    return update.there(place) ? update.copyProgram(place, update.old(programFileName())) : std::nullopt;
}

DiskError Replacement::placeGuard() {
    return write(folder_ + programFileName(), {guardProgram(), true});
}

DiskError Replacement::putAside(const QString& path) {
    UpdateFolder update(disk_, folder_);
    return update.there(update.here(path)) ? update.move(update.here(path), update.old(path)) : std::nullopt;
}

// An empty campaign folder would count as a campaign.
DiskError Replacement::clearAway(const QString& path) {
    if (const DiskError error = putAside(path))
        return error;
    return UpdateFolder(disk_, folder_).pruneAbove(folder_ + path);
}

DiskError Replacement::putInPlace(const QString& path) {
    if (const DiskError error = putAside(path))
        return error;
    UpdateFolder update(disk_, folder_);
    return update.move(update.fresh(path), update.here(path));
}

bool Replacement::step() {
    if (failure_ || done_ == steps())
        return false;
    if (const DiskError error = steps_[static_cast<size_t>(done_)]()) {
        takeBack(*error);
        return false;
    }
    ++done_;
    if (done_ < steps())
        return true;
    removeLeftovers(disk_, folder_);
    return false;
}

void Replacement::takeBack(const QString& reason) {
    failure_ = reason;
    leftHalf_ = putBack(disk_, folder_);
    if (!leftHalf_)
        removeLeftovers(disk_, folder_);
}

bool isHalfUpdated(const Disk& disk, const QString& folder) {
    return disk.length(updateMark(folder)) > 0;
}

DiskError putBack(Disk& disk, const QString& folder) {
    if (!isHalfUpdated(disk, folder))
        return std::nullopt;
    const std::optional<Journal> journal = readJournal(disk.read(updateMark(folder)).bytes);
    if (!journal)
        return u"%1 is damaged"_s.arg(updateMark(folder));
    UpdateFolder update(disk, folder);
    for (const QString& path : journal->bring)
        if (const DiskError error = restore(update, path, true))
            return error;
    for (const QString& path : journal->gone)
        if (const DiskError error = restore(update, path, false))
            return error;
    if (const DiskError error = restoreProgram(disk, update))
        return error;
    for (const QString& path : journal->bring)
        if (const DiskError error = update.pruneAbove(update.here(path)))
            return error;
    return disk.remove(updateMark(folder));
}

void removeLeftovers(Disk& disk, const QString& folder) {
    if (!isHalfUpdated(disk, folder))
        UpdateFolder(disk, folder).removeTree(folder + u"Update.tmp"_s);
}

} // namespace orvinel
