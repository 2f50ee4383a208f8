#pragma once

#include "ui/map/MapSurface.h"

#include <QString>

#include <list>
#include <memory>

namespace orvinel {

// Surfaces of regions left a while ago, so that going back needs no decoding. Bounded in bytes, the oldest go
// first.
class SurfaceCache {
  public:
    explicit SurfaceCache(qint64 mostBytes) : mostBytes_(mostBytes) {}

    void put(const QString& key, std::unique_ptr<MapSurface> surface);
    // Gives the surface away; nullptr when it is not there (any more).
    std::unique_ptr<MapSurface> take(const QString& key);
    void clear() { entries_.clear(); }

  private:
    struct Entry {
        QString key;
        std::unique_ptr<MapSurface> surface;
    };
    qint64 mostBytes_;
    std::list<Entry> entries_; // newest first
};

} // namespace orvinel
