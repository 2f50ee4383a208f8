#include "base/FileDisk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

#ifdef Q_OS_WIN
QString lastError() {
    return qt_error_string(static_cast<int>(GetLastError()));
}

bool flushToMedium(QFileDevice& file) {
    return FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()))) != 0;
}

// The system has no such call: a file is renamed for good as soon as MOVEFILE_WRITE_THROUGH returns.
bool syncFolder(const QString&) {
    return true;
}

// As the system takes it without a limit to its length. `path` is absolute.
std::wstring nativePath(const QString& path) {
    const QString native = QDir::toNativeSeparators(path);
    const bool network = native.startsWith(u"\\\\"_s);
    return ((network ? u"\\\\?\\UNC"_s : u"\\\\?\\"_s) + native.sliced(network ? 1 : 0)).toStdWString();
}

// Rights are asked for, but nothing is made: the system answers with a handle or without.
bool newFilesAllowed(const QString& folder) {
    const HANDLE handle = CreateFileW(nativePath(folder).c_str(), FILE_ADD_FILE | FILE_ADD_SUBDIRECTORY,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return GetLastError() != ERROR_ACCESS_DENIED && GetLastError() != ERROR_WRITE_PROTECT;
    CloseHandle(handle);
    return true;
}

DiskError takePlace(const QString& from, const QString& to) {
    // Virus scanners and the search index open what has just been written, for an instant.
    constexpr int tries = 20;
    constexpr DWORD pause = 25; // milliseconds
    for (int i = 0; i < tries; ++i) {
        if (MoveFileExW(nativePath(from).c_str(), nativePath(to).c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return std::nullopt;
        if (GetLastError() != ERROR_SHARING_VIOLATION && GetLastError() != ERROR_ACCESS_DENIED)
            break;
        if (i + 1 < tries)
            Sleep(pause);
    }
    return lastError();
}
#else
QString lastError() {
    return QString::fromLocal8Bit(std::strerror(errno));
}

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

bool newFilesAllowed(const QString& folder) {
    return ::access(QFile::encodeName(folder).constData(), W_OK | X_OK) == 0 ||
           (errno != EACCES && errno != EROFS && errno != EPERM);
}

DiskError takePlace(const QString& from, const QString& to) {
    const bool moved =
        std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
    return moved ? std::nullopt : DiskError(lastError());
}
#endif

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

// Where a file that is a symbolic link really lies, so that the link stays one. A chain without an end is
// left to the system to complain of.
QString linkTarget(QString path) {
    constexpr int longestChain = 40;
    for (int i = 0; i < longestChain && QFileInfo(path).isSymLink(); ++i)
        path = QFileInfo(path).symLinkTarget();
    return path;
}

// Each folder above that is new lasts only when the one that holds it has reached the medium.
DiskError makeFolder(const QString& folder) {
    if (QFileInfo(folder).isDir())
        return std::nullopt;
    const QString above = folder.contains(u'/') ? folderOf(folder) : QString();
    if (!above.isEmpty())
        if (const DiskError error = makeFolder(above))
            return error;
    if (!QDir().mkdir(folder) && !QFileInfo(folder).isDir())
        return u"the folder %1 cannot be created"_s.arg(folder);
    syncFolder(above);
    return std::nullopt;
}

// Writes a new file whole and safely, with the permissions of the one that it is going to replace.
DiskError writeUnfinished(const QString& path, const QByteArray& bytes, const QFileInfo& old) {
    QFile::remove(path); // of a save that was cut off
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return file.errorString();
    // Some shares refuse every change of permissions, also one to what they are.
    if (old.exists() && file.permissions() != old.permissions() && !file.setPermissions(old.permissions()))
        return file.errorString();
    if (file.write(bytes) != bytes.size())
        return file.errorString();
    return flushToMedium(file) ? std::nullopt : DiskError(lastError());
}

} // namespace

const std::vector<QString>& FileDisk::namesOnce(const QString& folder) const {
    // Two changes shortly after one another can carry the same time.
    constexpr qint64 settledMs = 1000;
    const QDateTime changed = QFileInfo(folder).lastModified();
    if (latest_.folder == folder && latest_.changed.isValid() && latest_.changed == changed)
        return latest_.names;
    const bool settled = changed.msecsTo(QDateTime::currentDateTime()) > settledMs;
    latest_ = {folder, settled ? changed : QDateTime(), namesIn(folder)};
    return latest_.names;
}

QString FileDisk::resolve(const QString& path) const {
    if (exists(path) || !path.startsWith(root_))
        return path;
    QString resolved = root_;
    const QStringList components = path.sliced(root_.size()).split(u'/', Qt::SkipEmptyParts);
    for (const QString& component : components) {
        QString found = component;
        if (!exists(resolved + component)) {
            const std::vector<QString>& names = namesOnce(resolved);
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

bool FileDisk::mayWrite(const QString& folder) const {
    const QString resolved = resolve(folder);
    return QFileInfo(resolved).isDir() && newFilesAllowed(resolved);
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
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {ReadResult::Outcome::Failed, {}, file.errorString()};
    // Not more than asked for is set aside: the memory for the largest file would be fetched anew each time.
    QByteArray bytes = file.read(std::min(file.size(), largestDataFile));
    if (file.error() != QFileDevice::NoError)
        return {ReadResult::Outcome::Failed, {}, file.errorString()};
    return {ReadResult::Outcome::Read, std::move(bytes), {}};
}

DiskError FileDisk::replace(const QString& path, const QByteArray& bytes) {
    const QString target = linkTarget(resolve(path));
    if (const DiskError error = makeFolder(folderOf(target)))
        return error;
    const QFileInfo present(target);
    if (present.isSymLink())
        return u"the symbolic links lead in a circle"_s;
    if (present.exists() && !present.isFile())
        return u"not a plain file"_s;
    if (present.exists() && !present.isWritable())
        return u"the file is write-protected"_s;
    const QString unfinished = target + unfinishedSuffix;
    DiskError error = writeUnfinished(unfinished, bytes, present);
    if (!error)
        error = takePlace(unfinished, target);
    if (error)
        QFile::remove(unfinished);
    else
        syncFolder(
            folderOf(target)); // the file is whole either way; nothing better can be done when this fails
    return error;
}

DiskError FileDisk::rename(const QString& from, const QString& to) {
    const QString source = resolve(from);
    const QString target = resolve(to);
    if (exists(target))
        return u"%1 exists already"_s.arg(to);
    if (const DiskError error = takePlace(source, target))
        return error;
    syncFolder(folderOf(target));
    // Else the old name may come back, while what followed upon the move has lasted.
    if (folderOf(source) != folderOf(target))
        syncFolder(folderOf(source));
    return std::nullopt;
}

DiskError FileDisk::remove(const QString& path) {
    QFile file(resolve(path));
    if (!file.remove())
        return file.errorString();
    syncFolder(folderOf(file.fileName()));
    return std::nullopt;
}

DiskError FileDisk::makeRunnable(const QString& path) {
    QFile file(resolve(path));
    QFile::Permissions permissions = file.permissions();
    const std::pair<QFile::Permission, QFile::Permission> classes[] = {{QFile::ReadOwner, QFile::ExeOwner},
                                                                       {QFile::ReadUser, QFile::ExeUser},
                                                                       {QFile::ReadGroup, QFile::ExeGroup},
                                                                       {QFile::ReadOther, QFile::ExeOther}};
    for (const auto& [read, run] : classes)
        if (permissions.testFlag(read))
            permissions |= run;
    return file.setPermissions(permissions) ? std::nullopt : DiskError(file.errorString());
}

DiskError FileDisk::createFolder(const QString& path) {
    return makeFolder(resolve(path));
}

DiskError FileDisk::removeFolder(const QString& path) {
    return QDir().rmdir(resolve(path)) ? std::nullopt : DiskError(u"the folder is not empty"_s);
}

} // namespace orvinel
