#pragma once

#include "tools/Archive.h"

#include <optional>

namespace orvinel {

// An archive in the ustar format (POSIX.1-1988), which tar, 7-Zip and every file manager can open. The same
// files at the same time give the same bytes. Nothing when a name does not fit the format (255 bytes of UTF-8
// with a '/' in the right place).
std::optional<QByteArray> writeTar(const std::vector<ArchivedFile>& files, const QDateTime& written);

ArchiveContent readTar(const QByteArray& bytes);

} // namespace orvinel
