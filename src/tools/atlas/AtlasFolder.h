#pragma once

#include "base/Disk.h"
#include "tools/atlas/AtlasFiles.h"

#include <functional>

namespace orvinel {

// Writes the files as the folder `folder` (absolute, without '/' at its end), which appears whole or not at
// all. Where an earlier atlas is it is replaced; anything else that is there stays, and nothing is written.
// Copies are read through `disk`, one at a time. `progress` hears how many files are done.
// Nothing when it worked, else what went wrong and where.
DiskError writeAtlasFolder(const Disk& disk, const QString& folder, const std::vector<AtlasFile>& files,
                           const std::function<void(int)>& progress);

} // namespace orvinel
