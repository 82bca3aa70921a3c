#include "app/Revision.h"

#include "app/Console.h"

#include <filesystem>
#include <system_error>

namespace ZARN {

namespace {

constexpr int versionMajor = 2;
constexpr int versionMinor = 1;
constexpr int versionPatch = 0;

constexpr const char* rule = "-------------------------------------------------\n";

// A trace between its limits, beside the name.
constexpr const char* logo = "   -----------------     #####  ###  ####  #   #\n"
                             "           |                #  #   # #   # ##  #\n"
                             "        |  |  |            #   ##### ####  # # #\n"
                             "   |  | |  |  | |         #    #   # #  #  #  ##\n"
                             "   -----------------     ##### #   # #   # #   #\n"
                             "\n"
                             "                The ZARN developers\n"
                             "                Help and reports: see README.md\n"
                             "\n";

} // namespace

std::string Revision::getName()
{
    return "ZARN";
}

std::string Revision::getRevisionString()
{
    return getName() + " " + getRevisionNumber();
}

std::string Revision::getRevisionNumber()
{
    return std::to_string(versionMajor) + "." + std::to_string(versionMinor) + "." + std::to_string(versionPatch);
}

std::string Revision::compileTime()
{
    return __DATE__ " " __TIME__;
}

void Revision::printHeader(const Console& console)
{
    std::error_code error;
    const std::string directory = std::filesystem::current_path(error).string();
    console.print("%s\n", rule);
    console.print("%s", logo);
    console.print("                Version  : %s\n", getRevisionString().c_str());
    console.print("                Compiled : %s\n", compileTime().c_str());
    console.print("                CWD      : %s\n", directory.c_str());
    console.print("%s", rule);
}

} // namespace ZARN
