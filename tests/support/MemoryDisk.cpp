#include "support/MemoryDisk.h"

namespace orvinel {

QByteArray bytes(const char* text) {
    return QByteArray(text);
}

namespace {

QString folderOf(const QString& path) {
    return path.first(path.lastIndexOf(u'/'));
}

} // namespace

MemoryDisk& MemoryDisk::put(const QString& path, const QByteArray& content) {
    putFolder(folderOf(path));
    entries_[path.toLower()] = {path, false, content.isNull() ? QByteArray("") : content};
    return *this;
}

MemoryDisk& MemoryDisk::putFolder(const QString& path) {
    if (!path.isEmpty()) {
        putFolder(folderOf(path));
        entries_.insert({path.toLower(), {path, true, {}}});
    }
    return *this;
}

QByteArray MemoryDisk::content(const QString& path) const {
    const auto found = entries_.find(path.toLower());
    return found == entries_.end() || found->second.folder ? QByteArray() : found->second.content;
}

qint64 MemoryDisk::length(const QString& path) const {
    return content(path).size();
}

bool MemoryDisk::folderExists(const QString& path) const {
    const auto found = entries_.find(path.toLower());
    return found != entries_.end() && found->second.folder;
}

std::vector<QString> MemoryDisk::list(const QString& folder) const {
    const QString prefix = folder.endsWith(u'/') ? folder : folder + u'/';
    std::vector<QString> names;
    for (const auto& [key, entry] : entries_)
        if (key.startsWith(prefix.toLower()) && key.indexOf(u'/', prefix.size()) < 0 &&
            key.size() > prefix.size())
            names.push_back(entry.name.sliced(prefix.size()));
    std::sort(names.begin(), names.end());
    return names;
}

QString MemoryDisk::resolve(const QString& path) const {
    const auto found = entries_.find(path.toLower());
    return found == entries_.end() ? path : found->second.name;
}

ReadResult MemoryDisk::read(const QString& path) const {
    if (const auto broken = unreadable.find(path); broken != unreadable.end())
        return {ReadResult::Outcome::Failed, {}, broken->second};
    const QByteArray found = content(path);
    if (found.isNull())
        return {};
    return {ReadResult::Outcome::Read, found, {}};
}

DiskError MemoryDisk::change(const QString& what) {
    log.push_back(what);
    ++changes_;
    if (failAt > 0 && (changes_ == failAt || (changes_ > failAt && !failOnce)))
        return QStringLiteral("the disk is full");
    return std::nullopt;
}

DiskError MemoryDisk::replace(const QString& path, const QByteArray& content) {
    if (const DiskError error = change(QStringLiteral("replace ") + path))
        return error;
    put(path, content);
    return std::nullopt;
}

DiskError MemoryDisk::rename(const QString& from, const QString& to) {
    if (const DiskError error = change(QStringLiteral("rename ") + from + QStringLiteral(" ") + to))
        return error;
    if (!entries_.contains(from.toLower()) || entries_.contains(to.toLower()))
        return QStringLiteral("no such file, or the new name is taken");
    std::map<QString, Entry> moved;
    for (const auto& [key, entry] : entries_) {
        const bool inside = key == from.toLower() || key.startsWith(from.toLower() + u'/');
        const QString name = inside ? to + entry.name.sliced(from.size()) : entry.name;
        moved[name.toLower()] = {name, entry.folder, entry.content};
    }
    entries_ = std::move(moved);
    return std::nullopt;
}

DiskError MemoryDisk::remove(const QString& path) {
    if (const DiskError error = change(QStringLiteral("remove ") + path))
        return error;
    return entries_.erase(path.toLower()) ? std::nullopt : DiskError(QStringLiteral("no such file"));
}

DiskError MemoryDisk::makeRunnable(const QString& path) {
    return change(QStringLiteral("runnable ") + path);
}

DiskError MemoryDisk::createFolder(const QString& path) {
    if (const DiskError error = change(QStringLiteral("folder ") + path))
        return error;
    putFolder(path);
    return std::nullopt;
}

DiskError MemoryDisk::removeFolder(const QString& path) {
    if (const DiskError error = change(QStringLiteral("remove folder ") + path))
        return error;
    if (!list(path).empty())
        return QStringLiteral("the folder is not empty");
    return entries_.erase(path.toLower()) ? std::nullopt : DiskError(QStringLiteral("no such folder"));
}

} // namespace orvinel
