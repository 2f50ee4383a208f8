#include "base/RationedDisk.h"

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

qint64 RationedDisk::length(const QString& path) const {
    const std::lock_guard alone(asking_);
    return disk_.length(path);
}

bool RationedDisk::folderExists(const QString& path) const {
    const std::lock_guard alone(asking_);
    return disk_.folderExists(path);
}

std::vector<QString> RationedDisk::list(const QString& folder) const {
    const std::lock_guard alone(asking_);
    return disk_.list(folder);
}

QString RationedDisk::resolve(const QString& path) const {
    const std::lock_guard alone(asking_);
    return disk_.resolve(path);
}

ReadResult RationedDisk::read(const QString& path) const {
    const std::lock_guard alone(asking_);
    // Asked first: what is refused need not pass through the memory.
    if (disk_.length(path) <= left_) {
        ReadResult result = disk_.read(path);
        left_ -= result.bytes.size();
        return result;
    }
    if (std::find(refused_.begin(), refused_.end(), path) == refused_.end())
        refused_.push_back(path);
    return {ReadResult::Outcome::Failed, {}, u"all data files together are too large"_s};
}

} // namespace orvinel
