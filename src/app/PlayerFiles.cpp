#include "app/PlayerFiles.h"

#include <QCryptographicHash>

namespace orvinel {

namespace {

QByteArray hashOf(const QByteArray& bytes) {
    return bytes.isEmpty() ? QByteArray() : QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

QString nameOf(const QString& path) {
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

SaveResult failed(const QString& path, const QString& reason) {
    return {SaveResult::Outcome::Failed, nameOf(path), reason};
}

} // namespace

void PlayerFiles::loaded(const QString& path, const TextFile& file) {
    const bool unreadable = file.source().outcome == ReadResult::Outcome::Failed;
    known_[path] = {hashOf(file.source().bytes), unreadable || file.skippedLines() > 0};
}

SaveResult PlayerFiles::save(const QString& path, const QString& text, bool evenIfChanged) {
    const ReadResult present = disk_.read(path);
    const Known known = known_.value(path);
    const bool changed = present.outcome == ReadResult::Outcome::Read && hashOf(present.bytes) != known.hash;
    if (changed && !known.keepOld && !evenIfChanged)
        return {SaveResult::Outcome::ChangedOutside, nameOf(path), {}};
    if (known.keepOld || changed) {
        if (present.outcome == ReadResult::Outcome::Failed) {
            if (const SaveResult aside = putAside(path); !aside.saved())
                return aside;
        } else if (!present.bytes.isEmpty()) {
            if (const DiskError error = keepCopy(path, present.bytes))
                return failed(path, *error);
        }
    }
    const QByteArray bytes = encodeText(text);
    if (const DiskError error = disk_.replace(path, bytes))
        return failed(path, *error);
    known_[path] = {hashOf(bytes), false};
    return {};
}

SaveResult PlayerFiles::putAside(const QString& path) {
    QString reason;
    for (int n = 1; n <= 99; ++n) {
        const QString backup = path + QLatin1String(".bak") + (n > 1 ? QString::number(n) : QString());
        if (disk_.read(backup).outcome != ReadResult::Outcome::NotThere)
            continue;
        const DiskError error = disk_.rename(path, backup);
        if (!error || disk_.read(path).outcome == ReadResult::Outcome::NotThere) {
            known_.remove(path);
            return {};
        }
        return failed(path, *error);
    }
    return failed(path, QStringLiteral("99 .bak files exist already"));
}

SaveResult PlayerFiles::remove(const QString& path) {
    if (disk_.read(path).outcome != ReadResult::Outcome::NotThere)
        if (const DiskError error = disk_.remove(path))
            return failed(path, *error);
    known_.remove(path);
    return {};
}

DiskError PlayerFiles::keepCopy(const QString& path, const QByteArray& bytes) {
    for (int n = 1; n <= 99; ++n) {
        const QString backup = path + QLatin1String(".bak") + (n > 1 ? QString::number(n) : QString());
        const ReadResult there = disk_.read(backup);
        if (there.outcome == ReadResult::Outcome::Read && there.bytes == bytes)
            return std::nullopt;
        if (there.outcome == ReadResult::Outcome::NotThere)
            return disk_.replace(backup, bytes);
    }
    return QStringLiteral("99 .bak files exist already");
}

} // namespace orvinel
