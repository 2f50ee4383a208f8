#include "base/RationedDisk.h"

namespace orvinel {

ReadResult RationedDisk::read(const QString& path) const {
    // Asked first: what is refused need not pass through the memory.
    if (disk_.length(path) <= left_) {
        ReadResult result = disk_.read(path);
        left_ -= result.bytes.size();
        return result;
    }
    exhausted_ = true;
    return {ReadResult::Outcome::Failed, {}, QStringLiteral("all data files together are too large")};
}

} // namespace orvinel
