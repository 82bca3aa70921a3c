#include "cli/Resources.h"

#include <filesystem>

#ifdef __APPLE__
#include <mach-o/dyld.h>
#endif

namespace ZARN {

namespace {

std::filesystem::path executable()
{
    std::error_code error;
#ifdef __APPLE__
    char path[4096];
    uint32_t size = sizeof path;
    return _NSGetExecutablePath(path, &size) == 0 ? std::filesystem::canonical(path, error) : std::filesystem::path();
#else
    return std::filesystem::canonical("/proc/self/exe", error);
#endif
}

} // namespace

std::string programFolder()
{
    return executable().parent_path().string();
}

std::string resourceFolder()
{
    return (executable().parent_path().parent_path() / "Resources").string();
}

std::string shippedProfile(const std::string& name)
{
    return resourceFolder() + "/profiles/" + name + "/Profile.xml";
}

} // namespace ZARN
