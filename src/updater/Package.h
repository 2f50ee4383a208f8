#pragma once

#include "updater/InstalledList.h"

#include <QString>

#include <map>
#include <memory>

namespace orvinel {

// The file of the program that players start, and the updater's own.
QString programFileName();
inline constexpr QLatin1String updaterFileName("update.exe");
// What the next start of the program puts into the updater's place.
inline constexpr QLatin1String pendingUpdater("update.dat");

struct PackageFile {
    QByteArray bytes;
    bool runnable = false;
};
using PackageFiles = std::map<QString, PackageFile>; // by path

enum class PackageFault {
    None,
    Unreadable,  // the file cannot be opened, or is no archive; `about` says why
    NotOrvinel,  // an archive of something else
    Damaged,     // what it brings is not what its list says; `about` names the first such file
    OtherSystem, // the program in it does not run here
};

// A downloaded package, whole in memory.
struct Package {
    QString version;
    FileSums sums;      // its list, as it is
    PackageFiles files; // those of the list and the list itself; paths from the folder
    PackageFault fault = PackageFault::None;
    QString about;

    bool whole() const { return fault == PackageFault::None; }
};

// What an archive's entries make: a folder with a list that all of them agree with. `entries` may have one
// folder around everything.
Package checkedPackage(PackageFiles entries);

// Reads an archive (.zip, .tar.gz, .tar.xz) entry by entry, so that a window stays alive meanwhile.
class PackageReader {
  public:
    explicit PackageReader(const QString& path);
    ~PackageReader();

    // False when there is nothing more to be read.
    bool readNext();
    // 0 to 1.
    double progress() const;
    // Once readNext has said False.
    Package package();

  private:
    struct Source;
    bool fail(PackageFault fault, const QString& about);
    bool readFile();

    std::unique_ptr<Source> source_;
    Package result_;
};

} // namespace orvinel
