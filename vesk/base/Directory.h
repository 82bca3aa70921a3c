#pragma once

#include <string>

namespace VESK::FileSystem {

/// Folders of the file system; paths are byte strings.
class Directory {
public:
    /// @return whether the path names a folder, be it through a symbolic link.
    [[nodiscard]] static bool exists(const std::string& path);
    /// Creates the folder with all missing parents. @return whether it exists afterwards.
    static bool createDirectoryRecursive(const std::string& path);
};

} // namespace VESK::FileSystem
