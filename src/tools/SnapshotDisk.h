#pragma once

#include "base/Disk.h"
#include "tools/Archive.h"

#include <QHash>
#include <QString>

#include <vector>

namespace orvinel {

// The program's folder as it was when a backup was made: the player's files come from the backup, all others
// from the disk. Nothing can be changed.
class SnapshotDisk : public Disk {
  public:
    // `folder` ends in '/'.
    SnapshotDisk(const Disk& disk, const QString& folder, const std::vector<ArchivedFile>& files);

    qint64 length(const QString& path) const override;
    bool folderExists(const QString& path) const override { return disk_.folderExists(path); }
    std::vector<QString> list(const QString& folder) const override { return disk_.list(folder); }
    ReadResult read(const QString& path) const override;
    QString resolve(const QString& path) const override { return disk_.resolve(path); }
    bool mayWrite(const QString&) const override { return false; }
    DiskError replace(const QString&, const QByteArray&) override { return refusal(); }
    DiskError rename(const QString&, const QString&) override { return refusal(); }
    DiskError remove(const QString&) override { return refusal(); }
    DiskError makeRunnable(const QString&) override { return refusal(); }
    DiskError createFolder(const QString&) override { return refusal(); }
    DiskError removeFolder(const QString&) override { return refusal(); }

  private:
    static DiskError refusal() { return QStringLiteral("a backup is only read"); }
    bool isPlayers(const QString& path) const;

    const Disk& disk_;
    QString personal_;               // the folder of the player's files, lower-cased, ending in '/'
    QHash<QString, QByteArray> old_; // by lower-cased path
};

} // namespace orvinel
