#include "base/PlayerFiles.h"

#include <QCryptographicHash>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray hashOf(const QByteArray& bytes) {
    return bytes.isEmpty() ? QByteArray() : QCryptographicHash::hash(bytes, QCryptographicHash::Blake2b_256);
}

QString nameOf(const QString& path) {
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

constexpr int mostBackups = 99;

QString backupName(const QString& path, int n) {
    return path + QLatin1String(".bak") + (n > 1 ? QString::number(n) : QString());
}

QString tooManyBackups() {
    return u"%1 .bak files exist already"_s.arg(mostBackups);
}

SaveResult failed(const QString& path, const QString& reason) {
    return {SaveResult::Outcome::Failed, nameOf(path), reason};
}

} // namespace

void PlayerFiles::loaded(const QString& path, const TextFile& file) {
    known_[path] = {hashOf(file.source().bytes), !file.readCompletely()};
}

SaveResult PlayerFiles::save(const QString& path, const QString& text, bool evenIfChanged) {
    const ReadResult present = disk_.read(path);
    const Known known = known_.value(path);
    const bool changed = present.outcome == ReadResult::Outcome::Read && hashOf(present.bytes) != known.hash;
    if (changed && !evenIfChanged)
        return {SaveResult::Outcome::ChangedOutside, nameOf(path), {}};
    QString aside;
    DiskError error;
    // What cannot be read may be anything, whatever it was when it was read last.
    if (present.outcome == ReadResult::Outcome::Failed)
        error = moveAside(path, aside);
    else if ((known.keepOld || changed) && !present.bytes.isEmpty())
        error = keepCopy(path, present.bytes);
    if (error)
        return failed(path, *error);
    const QByteArray bytes = encodeText(text);
    if ((error = disk_.replace(path, bytes))) {
        if (!aside.isEmpty())
            disk_.rename(aside, path);
        return failed(path, *error);
    }
    known_[path] = {hashOf(bytes), false};
    return {};
}

SaveResult PlayerFiles::putAside(const QString& path) {
    QString aside;
    if (const DiskError error = moveAside(path, aside))
        return failed(path, *error);
    known_.remove(path);
    return {};
}

SaveResult PlayerFiles::remove(const QString& path) {
    if (disk_.read(path).outcome != ReadResult::Outcome::NotThere)
        if (const DiskError error = disk_.remove(path))
            return failed(path, *error);
    known_.remove(path);
    return {};
}

DiskError PlayerFiles::moveAside(const QString& path, QString& aside) {
    for (int n = 1; n <= mostBackups; ++n) {
        const QString backup = backupName(path, n);
        if (disk_.read(backup).outcome != ReadResult::Outcome::NotThere)
            continue;
        const DiskError error = disk_.rename(path, backup);
        if (!error)
            aside = backup;
        return error && disk_.read(path).outcome != ReadResult::Outcome::NotThere ? error : std::nullopt;
    }
    return tooManyBackups();
}

DiskError PlayerFiles::keepCopy(const QString& path, const QByteArray& bytes) {
    for (int n = 1; n <= mostBackups; ++n) {
        const QString backup = backupName(path, n);
        const ReadResult there = disk_.read(backup);
        if (there.outcome == ReadResult::Outcome::Read && there.bytes == bytes)
            return std::nullopt;
        if (there.outcome == ReadResult::Outcome::NotThere)
            return disk_.replace(backup, bytes);
    }
    return tooManyBackups();
}

} // namespace orvinel
