#include "app/Parallel.h"

#include <atomic>
#include <future>

namespace ZARN {

void inParallel(std::size_t count, const std::function<void(std::size_t item, std::size_t worker)>& work)
{
    std::atomic<std::size_t> next = 0;
    const auto run = [&](std::size_t worker) {
        for (std::size_t item = next++; item < count; item = next++)
            work(item, worker);
    };
    // Deferred, where the machine has no thread to give: then the caller finds nothing left to do.
    std::future<void> other = std::async(std::launch::async | std::launch::deferred, run, 1);
    run(0);
    other.get();
}

} // namespace ZARN
