#include "vesk/base/Directory.h"

#include <filesystem>
#include <system_error>

namespace VESK::FileSystem {

bool Directory::exists(const std::string& path)
{
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

bool Directory::createDirectoryRecursive(const std::string& path)
{
    std::error_code error;
    std::filesystem::create_directories(path, error);
    return exists(path);
}

} // namespace VESK::FileSystem
