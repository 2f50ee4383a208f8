#pragma once

#include "base/Disk.h"
#include "tools/Archive.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace orvinel {

// Keeps the player's files (everything in Personal, and Data/Options.txt) as archives in the folder Backups.
//
// An archive is a .zip file, which every system opens, or a .tar file of an earlier version; its last entry
// SHA256SUMS holds the files' check sums as sha256sum -c reads them. Nothing is ever overwritten unless told
// to, and what then is overwritten has been archived before. The program must not run meanwhile: the caller
// sees to that.
class Backup {
  public:
    // `folder` ends in '/'. `now` gives the time for names and entries.
    Backup(Disk& disk, QString folder, std::function<QDateTime()> now)
        : disk_(disk), folder_(std::move(folder)), now_(std::move(now)) {}

    struct Result {
        bool good = false;
        QString text; // what was done, or why not; may be several lines
    };

    // `name`: a file name with or without ".zip" or ".tar"; empty: one made of date and time. Written whole
    // or not at all, and read back before it counts.
    Result save(const QString& name = {});
    // Names of the archives without their ending, sorted; those named by date are in the order of their
    // making.
    QStringList list() const;
    // `name` empty, here and in restore: the latest one named by date.
    Result verify(const QString& name = {}) const;
    // Brings the archive's files back. Without `replace` nothing happens when one of them is there with
    // another content. Files that the archive does not know stay. When a file cannot be written, those
    // written before it are put back.
    Result restore(const QString& name, bool replace);

    // What is in an archive, checked against its check sums. `name` as in verify.
    struct Content {
        QString name;
        std::vector<ArchivedFile> files;
        QString problem; // empty: the archive is whole
    };
    Content content(const QString& name) const;

  private:
    QString pathOf(const QString& name) const;
    QString latest() const;
    QString freeName(const QString& prefix) const;
    Result saveAs(const QString& file);
    Result write(const Content& archive);
    DiskError putBack(const QStringList& written, const Content& before);

    Disk& disk_;
    QString folder_;
    std::function<QDateTime()> now_;
};

} // namespace orvinel
