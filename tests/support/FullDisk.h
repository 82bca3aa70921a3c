#pragma once

#include "support/FileHelpers.h"

#include <algorithm>
#include <csignal>
#include <functional>

#include <sys/resource.h>

/// Lets no file of this process grow beyond a size while the object lives: the system then refuses writes as it does on
/// a full disk. Nothing else may be written meanwhile: standard output may be a file too.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &mBefore);
        rlimit limit = mBefore;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &mBefore); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit mBefore{};
};

/// Writes with the disk full after every number of bytes. @return an account of the first wrong outcome, empty when there is none.
inline std::string fillAtEveryByte(const std::string& target, const std::string& newText, std::size_t step, const std::function<bool()>& write)
{
    const std::string folder = target.substr(0, target.rfind('/'));
    const std::string old = "the old content";
    putFile(target, old);
    for (std::size_t limit = 0; limit <= newText.size(); limit = limit == newText.size() ? limit + 1 : std::min(limit + step, newText.size())) {
        bool done = false;
        {
            const FullDisk full(limit);
            done = write();
        }
        const bool right = done == (limit == newText.size()) && fileContent(target) == (done ? newText : old) && entryCount(folder) == 1;
        if (!right)
            return "full after " + std::to_string(limit) + " bytes";
    }
    return {};
}
