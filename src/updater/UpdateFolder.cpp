#include "updater/UpdateFolder.h"

#include "updater/InstalledList.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char bringMark = '+';
constexpr char goneMark = '-';

QString folderOf(const QString& path) {
    return path.first(path.lastIndexOf(u'/'));
}

} // namespace

bool UpdateFolder::there(const QString& path) const {
    return disk_.length(path) > 0 || disk_.folderExists(path) ||
           disk_.read(path).outcome != ReadResult::Outcome::NotThere;
}

DiskError UpdateFolder::move(const QString& from, const QString& to) {
    const QString parent = folderOf(to);
    if (!disk_.folderExists(parent))
        if (const DiskError error = disk_.createFolder(parent))
            return error;
    return disk_.rename(from, to);
}

DiskError UpdateFolder::copyProgram(const QString& from, const QString& to) {
    const ReadResult read = disk_.read(from);
    if (read.outcome != ReadResult::Outcome::Read)
        return u"%1: %2"_s.arg(from, read.reason);
    if (const DiskError error = disk_.replace(to, read.bytes))
        return error;
    return disk_.makeRunnable(to);
}

DiskError UpdateFolder::pruneAbove(const QString& path) {
    for (QString parent = folderOf(path); parent.size() > folder_.size(); parent = folderOf(parent)) {
        if (!disk_.folderExists(parent))
            continue;
        if (!disk_.list(parent).empty())
            return std::nullopt;
        if (const DiskError error = disk_.removeFolder(parent))
            return error;
    }
    return std::nullopt;
}

void UpdateFolder::removeTree(const QString& path) {
    if (!disk_.folderExists(path))
        return;
    for (const QString& name : disk_.list(path)) {
        const QString inside = path + u'/' + name;
        if (disk_.folderExists(inside))
            removeTree(inside);
        else
            disk_.remove(inside);
    }
    disk_.removeFolder(path);
}

QByteArray writeJournal(const Journal& journal) {
    QByteArray text;
    for (const QString& path : journal.bring)
        text += bringMark + path.toUtf8() + '\n';
    for (const QString& path : journal.gone)
        text += goneMark + path.toUtf8() + '\n';
    return text;
}

std::optional<Journal> readJournal(const QByteArray& text) {
    Journal journal;
    if (!text.endsWith('\n'))
        return std::nullopt;
    for (const QByteArray& line : text.chopped(1).split('\n')) {
        const QString path = QString::fromUtf8(line.sliced(line.isEmpty() ? 0 : 1));
        if (!isPathBelow(path) || (line[0] != bringMark && line[0] != goneMark))
            return std::nullopt;
        (line[0] == bringMark ? journal.bring : journal.gone) << path;
    }
    return journal;
}

} // namespace orvinel
