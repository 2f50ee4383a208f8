#pragma once

#include <QByteArray>
#include <QString>

#include <span>

namespace orvinel {

// A file that the program reads, in a small world in which all its numbers mean something.
struct HostileFile {
    const char* reader; // a name for it
    const char* path;   // below "/o/"
    const char* good;   // what a healthy file looks like
};
std::span<const HostileFile> hostileFiles();

// Only loads the tables, with `bytes` in place of that file: the quick part of startWith.
void loadWith(const HostileFile& file, const QByteArray& bytes);

// Starts on the small world with `bytes` in place of that file: loads all tables, fills all lists and
// markers, checks the world, and writes the player's files back. Returns what broke a promise; empty: nothing
// did. (What breaks the program itself is the sanitizers' to tell.)
QString startWith(const HostileFile& file, const QByteArray& bytes);

// The same for a backup's archive.
QString readArchive(const QByteArray& bytes);

} // namespace orvinel
