#include "app/FileDisk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <unistd.h>
#endif

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

#ifdef Q_OS_WIN
bool flushToMedium(QFileDevice&) {
    return true;
}
bool syncFolder(const QString&) {
    return true;
}
#else
bool flushToMedium(QFileDevice& file) {
    return ::fdatasync(file.handle()) == 0;
}

// The new name of a renamed file lasts only when its folder has reached the medium too.
bool syncFolder(const QString& folder) {
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
    if (handle < 0)
        return false;
    const bool synced = ::fsync(handle) == 0 || errno == EINVAL;
    ::close(handle);
    return synced;
}
#endif

QString lastError() {
    return QString::fromLocal8Bit(std::strerror(errno));
}

bool exists(const QString& path) {
    return QFileInfo::exists(path) || QFileInfo(path).isSymLink();
}

QString folderOf(const QString& path) {
    return path.first(path.lastIndexOf(u'/'));
}

std::vector<QString> namesIn(const QString& folder) {
    const QStringList names = QDir(folder).entryList(
        QDir::Dirs | QDir::Files | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
    std::vector<QString> sorted(names.begin(), names.end());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

} // namespace

QString FileDisk::resolve(const QString& path) const {
    if (exists(path) || !path.startsWith(root_))
        return path;
    QString resolved = root_;
    const QStringList components = path.sliced(root_.size()).split(u'/', Qt::SkipEmptyParts);
    for (const QString& component : components) {
        QString found = component;
        if (!exists(resolved + component)) {
            const std::vector<QString> names = namesIn(resolved);
            const auto same = std::find_if(names.begin(), names.end(), [&](const QString& name) {
                return name.compare(component, Qt::CaseInsensitive) == 0;
            });
            if (same != names.end())
                found = *same;
        }
        resolved += found + u'/';
    }
    resolved.chop(1);
    return resolved;
}

qint64 FileDisk::length(const QString& path) const {
    const QFileInfo file(path.isEmpty() ? path : resolve(path));
    return file.isFile() ? file.size() : 0;
}

bool FileDisk::folderExists(const QString& path) const {
    return !path.isEmpty() && QFileInfo(resolve(path)).isDir();
}

std::vector<QString> FileDisk::list(const QString& folder) const {
    return folder.isEmpty() ? std::vector<QString>() : namesIn(resolve(folder));
}

ReadResult FileDisk::read(const QString& path) const {
    const QFileInfo info(path.isEmpty() ? path : resolve(path));
    if (path.isEmpty() || !info.exists())
        return {};
    if (!info.isFile())
        return {ReadResult::Outcome::Failed, {}, u"not a plain file"_s};
    if (info.size() > largestDataFile)
        return {ReadResult::Outcome::Failed, {}, u"larger than 64 MB"_s};
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return {ReadResult::Outcome::Failed, {}, file.errorString()};
    QByteArray bytes = file.read(largestDataFile);
    if (file.error() != QFileDevice::NoError)
        return {ReadResult::Outcome::Failed, {}, file.errorString()};
    return {ReadResult::Outcome::Read, std::move(bytes), {}};
}

DiskError FileDisk::replace(const QString& path, const QByteArray& bytes) {
    const QString target = resolve(path);
    if (!QDir().mkpath(folderOf(target)))
        return u"the folder %1 cannot be created"_s.arg(folderOf(target));
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    // commit() ignores failing writes of what is still in its buffer and would put an empty file in place.
    const bool complete = file.write(bytes) == bytes.size() && file.flush() && flushToMedium(file);
    if (!complete) {
        const QString reason = file.error() == QFileDevice::NoError ? lastError() : file.errorString();
        file.cancelWriting();
        file.commit();
        return reason;
    }
    if (!file.commit())
        return file.errorString();
    syncFolder(folderOf(target)); // the file is whole either way; nothing better can be done when this fails
    return std::nullopt;
}

DiskError FileDisk::rename(const QString& from, const QString& to) {
    const QString source = resolve(from);
    const QString target = resolve(to);
    if (exists(target))
        return u"%1 exists already"_s.arg(to);
    if (std::rename(QFile::encodeName(source).constData(), QFile::encodeName(target).constData()) != 0)
        return lastError();
    syncFolder(folderOf(target));
    return std::nullopt;
}

DiskError FileDisk::remove(const QString& path) {
    QFile file(resolve(path));
    if (!file.remove())
        return file.errorString();
    syncFolder(folderOf(file.fileName()));
    return std::nullopt;
}

DiskError FileDisk::createFolder(const QString& path) {
    const QString folder = resolve(path);
    return QDir().mkpath(folder) ? std::nullopt : DiskError(u"the folder %1 cannot be created"_s.arg(folder));
}

DiskError FileDisk::removeFolder(const QString& path) {
    return QDir().rmdir(resolve(path)) ? std::nullopt : DiskError(u"the folder is not empty"_s);
}

} // namespace orvinel
