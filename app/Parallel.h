#pragma once

#include <cstddef>
#include <functional>

namespace ZARN {

/// Threads that inParallel() works on, the caller's among them.
inline constexpr std::size_t kWorkers = 2;

/// Calls `work` with each number below `count` and the number of the worker that calls it, below kWorkers: what a worker needs for itself can
/// stand in an array. In no order; returns when all are done. What the work throws is thrown here, after the others have ended.
void inParallel(std::size_t count, const std::function<void(std::size_t item, std::size_t worker)>& work);

} // namespace ZARN
