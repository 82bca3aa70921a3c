#pragma once

#include <string>

namespace ZARN {

class Console;

/// A scoped stopwatch for timing code: from its construction to the end of its scope, where it writes
/// "LABEL : N ms" to the console.
class Timer {
public:
    using Clock = double (*)(); ///< seconds

    explicit Timer(std::string label);
    Timer(std::string label, const Console& console, Clock clock);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

private:
    std::string mLabel;
    const Console& mConsole;
    Clock mClock;
    double mStart;
};

} // namespace ZARN
