#pragma once

#include "base/Disk.h"
#include "support/Printing.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace orvinel {

// Text in the code page, for file contents and expectations in tests.
QByteArray bytes(const char* text);

// A disk in memory that records what is done to it and fails when told to. Names are matched without regard
// to case.
class MemoryDisk : public Disk {
  public:
    // Creates the folders on the way. `path` as in all calls, for instance "/orvinel/Data/Language.txt".
    MemoryDisk& put(const QString& path, const QByteArray& content);
    MemoryDisk& putFolder(const QString& path);
    // The content of a file; a null QByteArray when it is not there.
    QByteArray content(const QString& path) const;
    bool exists(const QString& path) const { return !content(path).isNull(); }

    // What replace, rename, remove and createFolder were asked to do, one line each ("replace /orvinel/x").
    std::vector<QString> log;
    // Set: reading that path fails with this reason.
    std::map<QString, QString> unreadable;
    // Set: the changing call with this number (from 1) and, unless `failOnce`, all later ones fail.
    int failAt = 0;
    bool failOnce = false;
    // The folders in which nothing may be made, spelled as they are asked for.
    std::set<QString> closed;

    qint64 length(const QString& path) const override;
    bool folderExists(const QString& path) const override;
    std::vector<QString> list(const QString& folder) const override;
    bool mayWrite(const QString& folder) const override { return !closed.contains(folder); }
    ReadResult read(const QString& path) const override;
    QString resolve(const QString& path) const override;
    DiskError replace(const QString& path, const QByteArray& content) override;
    DiskError rename(const QString& from, const QString& to) override;
    DiskError remove(const QString& path) override;
    DiskError makeRunnable(const QString& path) override;
    DiskError createFolder(const QString& path) override;
    DiskError removeFolder(const QString& path) override;

  private:
    struct Entry {
        QString name;
        bool folder = false;
        QByteArray content;
    };
    DiskError change(const QString& what);

    std::map<QString, Entry> entries_; // by lower-cased path
    int changes_ = 0;
};

} // namespace orvinel
