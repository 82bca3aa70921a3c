#include "cli/HelperProgram.h"

#include "cli/Resources.h"

#include <cerrno>
#include <cstring>

#include <unistd.h>

namespace ZARN {

std::string becomeProgram(const std::string& name, const std::vector<std::string>& arguments)
{
    const std::string path = programFolder() + "/" + name;
    std::vector<char*> call{const_cast<char*>(path.c_str())};
    for (const std::string& argument : arguments)
        call.push_back(const_cast<char*>(argument.c_str())); // execv() changes nothing
    call.push_back(nullptr);
    ::execv(path.c_str(), call.data());
    return path + ": " + std::strerror(errno);
}

} // namespace ZARN
