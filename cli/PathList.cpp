#include "cli/PathList.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>

namespace ZARN {

std::string readPathList(const std::string& file, std::vector<std::string>& paths)
{
    std::ifstream opened;
    if (file != "-") {
        opened.open(file);
        if (!opened)
            return file + ": " + std::strerror(errno);
    }
    std::istream& stream = file == "-" ? std::cin : opened;
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        if (!line.empty())
            paths.push_back(line);
    }
    return stream.bad() ? file + ": " + std::strerror(errno) : std::string();
}

} // namespace ZARN
