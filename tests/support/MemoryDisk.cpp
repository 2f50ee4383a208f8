#include "support/MemoryDisk.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

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
        return u"the disk is full"_s;
    return std::nullopt;
}

DiskError MemoryDisk::replace(const QString& path, const QByteArray& content) {
    if (const DiskError error = change(u"replace "_s + path))
        return error;
    put(path, content);
    return std::nullopt;
}

DiskError MemoryDisk::rename(const QString& from, const QString& to) {
    if (const DiskError error = change(u"rename "_s + from + u" "_s + to))
        return error;
    if (!entries_.contains(from.toLower()) || entries_.contains(to.toLower()))
        return u"no such file, or the new name is taken"_s;
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
    if (const DiskError error = change(u"remove "_s + path))
        return error;
    return entries_.erase(path.toLower()) ? std::nullopt : DiskError(u"no such file"_s);
}

DiskError MemoryDisk::makeRunnable(const QString& path) {
    return change(u"runnable "_s + path);
}

DiskError MemoryDisk::createFolder(const QString& path) {
    if (const DiskError error = change(u"folder "_s + path))
        return error;
    putFolder(path);
    return std::nullopt;
}

DiskError MemoryDisk::removeFolder(const QString& path) {
    if (const DiskError error = change(u"remove folder "_s + path))
        return error;
    if (!list(path).empty())
        return u"the folder is not empty"_s;
    return entries_.erase(path.toLower()) ? std::nullopt : DiskError(u"no such folder"_s);
}

} // namespace orvinel
