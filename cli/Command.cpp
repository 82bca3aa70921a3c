#include "cli/Command.h"

#include "app/NumberText.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace ZARN {

Command::Command(CLI::App& program, const char* name, const char* description) : mOptions(program, name, description) {}

int Command::print(const std::string& text)
{
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() || std::fflush(stdout) != 0)
        return fail(std::string("standard output: ") + std::strerror(errno));
    return eDone;
}

int Command::fail(const std::string& message)
{
    std::fprintf(stderr, "zarn-cli: %s\n", message.c_str());
    return eFailed;
}

std::string tableTime(double seconds)
{
    return CardContainer::time(seconds).toStdString();
}

std::string tableDate(const QDateTime& dateTime)
{
    return dateTime.isValid() ? dateTime.toString("yyyy-MM-dd hh:mm:ss").toStdString() : "no clock";
}

std::string tableNumber(double number, int decimals)
{
    char buffer[kNumberTextSize];
    return {buffer, writeFixed(buffer, number, decimals)};
}

} // namespace ZARN
