#include "tools/Backup.h"

#include "base/FileDisk.h"
#include "tools/TarArchive.h"
#ifdef ORVINEL_ZIP
#include "tools/ZipArchive.h"
#endif
#include "world/modCampaigns.h"

#include <QCryptographicHash>

#include <algorithm>
#include <optional>
#include <set>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int deepestFolder = 8;
const QString sumsName = u"SHA256SUMS"_s;
const QString zipExtension = u".zip"_s;
const QString tarExtension = u".tar"_s;
#ifdef ORVINEL_ZIP
const QString newExtension = zipExtension;
#else
const QString newExtension = tarExtension;
#endif
const QString datedPrefix = u"orvinel-"_s;
const QString optionsName = u"Data/Options.txt"_s;
const QString personalName = u"Personal"_s;

QByteArray sumsOf(const std::vector<ArchivedFile>& files) {
    QByteArray sums;
    for (const ArchivedFile& file : files)
        sums += QCryptographicHash::hash(file.bytes, QCryptographicHash::Sha256).toHex() + "  " +
                file.name.toUtf8() + '\n';
    return sums;
}

// Empty when the archive cannot be made.
QByteArray archived(const QString& path, const std::vector<ArchivedFile>& files, const QDateTime& now) {
    if (path.endsWith(tarExtension))
        return writeTar(files, now).value_or(QByteArray());
#ifdef ORVINEL_ZIP
    return writeZip(files, now);
#else
    return {};
#endif
}

ArchiveContent readArchive(const QByteArray& bytes) {
#ifdef ORVINEL_ZIP
    if (bytes.startsWith("PK"))
        return readZip(bytes);
#endif
    return readTar(bytes);
}

// An archive from elsewhere must not write outside the player's files.
bool isPlayersFile(const QString& name) {
    if (name == optionsName)
        return true;
    const QStringList parts = name.split(u'/');
    return parts.size() >= 2 && parts.size() <= deepestFolder && parts[0] == personalName &&
           std::all_of(parts.begin(), parts.end(), [](const QString& part) {
               return !part.isEmpty() && part != u"." && part != u".." && isPlainFileName(part);
           });
}

// Nothing else than the player's files, each once, and unchanged since they were archived.
QString problemOf(std::vector<ArchivedFile>& files) {
    if (files.empty() || files.back().name != sumsName)
        return u"its check sums are missing"_s;
    const QByteArray sums = files.back().bytes;
    files.pop_back();
    if (sums != sumsOf(files))
        return u"a file in it does not match its check sum"_s;
    std::set<QString> names;
    for (const ArchivedFile& file : files) {
        if (!isPlayersFile(file.name))
            return u"%1 does not belong to the player's files"_s.arg(file.name);
        if (!names.insert(file.name.toLower()).second)
            return u"it holds %1 twice"_s.arg(file.name);
    }
    return {};
}

// Reads the player's files. All of them or none: half a backup would be trusted as a whole one.
class Gatherer {
  public:
    Gatherer(const Disk& disk, const QString& folder) : disk_(disk), folder_(folder) {}

    std::vector<ArchivedFile> files;
    QString problem;

    bool gather() {
        if (disk_.folderExists(folder_ + personalName))
            gatherFolder(personalName, 1);
        if (disk_.read(folder_ + optionsName).outcome != ReadResult::Outcome::NotThere)
            gatherFile(optionsName);
        return problem.isEmpty();
    }

  private:
    void gatherFolder(const QString& name, int depth) {
        if (depth >= deepestFolder)
            problem = u"%1: folders too deep"_s.arg(name);
        for (const QString& entry : disk_.list(folder_ + name)) {
            if (!problem.isEmpty())
                return;
            const QString path = name + u'/' + entry;
            if (entry.endsWith(unfinishedSuffix))
                continue;
            if (disk_.folderExists(folder_ + path))
                gatherFolder(path, depth + 1);
            else
                gatherFile(path);
        }
    }

    void gatherFile(const QString& name) {
        ReadResult read = disk_.read(folder_ + name);
        if (read.outcome == ReadResult::Outcome::Read)
            files.push_back({name, std::move(read.bytes)});
        else
            problem = u"%1: %2"_s.arg(name, read.outcome == ReadResult::Outcome::Failed ? read.reason
                                                                                        : u"leads nowhere"_s);
    }

    const Disk& disk_;
    QString folder_;
};

} // namespace

QString Backup::pathOf(const QString& name) const {
    const QString path = folder_ + u"Backups/"_s + name;
    for (const QString& extension : {zipExtension, tarExtension})
        if (name.endsWith(extension))
            return path;
    const bool isOld = disk_.read(path + tarExtension).outcome != ReadResult::Outcome::NotThere;
    return path + (isOld ? tarExtension : newExtension);
}

QStringList Backup::list() const {
    QStringList names;
    for (const QString& name : disk_.list(folder_ + u"Backups"_s))
        for (const QString& extension : {zipExtension, tarExtension})
            if (name.endsWith(extension))
                names << name.chopped(extension.size());
    std::sort(names.begin(), names.end()); // without the extension a second one of a second comes second
    return names;
}

QString Backup::latest() const {
    QStringList dated = list();
    dated.removeIf([](const QString& name) { return !name.startsWith(datedPrefix); });
    return dated.isEmpty() ? QString() : dated.last();
}

QString Backup::freeName(const QString& prefix) const {
    const QString dated = prefix + now_().toString(u"yyyyMMdd-HHmmss"_s);
    QString name = dated;
    for (int n = 2; disk_.read(pathOf(name)).outcome != ReadResult::Outcome::NotThere; ++n)
        name = dated + u'-' + QString::number(n);
    return name;
}

