#pragma once

#include <QByteArray>
#include <QString>

#include <span>

namespace orvinel {

class PlayerFiles;
struct ProgramState;

// A file that the program reads, in a small world in which all its numbers mean something.
struct HostileFile {
    const char* reader;                                    // a name for it
    const char* path;                                      // below "/o/"
    const char* good;                                      // what a healthy file looks like
    void (*load)(ProgramState& state, PlayerFiles& files); // its reader
};
std::span<const HostileFile> hostileFiles();

// Only this file's reader, on `bytes` alone, with the tables that it asks as the healthy files fill them: the
// quick part of startWith.
void readAlone(const HostileFile& file, const QByteArray& bytes);

// Starts on the small world with `bytes` in place of that file: loads all tables, fills all lists and
// markers, checks the world, and writes the player's files back. Returns what broke a promise; empty: nothing
// did. (What breaks the program itself is the sanitizers' to tell.)
QString startWith(const HostileFile& file, const QByteArray& bytes);

// A backup's archive: only read, and the whole restore, which may replace the player's files alone. Both
// formats; an archive in .zip gets the check sum without which nobody would look into it.
QString readArchive(const QByteArray& bytes);
QString restoreArchive(const QByteArray& bytes);
QByteArray sealedZip(const QByteArray& entries);

} // namespace orvinel
