#pragma once

#include "base/Disk.h"

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace orvinel {

// The folder in which an update is prepared and what was replaced lies until it is done.
class UpdateFolder {
  public:
    // `folder`: the program's, ending in '/'.
    UpdateFolder(Disk& disk, QString folder) : disk_(disk), folder_(std::move(folder)) {}

    QString here(const QString& path) const { return folder_ + path; }
    QString fresh(const QString& path) const { return folder_ + QStringLiteral("Update.tmp/new/") + path; }
    QString old(const QString& path) const { return folder_ + QStringLiteral("Update.tmp/old/") + path; }
    QString repair(const QString& path) const {
        return folder_ + QStringLiteral("Update.tmp/repair/") + path;
    }

    bool there(const QString& path) const;
    // Makes the folders on the way.
    DiskError move(const QString& from, const QString& to);
    // Whole or not at all; whoever may read the copy may run it.
    DiskError copyProgram(const QString& from, const QString& to);
    // Removes the folders that have become empty on the way to `path`, which is below the program's folder.
    DiskError pruneAbove(const QString& path);
    void removeTree(const QString& path);

  private:
    Disk& disk_;
    QString folder_;
};

// What an update that was begun is going to change.
struct Journal {
    QStringList bring;
    QStringList gone;
};
QByteArray writeJournal(const Journal& journal);
// Nothing when it is not one, or names something outside the folder.
std::optional<Journal> readJournal(const QByteArray& text);

} // namespace orvinel
