#pragma once

#include <cstddef>
#include <functional>

namespace worldgen {

// Runs `work(0)` .. `work(count - 1)` on all processors and returns when all are done.
void inParallel(std::size_t count, const std::function<void(std::size_t)>& work);

} // namespace worldgen
