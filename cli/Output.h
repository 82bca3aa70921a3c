#pragma once

#include <string>
#include <string_view>

namespace ZARN {

/// Standard output for a result of any length: it is written in pieces, so that it is never held whole.
class Output {
public:
    /// Nothing more is written after a failure.
    void write(std::string_view text);
    [[nodiscard]] bool isGood() const { return mError == 0; }
    /// Writes what is left. @return the exit status; a failure has been said, but for a reader that has gone away.
    int finish();

private:
    void flush();

    std::string mText;
    int mError = 0; // of errno
};

} // namespace ZARN
