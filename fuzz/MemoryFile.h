#pragma once

#include "fuzz/Require.h"

#include <QString>

#include <cstdint>

#include <sys/mman.h>
#include <unistd.h>

/// A file in memory that has a path.
class MemoryFile {
public:
    MemoryFile(const uint8_t* pBytes, std::size_t size) : mDescriptor(memfd_create("input", MFD_CLOEXEC))
    {
        REQUIRE(mDescriptor >= 0);
        REQUIRE(write(mDescriptor, pBytes, size) == static_cast<ssize_t>(size));
    }
    ~MemoryFile() { close(mDescriptor); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    [[nodiscard]] QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(mDescriptor); }

private:
    int mDescriptor;
};
