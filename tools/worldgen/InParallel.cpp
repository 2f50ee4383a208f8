#include "InParallel.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace worldgen {

void inParallel(std::size_t count, const std::function<void(std::size_t)>& work) {
    std::atomic<std::size_t> next = 0;
    std::vector<std::jthread> workers;
    const std::size_t processors = std::max(1U, std::thread::hardware_concurrency());
    for (std::size_t i = 0; i < std::min(count, processors); ++i) {
        workers.emplace_back([&] {
            for (std::size_t item = next++; item < count; item = next++)
                work(item);
        });
    }
}

} // namespace worldgen
