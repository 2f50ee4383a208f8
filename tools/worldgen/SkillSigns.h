#pragma once

#include "RegionPainter.h"
#include "SourceTable.h"

#include <QHash>

namespace worldgen {

// The signs of signs.txt by name.
using SignBook = QHash<QString, std::vector<SignPart>>;

// `rows` hold a name and then, in turn, a material and a shape. Faults add lines to `problems`.
SignBook readSigns(const std::vector<SourceRow>& rows, QStringList& problems);

// What a skill's picture shows: "behind sun, tilted spear". Each part between commas names one sign of the
// book, the other words say how it stands. `place` leads the lines that are added to `problems`.
std::vector<PlacedSign> placedSigns(const QString& text, const SignBook& book, const QString& place,
                                    QStringList& problems);

} // namespace worldgen
