#include "app/SafeFile.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <system_error>
#include <utility>

namespace ZARN {

namespace {

constexpr std::size_t gatherSize = 256 * 1024;

#ifdef O_PATH
constexpr int directoryFlags = O_PATH | O_DIRECTORY | O_CLOEXEC;
#else
constexpr int directoryFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
#endif

std::string folderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

/// Follows the symbolic links of the last component, also to a file that does not exist yet. @return an error number or 0.
int followLinks(std::string& path)
{
    constexpr int longestChain = 40;
    for (int i = 0; i < longestChain; ++i) {
        std::array<char, 4096> buffer;
        const ssize_t length = ::readlink(path.c_str(), buffer.data(), buffer.size());
        if (length < 0)
            return errno == EINVAL || errno == ENOENT ? 0 : errno;
        if (static_cast<std::size_t>(length) == buffer.size())
            return ENAMETOOLONG;
        const std::string link(buffer.data(), static_cast<std::size_t>(length));
        path = link.starts_with('/') ? link : folderOf(path) + link;
    }
    return ELOOP;
}

/// A short name, so that it fits wherever the target's own does. Hidden: the program's folder listings pass it over.
std::string temporaryName()
{
    static std::atomic<unsigned> counter = 0;
    struct timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    std::array<char, 64> name;
    std::snprintf(name.data(), name.size(), ".zarn-%lx-%lx-%x.tmp", static_cast<unsigned long>(::getpid()),
                  static_cast<unsigned long>(now.tv_nsec), counter++);
    return name.data();
}

/// Calls `create(name)` with fresh names until one is not taken. @return the name, empty with errno set when it failed.
template <typename Create> std::string createTemporary(Create create)
{
    constexpr int attempts = 100;
    for (int i = 0; i < attempts; ++i) {
        std::string name = temporaryName();
        if (create(name.c_str()) >= 0)
            return name;
        if (errno != EEXIST)
            break;
    }
    return {};
}

std::string descriptorLink(int descriptor)
{
    return "/proc/self/fd/" + std::to_string(descriptor);
}

/// Waits until a descriptor that somebody made non-blocking takes more.
bool waitWritable(int descriptor)
{
    struct pollfd request = {descriptor, POLLOUT, 0};
    return ::poll(&request, 1, -1) >= 0 || errno == EINTR;
}

} // namespace

struct SafeFile::Replaced {
    mode_t mode;
    uid_t owner;
    gid_t group;
};

SafeFile::SafeFile(std::string path) : mPath(std::move(path)) {}

SafeFile::SafeFile(int descriptor, std::string name) : mPath(std::move(name)), mDescriptor(descriptor), mOwnsDescriptor(false)
{
    if (descriptor < 0)
        fail(EBADF);
}

SafeFile SafeFile::onDescriptor(int descriptor, std::string name)
{
    return SafeFile(descriptor, std::move(name));
}

SafeFile::~SafeFile()
{
    discard();
}

bool SafeFile::fail(int reason)
{
    if (mError.empty()) {
        mError = mPath + ": " + std::system_category().message(reason);
        mIsPipeClosed = reason == EPIPE;
    }
    discard();
    return false;
}

void SafeFile::discard()
{
    if (mDescriptor >= 0 && mOwnsDescriptor)
        ::close(mDescriptor);
    mDescriptor = -1;
    if (!mTemporaryName.empty())
        ::unlinkat(mDirectory, mTemporaryName.c_str(), 0);
    mTemporaryName.clear();
    if (mDirectory >= 0)
        ::close(mDirectory);
    mDirectory = -1;
}

bool SafeFile::open()
{
    if (!mError.empty())
        return false;
    if (mDescriptor >= 0)
        return true;
    if (mPath.empty())
        return fail(ENOENT);
    if (mPath.find('\0') != std::string::npos)
        return fail(EINVAL);
    struct stat status = {};
    const bool exists = ::stat(mPath.c_str(), &status) == 0;
    if (!exists && errno != ENOENT)
        return fail(errno);
    if (exists && S_ISDIR(status.st_mode))
        return fail(EISDIR);
    if (exists && !S_ISREG(status.st_mode))
        return openDirectly();
    // Replacing needs no right to write the old file, but who protected it does not want it changed.
    if (exists && ::faccessat(AT_FDCWD, mPath.c_str(), W_OK, AT_EACCESS) != 0)
        return fail(errno);
    std::string target = mPath;
    if (const int reason = followLinks(target))
        return fail(reason);
    const Replaced replaced = {static_cast<mode_t>(status.st_mode & 07777), status.st_uid, status.st_gid};
    return openTemporary(target, exists ? &replaced : nullptr);
}

bool SafeFile::openDirectly()
{
    do
        mDescriptor = ::open(mPath.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC);
    while (mDescriptor < 0 && errno == EINTR);
    return mDescriptor >= 0 || fail(errno);
}

bool SafeFile::openTemporary(const std::string& target, const Replaced* replaced)
{
    const std::string folder = folderOf(target);
    mTargetName = target.substr(folder.size());
    if (mTargetName.empty())
        return fail(EISDIR);
    mDirectory = ::open(folder.empty() ? "." : folder.c_str(), directoryFlags);
    if (mDirectory < 0 || (!openUnnamed() && !openNamed()))
        return fail(errno);
    if (!replaced)
        return true;
    // Giving a file away takes privileges; without them it belongs to who writes it, as a new one would.
    if ((replaced->owner != ::geteuid() || replaced->group != ::getegid()) && ::fchown(mDescriptor, replaced->owner, replaced->group) != 0)
        errno = 0;
    return ::fchmod(mDescriptor, replaced->mode) == 0 || fail(errno);
}

bool SafeFile::openUnnamed()
{
#ifdef O_TMPFILE
    mDescriptor = ::openat(mDirectory, ".", O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666);
    // Without this file system such a file could not be given a name later.
    if (mDescriptor >= 0 && ::access(descriptorLink(mDescriptor).c_str(), F_OK) != 0) {
        ::close(mDescriptor);
        mDescriptor = -1;
    }
#endif
    return mDescriptor >= 0;
}

bool SafeFile::openNamed()
{
    mTemporaryName = createTemporary([this](const char* name) {
        return mDescriptor = ::openat(mDirectory, name, O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
    });
    return mDescriptor >= 0;
}

bool SafeFile::nameTemporary()
{
    if (!mTemporaryName.empty())
        return true;
    const std::string link = descriptorLink(mDescriptor);
    mTemporaryName = createTemporary([&](const char* name) { return ::linkat(AT_FDCWD, link.c_str(), mDirectory, name, AT_SYMLINK_FOLLOW); });
    return !mTemporaryName.empty() || fail(errno);
}

bool SafeFile::write(std::string_view text)
{
    if (mDescriptor < 0)
        return fail(EBADF);
    if (mGathered.size() + text.size() <= gatherSize) {
        mGathered.append(text);
        return true;
    }
    if (!flush())
        return false;
    if (text.size() > gatherSize)
        return writeAll(text);
    mGathered.append(text);
    return true;
}

bool SafeFile::flush()
{
    const bool written = writeAll(mGathered);
    mGathered.clear();
    return written;
}

bool SafeFile::writeAll(std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count = ::write(mDescriptor, text.data(), text.size());
        if (count > 0) {
            mWritten += static_cast<std::uint64_t>(count);
            text.remove_prefix(static_cast<std::size_t>(count));
        } else if (count == 0) {
            return fail(EIO);
        } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
            if (!waitWritable(mDescriptor))
                return fail(errno);
        } else if (errno != EINTR) {
            return fail(errno);
        }
    }
    return true;
}

bool SafeFile::commit()
{
    if (mDescriptor < 0)
        return fail(EBADF);
    if (!flush())
        return false;
    if (mDirectory < 0)
        return closeFile();
    return checkSize() && nameTemporary() && closeFile() && replaceTarget();
}

/// What was written must be on disk, all of it, before it may take the old file's place.
bool SafeFile::checkSize()
{
    struct stat status = {};
    if (::fsync(mDescriptor) != 0 || ::fstat(mDescriptor, &status) != 0)
        return fail(errno);
    return static_cast<std::uint64_t>(status.st_size) == mWritten || fail(EIO);
}

bool SafeFile::closeFile()
{
    const int descriptor = std::exchange(mDescriptor, -1);
    // Some network file systems report a full disk only here.
    return !mOwnsDescriptor || ::close(descriptor) == 0 || errno == EINTR || fail(errno);
}

bool SafeFile::replaceTarget()
{
    if (::renameat(mDirectory, mTemporaryName.c_str(), mDirectory, mTargetName.c_str()) != 0)
        return fail(errno);
    mTemporaryName.clear();
    discard();
    return true;
}

} // namespace ZARN
