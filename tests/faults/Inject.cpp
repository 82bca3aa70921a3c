// Loaded before a program's own libraries, lets the n-th call of one kind fail. What it does stands in the environment:
//   FAULT_KIND    open, read, stat, list, write, sync, rename, map or memory
//   FAULT_AT      which of these calls fails, from 1; without it they are only counted
//   FAULT_EVER    "1": all from that one on
//   FAULT_UNDER   folders, with ':' between them: only calls on what lies below them count (memory: all above 64 KiB)
//   FAULT_COUNTS  file for the number of calls of each kind, "KIND COUNT" a line, at the program's end

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

extern "C" {
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* pOld, size_t size);
}

namespace {

enum EKind { eOpen, eRead, eStat, eList, eWrite, eSync, eRename, eMap, eMemory, eKinds };
constexpr const char* kNames[eKinds] = {"open", "read", "stat", "list", "write", "sync", "rename", "map", "memory"};
constexpr int kReasons[eKinds] = {EACCES, EIO, EIO, EIO, ENOSPC, EIO, EIO, ENOMEM, ENOMEM};
constexpr size_t kLargeBlock = 64 * 1024;
constexpr int kErrorSeen = 0x20; // of a FILE of this C library

std::atomic<long> counts[eKinds];
int chosen = eKinds;
long failingFrom = 0;
bool isForEver = false;
const char* folders = "";
std::atomic<bool> isReady{false};

__attribute__((constructor)) void begin()
{
    const char* kind = getenv("FAULT_KIND");
    for (int i = 0; kind && i < eKinds; ++i) {
        if (strcmp(kind, kNames[i]) == 0)
            chosen = i;
    }
    if (const char* at = getenv("FAULT_AT"))
        failingFrom = atol(at);
    isForEver = getenv("FAULT_EVER") != nullptr;
    if (const char* under = getenv("FAULT_UNDER"))
        folders = under;
    isReady = true;
}

__attribute__((destructor)) void end()
{
    const char* path = getenv("FAULT_COUNTS");
    isReady = false;
    if (!path)
        return;
    const auto file = static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, O_WRONLY | O_CREAT | O_TRUNC, 0600));
    for (int i = 0; i < eKinds; ++i)
        dprintf(file, "%s %ld\n", kNames[i], counts[i].load());
    close(file);
}

bool isUnder(const char* path)
{
    for (const char* folder = folders; path && *folder;) {
        const size_t length = strcspn(folder, ":");
        if (length > 0 && strncmp(path, folder, length) == 0)
            return true;
        folder += length + (folder[length] == ':' ? 1 : 0);
    }
    return false;
}

bool isUnder(int descriptor)
{
    char link[40];
    char path[4096];
    snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    const long length = syscall(SYS_readlinkat, AT_FDCWD, link, path, sizeof path - 1);
    if (length <= 0)
        return false;
    path[length] = '\0';
    return isUnder(path);
}

bool isUnder(int directory, const char* path)
{
    return path && path[0] == '/' ? isUnder(path) : directory == AT_FDCWD ? false : isUnder(directory);
}

/// Counts a call. @return whether it fails, with errno set.
bool fails(EKind kind)
{
    if (!isReady)
        return false;
    const long count = ++counts[kind];
    if (kind != chosen || failingFrom == 0 || !(isForEver ? count >= failingFrom : count == failingFrom))
        return false;
    errno = kReasons[kind];
    return true;
}

template <typename Function> Function* next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

