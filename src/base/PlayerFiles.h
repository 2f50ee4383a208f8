#pragma once

#include "base/TextFile.h"

#include <QByteArray>
#include <QHash>
#include <QString>

namespace orvinel {

// How saving a file of the player went.
struct SaveResult {
    enum class Outcome {
        Saved,
        Failed,         // the old file is as it was; `reason` says why
        ChangedOutside, // somebody else wrote the file since it was read; nothing was done
        Refused         // what was to be saved breaks a rule that the caller can ask first; nothing was done
    };
    Outcome outcome = Outcome::Saved;
    QString file; // the file's name without its folder
    QString reason;

    bool saved() const { return outcome == Outcome::Saved; }
};

// The only writer of the player's files (characters, captures, chests, notes, options).
//
// A file is replaced whole or not at all. Before the first rewrite of a file that could not be read, or that
// held something the program would not write again, its old bytes are kept beside it as NAME.bak (.bak2,
// ...); when that fails nothing is saved. Text that the code page cannot hold makes the file UTF-8 with a
// byte order mark.
class PlayerFiles {
  public:
    explicit PlayerFiles(Disk& disk) : disk_(disk) {}
    PlayerFiles(const PlayerFiles&) = delete;
    PlayerFiles& operator=(const PlayerFiles&) = delete;

    Disk& disk() const { return disk_; }

    // Where the loaders read: the disk itself unless something else was set. `source` gives the disk's bytes
    // or fails; nullptr ends it.
    const Disk& source() const { return source_ ? *source_ : disk_; }
    void readThrough(const Disk* source) { source_ = source; }

    // To be called by a loader when it has read `path` to its end.
    void loaded(const QString& path, const TextFile& file);

    // Bytes that the program has not read are never replaced unasked, and only after they were kept as .bak.
    // With `evenIfChanged` a file that somebody else has written meanwhile is put aside as .bak and replaced.
    SaveResult save(const QString& path, const QString& text, bool evenIfChanged = false);

    // Keeps a file that does not belong to the player's data any more as .bak; no error when it does not
    // exist.
    SaveResult putAside(const QString& path);
    // Deletes a file; no error when it does not exist.
    SaveResult remove(const QString& path);

  private:
    struct Known {
        QByteArray hash;      // of the bytes last read or written; empty: the file was not there
        bool keepOld = false; // the file holds something that a rewrite would lose
    };
    // `aside` becomes the new name; it stays empty when the file had gone meanwhile.
    DiskError moveAside(const QString& path, QString& aside);
    DiskError keepCopy(const QString& path, const QByteArray& bytes);

    Disk& disk_;
    const Disk* source_ = nullptr;
    QHash<QString, Known> known_;
};

} // namespace orvinel
