#include "card/record/MemoryLimit.h"

#include <algorithm>
#include <cstdint>
#include <fstream>

#include <sys/resource.h>
#include <unistd.h>

namespace ZARN {

namespace {

const std::string kGroups = "/sys/fs/cgroup";

std::size_t pageSize()
{
    return static_cast<std::size_t>(std::max(1L, sysconf(_SC_PAGESIZE)));
}

std::size_t physicalMemory()
{
    const long pages = sysconf(_SC_PHYS_PAGES);
    return pages > 0 ? static_cast<std::size_t>(pages) * pageSize() : SIZE_MAX;
}

std::size_t leftAddressSpace()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return SIZE_MAX;
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return limit.rlim_cur - std::min<std::size_t>(limit.rlim_cur, pages * pageSize());
}

/// The group of this process in the unified hierarchy.
std::string ownGroup()
{
    std::ifstream groups("/proc/self/cgroup");
    for (std::string line; std::getline(groups, line);) {
        if (line.starts_with("0::/"))
            return kGroups + (line == "0::/" ? "" : line.substr(3));
    }
    return kGroups;
}

/// A number in a file; "max", and a file that is not there, limit nothing.
std::size_t limitIn(const std::string& file)
{
    std::size_t bytes = 0;
    return std::ifstream(file) >> bytes ? bytes : SIZE_MAX;
}

} // namespace

std::size_t availableMemory(const std::string& group)
{
    std::size_t least = std::min({physicalMemory(), leftAddressSpace(), limitIn(kGroups + "/memory/memory.limit_in_bytes")});
    for (std::string folder = group.empty() ? ownGroup() : group; folder.size() > 1; folder.erase(folder.rfind('/'))) {
        least = std::min(least, limitIn(folder + "/memory.max"));
        if (folder == kGroups || folder.find('/') == std::string::npos)
            break;
    }
    return least;
}

} // namespace ZARN
