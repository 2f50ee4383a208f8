#pragma once

#include "base/Disk.h"
#include "updater/InstalledList.h"

#include <QStringList>

#include <map>
#include <optional>
#include <vector>

namespace orvinel {

// What an update does to a folder, by paths from it (packaging/installed.md says what it may do).
struct UpdatePlan {
    std::map<QString, QString> bring; // where to -> which file of the package
    std::vector<QString> gone;        // brought by the old version, unchanged, and no more in the new one
    QStringList kept; // the player's own in place of the package's: files and campaign folders
    QString inTheWay; // a folder where a file should be: nothing can be done; else empty
};

// What the folder's own list says; nothing in a folder from before there were lists.
std::optional<FileSums> installedSums(const Disk& disk, const QString& folder);

// `folder` ends in '/'; `sums`: the list of a package that is whole. The package's list and program are
// always brought. Reads every file that the lists name.
UpdatePlan planUpdate(const Disk& disk, const QString& folder, const FileSums& sums);

} // namespace orvinel
