// Mutated bytes as a region picture: nothing larger than the limit is decoded, and nothing breaks.

#include "support/MemoryDisk.h"
#include "ui/map/RegionPictures.h"

#include <cstdint>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    orvinel::MemoryDisk disk;
    const QString path = u"/o/1.jpg"_s;
    disk.put(path, QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    const QImage picture = orvinel::loadPicture(disk, path);
    if (picture.sizeInBytes() > orvinel::largestRegion)
        std::abort();
    return 0;
}
