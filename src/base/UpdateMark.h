#pragma once

#include <QString>

namespace orvinel {

// While an update is under way, or was cut off, this file lies in the program's folder: what is there is
// neither the old version nor the new one.
inline QString updateMark(const QString& folder) {
    return folder + QStringLiteral("Update.tmp/begun");
}

// The updater that can take such an update back, whatever of the folder has been replaced already.
inline QString repairingUpdater(const QString& folder) {
    return folder + QStringLiteral("Update.tmp/repair/update.exe");
}

} // namespace orvinel