// NAME(KIND, RESULT, WHERE, type, name, parameters, arguments): the call of that name, which fails with that result.
#define WRAP(kind, failure, where, type, name, parameters, arguments)                                                                      \
    extern "C" type name parameters                                                                                                        \
    {                                                                                                                                      \
        static auto* const pNext = next<type parameters>(#name);                                                                           \
        if (isReady && isUnder where && fails(kind))                                                                                       \
            return failure;                                                                                                                \
        return pNext arguments;                                                                                                            \
    }

#define WRAP_OPEN(name, parameters, where, arguments)                                                                                      \
    extern "C" int name parameters                                                                                                         \
    {                                                                                                                                      \
        static auto* const pNext = next<int parameters>(#name);                                                                            \
        va_list rest;                                                                                                                      \
        va_start(rest, flags);                                                                                                             \
        const mode_t mode = (flags & O_CREAT) || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(rest, mode_t) : 0;                              \
        va_end(rest);                                                                                                                      \
        if (isReady && isUnder where && fails(eOpen))                                                                                      \
            return -1;                                                                                                                     \
        return pNext arguments;                                                                                                            \
    }

WRAP_OPEN(open, (const char* path, int flags, ...), (path), (path, flags, mode))
WRAP_OPEN(open64, (const char* path, int flags, ...), (path), (path, flags, mode))
WRAP_OPEN(openat, (int directory, const char* path, int flags, ...), (directory, path), (directory, path, flags, mode))
WRAP_OPEN(openat64, (int directory, const char* path, int flags, ...), (directory, path), (directory, path, flags, mode))
WRAP(eOpen, nullptr, (path), FILE*, fopen, (const char* path, const char* mode), (path, mode))
WRAP(eOpen, nullptr, (path), FILE*, fopen64, (const char* path, const char* mode), (path, mode))
WRAP(eRead, -1, (file), ssize_t, read, (int file, void* pBytes, size_t count), (file, pBytes, count))
WRAP(eRead, -1, (file), ssize_t, pread, (int file, void* pBytes, size_t count, off_t at), (file, pBytes, count, at))
WRAP(eRead, -1, (file), ssize_t, pread64, (int file, void* pBytes, size_t count, off64_t at), (file, pBytes, count, at))
WRAP(eStat, -1, (path), int, stat, (const char* path, struct stat* pStatus), (path, pStatus))
WRAP(eStat, -1, (path), int, lstat, (const char* path, struct stat* pStatus), (path, pStatus))
WRAP(eStat, -1, (file), int, fstat, (int file, struct stat* pStatus), (file, pStatus))
WRAP(eStat, -1, (path), int, stat64, (const char* path, struct stat64* pStatus), (path, pStatus))
WRAP(eStat, -1, (path), int, lstat64, (const char* path, struct stat64* pStatus), (path, pStatus))
WRAP(eStat, -1, (file), int, fstat64, (int file, struct stat64* pStatus), (file, pStatus))
WRAP(eStat, -1, (directory, path), int, fstatat, (int directory, const char* path, struct stat* pStatus, int flags),
     (directory, path, pStatus, flags))
WRAP(eStat, -1, (directory, path), int, statx, (int directory, const char* path, int flags, unsigned mask, struct statx* pStatus),
     (directory, path, flags, mask, pStatus))
WRAP(eStat, -1, (path), int, access, (const char* path, int mode), (path, mode))
WRAP(eList, nullptr, (path), DIR*, opendir, (const char* path), (path))
WRAP(eList, nullptr, (file), DIR*, fdopendir, (int file), (file))
WRAP(eList, nullptr, (dirfd(pList)), dirent*, readdir, (DIR * pList), (pList))
WRAP(eList, nullptr, (dirfd(pList)), dirent64*, readdir64, (DIR * pList), (pList))
WRAP(eWrite, -1, (file), ssize_t, write, (int file, const void* pBytes, size_t count), (file, pBytes, count))
WRAP(eWrite, -1, (file), ssize_t, pwrite, (int file, const void* pBytes, size_t count, off_t at), (file, pBytes, count, at))
WRAP(eWrite, -1, (file), ssize_t, pwrite64, (int file, const void* pBytes, size_t count, off64_t at), (file, pBytes, count, at))
WRAP(eWrite, -1, (file), int, ftruncate, (int file, off_t size), (file, size))
WRAP(eWrite, -1, (file), int, ftruncate64, (int file, off64_t size), (file, size))
WRAP(eWrite, -1, (path), int, mkdir, (const char* path, mode_t mode), (path, mode))
WRAP(eSync, -1, (file), int, fsync, (int file), (file))
WRAP(eSync, -1, (file), int, fdatasync, (int file), (file))
WRAP(eRename, -1, (from), int, rename, (const char* from, const char* to), (from, to))
WRAP(eRename, -1, (to), int, link, (const char* from, const char* to), (from, to))
WRAP(eRename, -1, (toFolder, to), int, renameat, (int folder, const char* from, int toFolder, const char* to), (folder, from, toFolder, to))
WRAP(eRename, -1, (toFolder, to), int, linkat, (int folder, const char* from, int toFolder, const char* to, int flags),
     (folder, from, toFolder, to, flags))
WRAP(eMap, MAP_FAILED, (file), void*, mmap, (void* pAt, size_t size, int access, int flags, int file, off_t at),
     (pAt, size, access, flags, file, at))
WRAP(eMap, MAP_FAILED, (file), void*, mmap64, (void* pAt, size_t size, int access, int flags, int file, off64_t at),
     (pAt, size, access, flags, file, at))

/// Half of what is wanted comes before the failure, as when a medium is pulled.
extern "C" size_t fread(void* pBytes, size_t size, size_t count, FILE* pFile)
{
    static auto* const pNext = next<size_t(void*, size_t, size_t, FILE*)>("fread");
    if (!isReady || !isUnder(fileno(pFile)) || !fails(eRead))
        return pNext(pBytes, size, count, pFile);
    const size_t done = pNext(pBytes, size, count / 2, pFile);
    pFile->_flags |= kErrorSeen;
    errno = kReasons[eRead];
    return done;
}

extern "C" void* malloc(size_t size)
{
    return size > kLargeBlock && fails(eMemory) ? nullptr : __libc_malloc(size);
}

extern "C" void* calloc(size_t count, size_t size)
{
    return count * size > kLargeBlock && fails(eMemory) ? nullptr : __libc_calloc(count, size);
}

extern "C" void* realloc(void* pOld, size_t size)
{
    return size > kLargeBlock && fails(eMemory) ? nullptr : __libc_realloc(pOld, size);
}