Backup::Content Backup::content(const QString& name) const {
    Content archive{name.isEmpty() ? latest() : name, {}, {}};
    if (archive.name.isEmpty() || !isPlainFileName(archive.name)) {
        archive.problem = name.isEmpty() ? u"there is no backup yet"_s : u"that is no file name"_s;
        return archive;
    }
    const ReadResult read = disk_.read(pathOf(archive.name));
    if (read.outcome != ReadResult::Outcome::Read) {
        archive.problem =
            read.outcome == ReadResult::Outcome::Failed ? read.reason : u"there is no such backup"_s;
        return archive;
    }
    ArchiveContent content = readArchive(read.bytes);
    archive.problem = content.problem.isEmpty() ? problemOf(content.files) : content.problem;
    archive.files = std::move(content.files);
    return archive;
}

Backup::Result Backup::save(const QString& name) {
    if (!name.isEmpty())
        return isPlainFileName(name) ? saveAs(name) : Result{false, u"%1 is no file name"_s.arg(name)};
    return saveAs(freeName(datedPrefix));
}

Backup::Result Backup::saveAs(const QString& file) {
    const QString path = pathOf(file);
    if (disk_.read(path).outcome != ReadResult::Outcome::NotThere)
        return {false, u"%1 exists already"_s.arg(path)};
    Gatherer gatherer(disk_, folder_);
    if (!gatherer.gather())
        return {false, gatherer.problem};
    if (gatherer.files.empty())
        return {false, u"there is nothing to save"_s};
    std::vector<ArchivedFile> entries = gatherer.files;
    entries.push_back({sumsName, sumsOf(entries)});
    const QByteArray archive = archived(path, entries, now_());
    if (archive.isEmpty())
        return {false, u"no archive can be made of it: is a file's name too long?"_s};
    if (archive.size() > largestDataFile)
        return {false, u"the player's files are larger than 64 MB together"_s};
    if (const DiskError error = disk_.replace(path, archive))
        return {false, u"%1: %2"_s.arg(path, *error)};
    const Content written = content(file);
    if (!written.problem.isEmpty() || written.files != gatherer.files)
        return {false, u"%1 was written but cannot be read back: %2"_s.arg(path, written.problem)};
    return {true, u"%1 files saved in %2"_s.arg(gatherer.files.size()).arg(path)};
}

Backup::Result Backup::verify(const QString& name) const {
    const Content archive = content(name);
    if (!archive.problem.isEmpty())
        return {false, u"%1: %2"_s.arg(archive.name, archive.problem)};
    QString text = u"%1 is whole:\n"_s.arg(archive.name);
    for (const ArchivedFile& file : archive.files)
        text += u"%1 %2\n"_s.arg(file.bytes.size(), 9).arg(file.name);
    text.chop(1);
    return {true, text};
}

Backup::Result Backup::restore(const QString& name, bool replace) {
    Content archive = content(name);
    if (!archive.problem.isEmpty())
        return {false, u"%1: %2"_s.arg(archive.name, archive.problem)};
    QStringList differing;
    std::erase_if(archive.files, [&](const ArchivedFile& file) {
        const ReadResult there = disk_.read(folder_ + file.name);
        const bool same = there.outcome == ReadResult::Outcome::Read && there.bytes == file.bytes;
        if (!same && there.outcome != ReadResult::Outcome::NotThere)
            differing << file.name;
        return same;
    });
    if (archive.files.empty())
        return {true, u"nothing to restore: all files are as in %1"_s.arg(archive.name)};
    if (!differing.isEmpty() && !replace)
        return {false,
                u"nothing was restored, since other versions are there (--replace replaces them):\n"_s +
                    differing.join(u'\n')};
    return write(archive);
}

// The table of characters goes last: a character in it has all its files.
Backup::Result Backup::write(const Content& archive) {
    Content before;
    if (Gatherer there(disk_, folder_); !there.gather())
        return {false, u"nothing was restored: "_s + there.problem};
    else if (!there.files.empty()) {
        before.name = freeName(u"before-restore-"_s);
        if (const Result saved = saveAs(before.name); !saved.good)
            return {false, u"nothing was restored, since what is there could not be saved: "_s + saved.text};
        before.files = std::move(there.files);
    }
    std::vector<ArchivedFile> order = archive.files;
    std::stable_partition(order.begin(), order.end(),
                          [](const ArchivedFile& file) { return !file.name.endsWith(u"/Characters.txt"_s); });
    QStringList written;
    for (const ArchivedFile& file : order) {
        if (const DiskError error = disk_.replace(folder_ + file.name, file.bytes)) {
            const DiskError stuck = putBack(written, before);
            return {false,
                    u"%1: %2\n"_s.arg(file.name, *error) +
                        (stuck ? u"some files are from the backup already; the old ones are in %1"_s.arg(
                                     before.name)
                               : u"nothing was restored"_s)};
        }
        written << file.name;
    }
    const QString kept = before.name.isEmpty() ? QString() : u"; the old ones are in "_s + before.name;
    return {true, u"%1 files restored from %2%3"_s.arg(written.size()).arg(archive.name, kept)};
}

DiskError Backup::putBack(const QStringList& written, const Content& before) {
    DiskError first;
    for (const QString& name : written) {
        const auto old = std::find_if(before.files.begin(), before.files.end(),
                                      [&](const ArchivedFile& file) { return file.name == name; });
        const DiskError error = old == before.files.end() ? disk_.remove(folder_ + name)
                                                          : disk_.replace(folder_ + name, old->bytes);
        if (error && !first)
            first = error;
    }
    return first;
}

} // namespace orvinel
