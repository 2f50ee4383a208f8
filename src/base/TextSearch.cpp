#include "base/TextSearch.h"

#include <cstdint>
#include <cstring>

namespace orvinel {

namespace {

constexpr std::uint64_t ones = 0x0101010101010101u;
constexpr std::uint64_t highBits = 0x8080808080808080u;

std::uint64_t eightBytes(const char* from) {
    std::uint64_t bytes;
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

std::uint64_t eightTimes(char c) {
    return ones * static_cast<unsigned char>(c);
}

bool hasZeroByte(std::uint64_t bytes) {
    return ((bytes - ones) & ~bytes & highBits) != 0;
}

} // namespace

bool occursIn(std::string_view text, std::string_view needle) {
    const size_t length = needle.size();
    if (length < 2 || text.size() < length + 8)
        return text.find(needle) != std::string_view::npos;
    const std::uint64_t first = eightTimes(needle.front());
    const std::uint64_t last = eightTimes(needle.back());
    const char* at = text.data();
    const char* const lastBlock = text.data() + text.size() - (length - 1) - 8;
    for (; at <= lastBlock; at += 8) {
        const std::uint64_t differs = (eightBytes(at) ^ first) | (eightBytes(at + length - 1) ^ last);
        if (!hasZeroByte(differs))
            continue;
        for (size_t i = 0; i < 8; ++i)
            if (std::memcmp(at + i, needle.data(), length) == 0)
                return true;
    }
    return text.substr(static_cast<size_t>(at - text.data())).find(needle) != std::string_view::npos;
}

} // namespace orvinel
