#pragma once

#include "WorldSource.h"

namespace worldgen {

// The languages besides English in which the world's texts are written, by the names of their caption files.
inline constexpr QStringView worldLanguages[] = {u"Deutsch", u"Italiano"};

// The same world with its texts in `language`, an index into worldLanguages: types and descriptions of
// skills, what items do, wishes and whereabouts of collectors, notes, remarks, chests. Names stay. A text
// without a translation stays English and adds a line to `problems`.
WorldSource translated(const WorldSource& source, const QString& worldFolder, std::size_t language,
                       QStringList& problems);

} // namespace worldgen
