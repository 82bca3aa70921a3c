#include "cli/StartUp.h"

#include "cli/Command.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>

#include <fcntl.h>
#include <unistd.h>

namespace ZARN {

namespace {

constexpr const char* kNoMemory = "zarn-cli: there is not enough memory for this work\n";

/// Memory ran out where no exception may pass: nothing can be tidied up, but it is said.
[[noreturn]] void endAtOnce()
{
    try {
        if (const std::exception_ptr reason = std::current_exception())
            std::rethrow_exception(reason);
    } catch (const std::bad_alloc&) {
        std::fputs(kNoMemory, stderr);
        std::_Exit(eFailed);
    } catch (...) {
    }
    std::abort();
}

/// A file that the work opens must not become standard output or error because the caller closed these.
void holdStandardDescriptors()
{
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (fcntl(descriptor, F_GETFD) < 0 && errno == EBADF) [[maybe_unused]]
            const int held = open("/dev/null", descriptor == STDERR_FILENO ? O_WRONLY : O_RDONLY); // writing results fails
    }
}

} // namespace

int startUp(int argc, char** argv, const std::function<int(std::vector<std::string>)>& work)
{
    holdStandardDescriptors();
    // Full disks and closed pipes arrive as failed writes, so that they are said and no partial file stays.
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    std::signal(SIGPIPE, SIG_IGN);
    std::set_terminate(&endAtOnce);
    try {
        return work({argv + std::min(argc, 1), argv + argc});
    } catch (const std::bad_alloc&) {
        std::fputs(kNoMemory, stderr);
        return eFailed;
    }
}

} // namespace ZARN
