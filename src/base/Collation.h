#pragma once

#include <QString>

#include <string>

namespace orvinel {

// Bytes that compare as their texts stand in alphabetical order: case ignored, accents count where the
// letters are the same. The same on every machine, which the system's own order is not. For the letters of
// Windows-1252 as English and German dictionaries have it, for others as Unicode numbers them.
std::string collationKey(const QString& text);

} // namespace orvinel
