#include "updater/Package.h"

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// The part of all paths before the folder's own: empty or "Orvinel-4.0.0/". Nothing without a list.
std::optional<QString> folderAround(const PackageFiles& entries) {
    for (const auto& [path, file] : entries) {
        const QString around =
            path.endsWith(installedListPath) ? path.chopped(installedListPath.size()) : u"-"_s;
        if (around.isEmpty() || (around.endsWith(u'/') && around.count(u'/') == 1))
            return around;
    }
    return std::nullopt;
}

// The first file that is not as the list says, or that the list does not know.
QString firstDamaged(const PackageFiles& files, const FileSums& sums) {
    for (const auto& [path, sum] : sums) {
        const auto file = files.find(path);
        if (file == files.end() || sumOf(file->second.bytes) != sum)
            return path;
    }
    for (const auto& [path, file] : files)
        if (path != installedListPath && !sums.contains(path))
            return path;
    return {};
}

Package faulty(PackageFault fault, const QString& about) {
    Package package;
    package.fault = fault;
    package.about = about;
    return package;
}

} // namespace

QString programFileName() {
#ifdef Q_OS_WIN
    return u"orvinel.exe"_s;
#else
    return u"orvinel"_s;
#endif
}

Package checkedPackage(PackageFiles entries) {
    const std::optional<QString> around = folderAround(entries);
    if (!around)
        return faulty(PackageFault::NotOrvinel, {});
    Package package;
    for (auto& [path, file] : entries) {
        if (!path.startsWith(*around))
            return faulty(PackageFault::Damaged, path);
        package.files[path.sliced(around->size())] = std::move(file);
    }
    const std::optional<FileSums> sums = readInstalledList(package.files[installedListPath].bytes);
    if (!sums)
        return faulty(PackageFault::Damaged, installedListPath);
    const QString damaged = firstDamaged(package.files, *sums);
    if (!damaged.isEmpty())
        return faulty(PackageFault::Damaged, damaged);
    if (!sums->contains(programFileName()) || !sums->contains(updaterFileName))
        return faulty(PackageFault::OtherSystem, {});
    package.version = readVersion(package.files[installedVersionPath].bytes);
    if (package.version.isEmpty())
        return faulty(PackageFault::Damaged, installedVersionPath);
    package.sums = *sums;
    return package;
}

} // namespace orvinel
