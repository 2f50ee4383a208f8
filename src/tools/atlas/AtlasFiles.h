#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace orvinel {

struct Atlas;
struct ProgramState;

// A file of the atlas's folder: what stands in it, or the file that it is a copy of.
struct AtlasFile {
    QString path; // below the folder, with '/' between folders
    QByteArray bytes;
    QString copyOf; // full path; empty: `bytes` hold the file
};

// Everything that belongs into the folder: pages, data, scripts, pictures. Whatever the world's texts hold,
// they stand in the pages and data as text.
std::vector<AtlasFile> atlasFiles(const ProgramState& state, const Atlas& atlas);

} // namespace orvinel
