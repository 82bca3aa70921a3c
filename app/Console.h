#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <string_view>

namespace ZARN {

/// Where the core writes its diagnostics, printf style. The desktop program sends them to standard output, the batch
/// program to standard error (its standard output carries results alone), tests to a string. Owned by the program's
/// main function; everything else holds a reference and may write on any thread.
class Console {
public:
    using Sink = std::function<void(std::string_view)>;

    /// @param sink receives every diagnostic line; @param errorSink what the standard error printer would write.
    /// @param verbose whether lines about single samples are wanted, of which a recording makes millions.
    explicit Console(Sink sink, Sink errorSink, bool verbose = true);

    void print(const char* format, ...) const __attribute__((format(printf, 2, 3)));
    /// Text as it is: many lines gathered into one piece.
    void write(std::string_view text) const;
    [[nodiscard]] bool isVerbose() const { return mVerbose; }
    /// The standard error printer's line for a failed system call: prefix, ": ", the system's text for `error`.
    void systemError(const char* prefix, int error) const;

    static Console& standardOutput(); ///< diagnostics to standard output, system errors to standard error
    static Console& standardError();  ///< both to standard error; not verbose

private:
    Sink mSink;
    Sink mErrorSink;
    bool mVerbose;
    mutable std::mutex mGuard;
};

} // namespace ZARN
