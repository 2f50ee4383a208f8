#include "start/Screen.h"

#include <cstring>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace bench {

namespace {

constexpr std::size_t rowStep = 8;

// The header of an X window dump: big-endian numbers of four bytes.
std::size_t headerNumber(const void* file, std::size_t index) {
    unsigned char bytes[4];
    std::memcpy(bytes, static_cast<const unsigned char*>(file) + 4 * index, 4);
    return std::size_t(bytes[0]) << 24 | std::size_t(bytes[1]) << 16 | std::size_t(bytes[2]) << 8 | bytes[3];
}

} // namespace

Screen::Screen(const char* file) {
    const int handle = open(file, O_RDONLY);
    struct stat about = {};
    if (handle < 0 || fstat(handle, &about) != 0)
        return;
    length_ = std::size_t(about.st_size);
    void* mapped = mmap(nullptr, length_, PROT_READ, MAP_SHARED, handle, 0);
    close(handle);
    if (mapped == MAP_FAILED)
        return;
    file_ = mapped;
    rows_ = headerNumber(file_, 5);
    rowBytes_ = headerNumber(file_, 12);
    if (rows_ * rowBytes_ > 0 && rows_ * rowBytes_ <= length_)
        pixels_ = static_cast<const unsigned char*>(file_) + (length_ - rows_ * rowBytes_);
}

Screen::~Screen() {
    if (file_)
        munmap(file_, length_);
}

std::uint64_t Screen::fingerprint() const {
    std::uint64_t print = 1469598103934665603u;
    for (std::size_t row = 0; row < rows_; row += rowStep)
        for (std::size_t at = 0; at + 8 <= rowBytes_; at += 8) {
            std::uint64_t pixels;
            std::memcpy(&pixels, pixels_ + row * rowBytes_ + at, 8);
            print = (print ^ pixels) * 1099511628211u;
        }
    return print;
}

} // namespace bench
