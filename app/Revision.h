#pragma once

#include <string>

namespace ZARN {

class Console;

/// Which program this is: its name, its version and when it was compiled.
class Revision {
public:
    static std::string getName();           ///< "ZARN"
    static std::string getRevisionString(); ///< name, blank, version
    static std::string getRevisionNumber(); ///< "major.minor.patch"
    static std::string compileTime();       ///< date and time as the compiler gives them

    /// Writes the banner with the version and the current working directory.
    static void printHeader(const Console& console);
};

} // namespace ZARN
