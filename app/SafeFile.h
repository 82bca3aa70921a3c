#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ZARN {

/// Writes a file so that the old one is never lost: the content goes to a temporary file beside the target, every
/// write is counted, and only when all of it is on disk does it replace the target. A target that exists and is no
/// regular file (a pipe, a device) is written directly. Destroyed before commit(), it leaves nothing behind.
class SafeFile {
public:
    explicit SafeFile(std::string path);
    ~SafeFile();
    SafeFile(const SafeFile&) = delete;
    SafeFile& operator=(const SafeFile&) = delete;

    /// Writes to an open descriptor (standard output) instead of a path; the descriptor stays open.
    static SafeFile onDescriptor(int descriptor, std::string name);

    bool open();
    /// Appends; small pieces are gathered. After the first failure every further call fails.
    bool write(std::string_view text);
    bool commit();

    /// "NAME: reason" of the first failure, empty when there was none.
    [[nodiscard]] const std::string& error() const { return mError; }

private:
    std::string mPath;
    std::string mError;
};

} // namespace ZARN
