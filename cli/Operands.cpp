#include "cli/Operands.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr char kMark = '\x01';

} // namespace

std::vector<std::string> Operands::marked(const std::vector<std::string>& arguments)
{
    std::vector<std::string> result;
    bool namesOnly = false;
    for (const std::string& argument : arguments) {
        if (!namesOnly && argument == "--")
            namesOnly = true;
        else
            result.push_back(namesOnly || argument.starts_with('[') || argument.starts_with(kMark) ? kMark + argument : argument);
    }
    return result;
}

std::string Operands::unmarked(const std::string& text)
{
    return text.starts_with(kMark) ? text.substr(1) : text;
}

std::string Operands::withoutMarks(std::string message)
{
    std::erase(message, kMark);
    return message;
}

} // namespace ZARN
