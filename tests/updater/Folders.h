#pragma once

#include "support/MemoryDisk.h"
#include "updater/Package.h"

namespace orvinel {

// Files by path from a folder.
using Texts = std::map<QString, QByteArray>;

inline const QString home = QStringLiteral("/o/");

// What the version has in its folder, as players get it: with list and version.
inline Texts packaged(Texts files, const QByteArray& version) {
    files[QStringLiteral("Data/Version.txt")] = version + '\n';
    QByteArray list;
    for (const auto& [path, content] : files)
        list += sumOf(content) + "  " + path.toUtf8() + '\n';
    files[installedListPath] = list;
    return files;
}

inline PackageFiles entriesOf(const Texts& files, const QString& around = {}) {
    PackageFiles entries;
    for (const auto& [path, content] : files)
        entries[around + path] = {content, path == programFileName() || path == updaterFileName};
    return entries;
}

inline MemoryDisk& putAll(MemoryDisk& disk, const Texts& files) {
    for (const auto& [path, content] : files)
        disk.put(home + path, content);
    return disk;
}

// All files below the folder, and folders without any ("name/").
inline void gatherAll(const MemoryDisk& disk, const QString& below, Texts& found) {
    const std::vector<QString> names = disk.list(home + below);
    if (names.empty() && !below.isEmpty())
        found[below + u'/'] = {};
    for (const QString& name : names) {
        const QString path = below.isEmpty() ? name : below + u'/' + name;
        if (disk.folderExists(home + path))
            gatherAll(disk, path, found);
        else
            found[path] = disk.content(home + path);
    }
}

inline Texts everything(const MemoryDisk& disk) {
    Texts found;
    gatherAll(disk, {}, found);
    return found;
}

// Two versions whose programs, libraries, campaigns and languages all differ.
inline Texts oldVersion() {
    return packaged({{QStringLiteral("orvinel"), "old program"},
                     {QStringLiteral("update.exe"), "old updater"},
                     {QStringLiteral("qt.conf"), "same"},
                     {QStringLiteral("lib/libA.so"), "old A"},
                     {QStringLiteral("lib/libGone.so"), "old only"},
                     {QStringLiteral("docs/guide.md"), "old guide"},
                     {QStringLiteral("Campaign.01.Vale/Regions.txt"), "old vale"},
                     {QStringLiteral("Campaign.01.Vale/01.jpg"), "vale"},
                     {QStringLiteral("Campaign.02.Marsh/Regions.txt"), "old marsh"},
                     {QStringLiteral("Campaign.03.Dunes/Regions.txt"), "dunes"},
                     {QStringLiteral("Data/Characters.txt"), "01\tAda"},
                     {QStringLiteral("Data/Language.txt"), "old English"},
                     {QStringLiteral("Data/Languages/English.txt"), "old English"},
                     {QStringLiteral("Data/Languages/Deutsch.txt"), "old German"}},
                    "4.0.0");
}

inline Texts newVersion() {
    return packaged({{QStringLiteral("orvinel"), "new program"},
                     {QStringLiteral("update.exe"), "new updater"},
                     {QStringLiteral("qt.conf"), "same"},
                     {QStringLiteral("lib/libA.so"), "new A"},
                     {QStringLiteral("lib/plugins/new.so"), "new plugin"},
                     {QStringLiteral("docs/guide.md"), "new guide"},
                     {QStringLiteral("Campaign.01.Vale/Regions.txt"), "new vale"},
                     {QStringLiteral("Campaign.01.Vale/01.jpg"), "vale"},
                     {QStringLiteral("Campaign.02.Marsh/Regions.txt"), "new marsh"},
                     {QStringLiteral("Campaign.04.Peaks/Regions.txt"), "peaks"},
                     {QStringLiteral("Data/Characters.txt"), "01\tBert"},
                     {QStringLiteral("Data/Language.txt"), "new English"},
                     {QStringLiteral("Data/Languages/English.txt"), "new English"},
                     {QStringLiteral("Data/Languages/Deutsch.txt"), "new German"},
                     {QStringLiteral("Data/Languages/Italiano.txt"), "new Italian"}},
                    "4.1.0");
}

} // namespace orvinel
