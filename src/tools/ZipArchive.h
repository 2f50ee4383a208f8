#pragma once

#include "tools/Archive.h"

namespace orvinel {

// An archive that every system opens with a double click. Its comment is the check sum of all bytes before
// it, so that no damage goes unnoticed, not even in what no file depends on. Empty when it could not be made.
QByteArray writeZip(const std::vector<ArchivedFile>& files, const QDateTime& written);

// Of an archive that writeZip made; any other is refused.
ArchiveContent readZip(const QByteArray& bytes);

} // namespace orvinel
