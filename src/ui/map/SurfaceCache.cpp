#include "ui/map/SurfaceCache.h"

#include <algorithm>

namespace orvinel {

void SurfaceCache::put(const QString& key, std::unique_ptr<MapSurface> surface) {
    entries_.push_front({key, std::move(surface)});
    qint64 bytes = 0;
    for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) {
        bytes += entry->surface->cost();
        if (bytes > mostBytes_) {
            entries_.erase(entry, entries_.end());
            return;
        }
    }
}

std::unique_ptr<MapSurface> SurfaceCache::take(const QString& key) {
    const auto found =
        std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) { return entry.key == key; });
    if (found == entries_.end())
        return nullptr;
    std::unique_ptr<MapSurface> surface = std::move(found->surface);
    entries_.erase(found);
    return surface;
}

} // namespace orvinel
