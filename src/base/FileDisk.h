#pragma once

#include "base/Disk.h"

#include <QDateTime>

namespace orvinel {

// Ends the name of a file that is being written beside the one that it is to replace. A save that was cut off
// leaves it behind; the next one of the same file overwrites it.
inline constexpr QLatin1String unfinishedSuffix(".saving");

// The real files. Names are matched without regard to letter case below `root` only.
class FileDisk : public Disk {
  public:
    // `root`: an existing folder, absolute, with '/' at its end.
    explicit FileDisk(QString root) : root_(std::move(root)) {}

    qint64 length(const QString& path) const override;
    bool folderExists(const QString& path) const override;
    std::vector<QString> list(const QString& folder) const override;
    bool mayWrite(const QString& folder) const override;
    ReadResult read(const QString& path) const override;
    QString resolve(const QString& path) const override;
    DiskError replace(const QString& path, const QByteArray& bytes) override;
    DiskError rename(const QString& from, const QString& to) override;
    DiskError remove(const QString& path) override;
    DiskError makeRunnable(const QString& path) override;
    DiskError createFolder(const QString& path) override;
    DiskError removeFolder(const QString& path) override;

  private:
    // The names in a folder that has not changed since they were read. A start asks for hundreds of files
    // that are not there, and a folder may hold a hundred thousand others.
    struct Listing {
        QString folder;
        QDateTime changed; // invalid: to be read again whatever happens
        std::vector<QString> names;
    };
    const std::vector<QString>& namesOnce(const QString& folder) const;

    QString root_;
    mutable Listing latest_;
};

} // namespace orvinel
