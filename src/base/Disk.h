#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace orvinel {

// Data files larger than this are not read: no table of the program comes near it.
inline constexpr qint64 largestDataFile = 64ll * 1024 * 1024;

// What reading a file gave. A file that could not be read must never be mistaken for an empty one.
struct ReadResult {
    enum class Outcome { Read, NotThere, Failed };
    Outcome outcome = Outcome::NotThere;
    QByteArray bytes; // only with Read
    QString reason;   // only with Failed, in the system's words
};

// Nothing when it worked, else the reason in the system's words.
using DiskError = std::optional<QString>;

// The files below the program's folder. Paths are absolute and use '/'. Below the program's folder names are
// matched without regard to letter case, the exact name first. Only plain files are read.
class Disk {
  public:
    virtual ~Disk() = default;

    // Bytes; 0 for an empty path, a missing file, a folder or any error. An empty file counts as missing.
    virtual qint64 length(const QString& path) const = 0;
    virtual bool folderExists(const QString& path) const = 0;
    // Names of files and folders in `folder`, sorted by code point, without "." and ".."; empty on any error.
    virtual std::vector<QString> list(const QString& folder) const = 0;
    virtual ReadResult read(const QString& path) const = 0;
    // Whether the system lets files be made in `folder`. Asks only: nothing is written. True where the answer
    // is not known, false for a folder that is not there.
    virtual bool mayWrite(const QString& folder) const = 0;
    // The file or folder that `path` means, spelled as it is on the disk; `path` itself when there is none.
    virtual QString resolve(const QString& path) const = 0;

    // All or nothing: afterwards the file holds `bytes` whole and safely on the medium, or is as it was.
    // A missing folder is created.
    virtual DiskError replace(const QString& path, const QByteArray& bytes) = 0;
    // Fails when `to` exists.
    virtual DiskError rename(const QString& from, const QString& to) = 0;
    virtual DiskError remove(const QString& path) = 0;
    // Whoever may read the file may run it. Nothing to be done where names decide what is a program.
    virtual DiskError makeRunnable(const QString& path) = 0;
    virtual DiskError createFolder(const QString& path) = 0;
    // An empty folder only.
    virtual DiskError removeFolder(const QString& path) = 0;
};

} // namespace orvinel
