#pragma once

#include "WorldSource.h"

namespace worldgen {

// A multiplied world has names that no translator has seen: it is written in English alone.
enum class Translations { Written, LeftOut };

// Paints all pictures, places all markers and writes the program's world into `outFolder`, which is made
// when it is missing. Files of the same names are replaced; nothing else in the folder is touched, and never
// what the player owns (the folder "Personal", "Data/Options.txt"). Regions are painted side by side on all
// processors. Returns what went wrong, empty when the whole world was written.
QStringList buildWorld(const WorldSource& source, const QString& worldFolder, const QString& outFolder,
                       Translations translations);

// Paints those pictures alone whose name in the world's folder contains `part`, and writes no tables: for
// looking at them.
QStringList paintPictures(const WorldSource& source, const QString& outFolder, const QString& part);

// Writes a CrowdedWorld with its picture and its player's notes; the rest as buildWorld does.
QStringList buildCrowdedWorld(int scale, const QString& worldFolder, const QString& outFolder);

} // namespace worldgen
