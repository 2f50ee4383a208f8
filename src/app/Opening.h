#pragma once

#include "base/Desktop.h"
#include "base/Disk.h"

#include <QString>

namespace orvinel {

struct World;

// Opens a document, program or address with the desktop's program for it; when that fails the player is told.
void openAndTell(const World& state, Desktop& desktop, const QString& target);

enum class Page { Guide, Start };

// What to open for a page that comes with the program: in the language file's language, else in English.
// Where it is missing: the other page, else the project's home page, else where the page should lie, so that
// the player is told of it.
QString addressOf(Page page, const World& state, const Disk& disk);

} // namespace orvinel
