#pragma once

#include "app/Disk.h"

namespace orvinel {

// The real files. Names are matched without regard to letter case below `root` only.
class FileDisk : public Disk {
  public:
    // `root`: an existing folder, absolute, with '/' at its end.
    explicit FileDisk(QString root) : root_(std::move(root)) {}

    qint64 length(const QString& path) const override;
    bool folderExists(const QString& path) const override;
    std::vector<QString> list(const QString& folder) const override;
    ReadResult read(const QString& path) const override;
    DiskError replace(const QString& path, const QByteArray& bytes) override;
    DiskError rename(const QString& from, const QString& to) override;
    DiskError remove(const QString& path) override;
    DiskError createFolder(const QString& path) override;
    DiskError removeFolder(const QString& path) override;

    // The existing file or folder that `path` means; `path` itself, with its existing folders resolved, when
    // there is none.
    QString resolve(const QString& path) const;

  private:
    QString root_;
};

} // namespace orvinel
