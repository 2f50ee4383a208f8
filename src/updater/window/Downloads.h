#pragma once

#include <QString>

namespace orvinel {

// Whether a file of this name is a package for this system.
bool isPackageName(const QString& name);

// The one that was changed last; empty when there is none in `folder`.
QString newestPackage(const QString& folder);

} // namespace orvinel
