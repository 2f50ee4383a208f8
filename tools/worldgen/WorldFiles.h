#pragma once

#include "Placement.h"

#include <QByteArray>

#include <map>

namespace worldgen {

// The text files of one campaign folder by name, as bytes: Windows-1252 with CR LF. Tables without an entry
// have no file. Characters that the code page lacks add a line to `problems`.
std::map<QString, QByteArray> campaignFiles(const WorldSource& source, const WorldPlaces& places,
                                            const SourceCampaign& campaign, QStringList& problems);

// Folder name of a campaign below the program folder.
QString campaignFolder(const SourceCampaign& campaign);

// File name of a skill's picture below "imgElite": the last four digits of its number.
QString skillPicture(int id);

} // namespace worldgen
