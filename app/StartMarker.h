#pragma once

#include <string>

namespace ZARN {

/// Tells a start that follows a failed one. A file in the data folder stands from begin() to succeed(); one that is found at
/// the next start, written by a process that no longer runs, says that the program never came to its feet.
class StartMarker {
public:
    /// @param dataPath folder of the settings; without one nothing is ever marked.
    explicit StartMarker(const std::string& dataPath);

    /// Sets the marker. @return whether the last start failed.
    bool begin();
    /// Removes the marker that begin() set.
    void succeed();

    /// Puts settings and current project aside as "NAME.old-1", or the next number that is free, so that the program begins with
    /// defaults and nothing is lost. @return whether none of them is in its place any more.
    static bool putAside(const std::string& dataPath);

private:
    std::string mPath;
    bool mIsSet = false;
};

} // namespace ZARN
