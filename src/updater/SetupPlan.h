#pragma once

#include "base/Disk.h"

namespace orvinel {

// Where the setup for Windows unpacks a package, below the program's folder.
inline constexpr QLatin1String setupNewFolder("Setup.tmp/new");

// Plans for the setup what an update of the folder does; the setup then does it (packaging/windows/setup). In
// Setup.tmp it writes, a path on each line with '\\' and CR LF,
//   bring.txt     what is to come from "new", the uninstaller and the list of files last; "new" holds each of
//                 them under the name that it will have
//   gone.txt      what is to go
//   inTheWay.txt  instead of both: a folder where a file should be
// `folder` ends in '/'. Fails when the package is not whole enough to be listed, or one of these cannot be
// written.
DiskError planSetup(Disk& disk, const QString& folder);

} // namespace orvinel
