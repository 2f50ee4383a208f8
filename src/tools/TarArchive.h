#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

namespace orvinel {

// A plain file inside an archive.
struct ArchivedFile {
    QString name; // with '/' between folders
    QByteArray bytes;

    bool operator==(const ArchivedFile&) const = default;
};

// An archive in the ustar format (POSIX.1-1988), which tar, 7-Zip and every file manager can open. The same
// files at the same time give the same bytes. Nothing when a name does not fit the format (255 bytes of UTF-8
// with a '/' in the right place).
std::optional<QByteArray> writeTar(const std::vector<ArchivedFile>& files, const QDateTime& written);

// The plain files of an archive, folders left out. Nothing, with the reason, for what is cut off, damaged or
// holds anything else (links, devices, other dialects).
struct TarContent {
    std::vector<ArchivedFile> files;
    QString problem; // empty: the archive is whole
};
TarContent readTar(const QByteArray& bytes);

} // namespace orvinel
