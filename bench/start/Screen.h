#pragma once

#include <cstddef>
#include <cstdint>

namespace bench {

// The frame buffer of a virtual X server, mapped from the file that it keeps it in: looking at it costs the
// server and the programs on it nothing.
class Screen {
  public:
    explicit Screen(const char* file);
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    bool valid() const { return pixels_ != nullptr; }
    // Tells two pictures apart; looks at every eighth row.
    std::uint64_t fingerprint() const;

  private:
    void* file_ = nullptr;
    std::size_t length_ = 0;
    const unsigned char* pixels_ = nullptr;
    std::size_t rowBytes_ = 0;
    std::size_t rows_ = 0;
};

} // namespace bench
