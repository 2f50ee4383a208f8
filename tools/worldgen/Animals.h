#pragma once

#include "RegionPainter.h"
#include "SourceTable.h"

#include <QHash>

namespace worldgen {

// The drawings of animals.txt by species. Each row holds a kind of part, its colour and its shape; the row
// "ground" names what the animal stands on. Faults add lines to `problems`.
QHash<QString, AnimalPicture> readAnimals(const std::vector<SourceRow>& rows, QStringList& problems);

} // namespace worldgen
