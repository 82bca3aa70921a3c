#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ZARN {

/// Writes a file so that the old one is never lost: the content goes to a temporary file beside the target, every
/// write is counted, and only when all of it is on disk does it replace the target, whose permissions it takes over. A
/// target that exists and is no regular file (a pipe, a device) is written directly. Where the system can, the
/// temporary file has no name until then, so that not even a killed process leaves one. Destroyed before commit(), it
/// leaves nothing behind. Programs must ignore SIGPIPE and SIGXFSZ for the failures behind them to arrive here.
class SafeFile {
public:
    explicit SafeFile(std::string path);
    ~SafeFile();
    SafeFile(const SafeFile&) = delete;
    SafeFile& operator=(const SafeFile&) = delete;

    /// Writes to an open descriptor (standard output) instead of a path; the descriptor stays open.
    static SafeFile onDescriptor(int descriptor, std::string name);

    /// Waits for a reader when the target is a pipe without one. @return false with error() set when the target cannot be written.
    bool open();
    /// Appends; small pieces are gathered. After the first failure every further call fails.
    bool write(std::string_view text);
    /// Brings everything to its place. @return false with error() set, and the old file as it was, when any of it failed.
    bool commit();

    /// "NAME: reason" of the first failure, empty when there was none.
    [[nodiscard]] const std::string& error() const { return mError; }
    /// Whether that was a reader who wants no more.
    [[nodiscard]] bool isPipeClosed() const { return mIsPipeClosed; }

private:
    /// The attributes of the file that is going to be replaced.
    struct Replaced;

    SafeFile(int descriptor, std::string name);

    bool fail(int reason);
    bool openDirectly();
    bool openTemporary(const std::string& target, const Replaced* replaced);
    bool openUnnamed();
    bool openNamed();
    bool nameTemporary();
    bool flush();
    bool writeAll(std::string_view text);
    bool checkSize();
    bool closeFile();
    bool replaceTarget();
    void discard();

    std::string mPath;
    std::string mError;
    std::string mGathered;
    std::string mTargetName;    ///< within mDirectory
    std::string mTemporaryName; ///< within mDirectory; empty while the temporary file has no name
    std::uint64_t mWritten = 0;
    int mDescriptor = -1;
    int mDirectory = -1; ///< open when the target is going to be replaced
    bool mOwnsDescriptor = true;
    bool mIsPipeClosed = false;
};

} // namespace ZARN
