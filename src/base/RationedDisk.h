#pragma once

#include "base/Disk.h"

#include <mutex>

namespace orvinel {

// Lets the loaders read so many bytes and no more, whatever lies in the folder: each file has its own bound,
// but their number has none. A file that is larger than what is left counts as one that could not be read, so
// that a player's file is not taken for an empty one. Reads only. Several threads may ask at a time; the disk
// below is asked by one of them.
class RationedDisk : public Disk {
  public:
    // `disk` outlives this object.
    RationedDisk(const Disk& disk, qint64 bytes) : disk_(disk), left_(bytes) {}

    // The files that were refused, in the order in which they were asked for first. Nobody asks for one
    // meanwhile.
    const std::vector<QString>& refused() const { return refused_; }

    qint64 length(const QString& path) const override;
    bool folderExists(const QString& path) const override;
    std::vector<QString> list(const QString& folder) const override;
    QString resolve(const QString& path) const override;
    ReadResult read(const QString& path) const override;
    bool mayWrite(const QString&) const override { return false; }

    DiskError replace(const QString&, const QByteArray&) override { return readOnly(); }
    DiskError rename(const QString&, const QString&) override { return readOnly(); }
    DiskError remove(const QString&) override { return readOnly(); }
    DiskError makeRunnable(const QString&) override { return readOnly(); }
    DiskError createFolder(const QString&) override { return readOnly(); }
    DiskError removeFolder(const QString&) override { return readOnly(); }

  private:
    static DiskError readOnly() { return QStringLiteral("opened for reading only"); }

    const Disk& disk_;
    mutable std::mutex asking_;
    mutable qint64 left_;
    mutable std::vector<QString> refused_;
};

} // namespace orvinel
