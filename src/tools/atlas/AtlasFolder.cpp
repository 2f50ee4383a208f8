#include "tools/atlas/AtlasFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// Names every file of an atlas's folder: what is not in it is somebody else's.
constexpr QLatin1String contentsName("contents.txt");

QByteArray contentsOf(const std::vector<AtlasFile>& files) {
    QByteArray text;
    for (const AtlasFile& file : files)
        text += file.path.toUtf8() + '\n';
    return text;
}

QString systemPath(const QString& path) {
    return QDir::toNativeSeparators(path);
}

// Why the folder may not be replaced; nothing when it is not there, empty, or an atlas and nothing but one.
DiskError strangersIn(const QString& folder) {
    if (QFileInfo(folder).exists() && !QFileInfo(folder).isDir())
        return u"%1: there is a file of this name"_s.arg(systemPath(folder));
    if (!QDir(folder).exists() ||
        QDir(folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        return std::nullopt;
    QFile contents(folder + u'/' + contentsName);
    if (!contents.open(QIODevice::ReadOnly))
        return u"%1: the folder is not empty and holds no atlas"_s.arg(systemPath(folder));
    QSet<QString> known{contentsName};
    for (const QByteArray& line : contents.readAll().split('\n'))
        known.insert(QString::fromUtf8(line));
    QDirIterator walk(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString file = walk.next();
        if (!known.contains(file.sliced(folder.size() + 1)))
            return u"%1: this file is none of the atlas's; move it away first"_s.arg(systemPath(file));
    }
    return std::nullopt;
}

// A full disk takes a part first; only the attempt to write the rest says why.
bool writeBytes(QFile& file, const QByteArray& bytes) {
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 taken = file.write(bytes.constData() + done, bytes.size() - done);
        if (taken <= 0)
            return false;
        done += taken;
    }
    return true;
}

DiskError writeFile(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeBytes(file, bytes))
        return std::nullopt;
    return u"%1: %2"_s.arg(systemPath(path), file.errorString());
}

DiskError writeOne(const Disk& disk, const QString& folder, const AtlasFile& file) {
    const QString path = folder + u'/' + file.path;
    if (file.copyOf.isEmpty())
        return writeFile(path, file.bytes);
    const ReadResult source = disk.read(file.copyOf);
    if (source.outcome == ReadResult::Outcome::Failed)
        return u"%1: %2"_s.arg(systemPath(file.copyOf), source.reason);
    return writeFile(path, source.bytes);
}

DiskError writeAll(const Disk& disk, const QString& folder, const std::vector<AtlasFile>& files,
                   const std::function<void(int)>& progress) {
    if (!QDir().mkpath(folder))
        return u"%1: the folder could not be made"_s.arg(systemPath(folder));
    int done = 0;
    for (const AtlasFile& file : files) {
        if (const DiskError error = writeOne(disk, folder, file))
            return error;
        progress(++done);
    }
    return writeFile(folder + u'/' + contentsName, contentsOf(files));
}

// The old folder stands aside until the new one has its name.
DiskError putInPlace(const QString& made, const QString& folder) {
    const QString old = made + u".old"_s;
    const bool replaced = QDir(folder).exists();
    if (replaced && !QDir().rename(folder, old))
        return u"%1: the folder could not be replaced"_s.arg(systemPath(folder));
    if (!QDir().rename(made, folder)) {
        if (replaced)
            QDir().rename(old, folder);
        return u"%1: the folder could not be made"_s.arg(systemPath(folder));
    }
    if (replaced)
        QDir(old).removeRecursively();
    return std::nullopt;
}

// Beside the folder, so that giving it its name moves no bytes; nobody else's.
QString freeNameBeside(const QString& folder) {
    for (int n = 1;; ++n)
        if (const QString name = u"%1.unfinished%2"_s.arg(folder).arg(n);
            !QFileInfo::exists(name) && !QFileInfo::exists(name + u".old"_s))
            return name;
}

} // namespace

DiskError writeAtlasFolder(const Disk& disk, const QString& folder, const std::vector<AtlasFile>& files,
                           const std::function<void(int)>& progress) {
    if (const DiskError error = strangersIn(folder))
        return error;
    const QString made = freeNameBeside(folder);
    DiskError error = writeAll(disk, made, files, progress);
    if (!error)
        error = putInPlace(made, folder);
    if (error) {
        QDir(made).removeRecursively();
        error->replace(systemPath(made), systemPath(folder)); // the name that the player gave
    }
    return error;
}

} // namespace orvinel
