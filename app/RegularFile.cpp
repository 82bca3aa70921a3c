#include "app/RegularFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace ZARN {

namespace {

int openRegularFile(const std::string& path)
{
    struct stat status = {};
    if (path.find('\0') != std::string::npos || ::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return -1;
    // The name may have been given to something else meanwhile: not blocking, and asked again of what was opened.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor >= 0 && (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))) {
        ::close(descriptor);
        return -1;
    }
    return descriptor;
}

bool readUpTo(int descriptor, std::size_t size, std::string& bytes)
{
    constexpr std::size_t piece = 64 * 1024;
    while (bytes.size() < size) {
        const std::size_t before = bytes.size();
        const std::size_t wanted = std::min(piece, size - before);
        bytes.resize(before + wanted);
        const ssize_t count = ::read(descriptor, bytes.data() + before, wanted);
        bytes.resize(before + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count == 0)
            return true;
        if (count < 0 && errno != EINTR)
            return false;
    }
    return true;
}

} // namespace

std::optional<std::string> readRegularFile(const std::string& path, std::size_t limit)
{
    const int descriptor = openRegularFile(path);
    if (descriptor < 0)
        return std::nullopt;
    std::string bytes;
    const bool complete = readUpTo(descriptor, limit + 1, bytes);
    ::close(descriptor);
    if (!complete)
        return std::nullopt;
    return bytes;
}

} // namespace ZARN
