#pragma once

#include "base/Disk.h"
#include "updater/Package.h"
#include "updater/UpdatePlan.h"

#include <functional>
#include <vector>

namespace orvinel {

// Replaces the files of a folder by those of a package, all or nothing.
//
// In the folder Update.tmp everything is prepared: "new" gets what is to be brought, "repair" a whole updater
// of its own. The file "begun" then names what is going to change. While it is there each of these paths is
// in one of three states, from each of which putBack leads to the first one:
//   in "new", not in "old"   nothing has happened (an old file may be in its place)
//   in "new" and in "old"    the old one has been put aside
//   not in "new"             it is in its place; the old one, if any, is in "old"
// The program that players start is another case: it is copied into "old", its place holds the old one, a
// guard that starts the repairing updater, or the new one, and is never empty. Deleting "begun" makes the
// update hold.
class Replacement {
  public:
    // `folder` ends in '/'; nobody else writes to it meanwhile. `disk` outlives this object.
    Replacement(Disk& disk, QString folder, Package package, UpdatePlan plan);

    // Does the next part, as small as a file. False when there is nothing more: it is done, or has failed.
    bool step();
    int steps() const { return static_cast<int>(steps_.size()); }
    int stepsDone() const { return done_; }
    // Why it failed; everything has been taken back then.
    const DiskError& failure() const { return failure_; }
    // Set when that could not be done: the file "begun" is still there.
    const DiskError& leftHalf() const { return leftHalf_; }
    // Ends it before its time.
    void takeBack(const QString& reason);

  private:
    using Step = std::function<DiskError()>;
    void prepare();
    void prepareFile(const QString& to, const QString& from);
    void apply();
    void add(Step step) { steps_.push_back(std::move(step)); }
    QByteArray journal() const;
    DiskError write(const QString& path, const PackageFile& file);
    DiskError copyProgramAside();
    DiskError placeGuard();
    DiskError putAside(const QString& path);
    DiskError clearAway(const QString& path);
    DiskError putInPlace(const QString& path);

    Disk& disk_;
    QString folder_;
    Package package_;
    UpdatePlan plan_;
    std::vector<Step> steps_;
    int done_ = 0;
    DiskError failure_;
    DiskError leftHalf_;
};

// True when an update of this folder was cut off.
bool isHalfUpdated(const Disk& disk, const QString& folder);
// Takes it back; may be repeated as often as it fails. Nothing is done where no update was begun.
DiskError putBack(Disk& disk, const QString& folder);
// Removes what updates have left behind. Not while isHalfUpdated.
void removeLeftovers(Disk& disk, const QString& folder);

} // namespace orvinel
