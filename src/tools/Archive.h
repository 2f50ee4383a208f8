#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <vector>

namespace orvinel {

// A plain file inside an archive.
struct ArchivedFile {
    QString name; // with '/' between folders
    QByteArray bytes;

    bool operator==(const ArchivedFile&) const = default;
};

// The plain files of an archive, folders left out. Nothing, with the reason, for what is cut off, damaged or
// holds anything else (links, devices, other dialects).
struct ArchiveContent {
    std::vector<ArchivedFile> files;
    QString problem; // empty: the archive is whole
};

} // namespace orvinel
