#include "tools/SnapshotDisk.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

SnapshotDisk::SnapshotDisk(const Disk& disk, const QString& folder, const std::vector<ArchivedFile>& files)
    : disk_(disk), personal_((folder + u"Personal/"_s).toLower()) {
    for (const ArchivedFile& file : files)
        old_.insert((folder + file.name).toLower(), file.bytes);
}

bool SnapshotDisk::isPlayers(const QString& path) const {
    return path.toLower().startsWith(personal_) || old_.contains(path.toLower());
}

qint64 SnapshotDisk::length(const QString& path) const {
    return isPlayers(path) ? old_.value(path.toLower()).size() : disk_.length(path);
}

ReadResult SnapshotDisk::read(const QString& path) const {
    if (!isPlayers(path))
        return disk_.read(path);
    const auto there = old_.constFind(path.toLower());
    if (there == old_.cend())
        return {};
    return {ReadResult::Outcome::Read, *there, {}};
}

} // namespace orvinel
