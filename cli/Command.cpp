#include "cli/Command.h"

#include "app/DateText.h"
#include "app/NumberText.h"
#include "cli/Output.h"
#include "cli/VisibleText.h"

#include <cstdio>

namespace ZARN {

Command::Command(CLI::App& program, const char* name, const char* description, const char* example)
    : mOptions(program, name, description, example),
      mConsole([this](std::string_view text) { diagnose(text); }, [this](std::string_view text) { diagnose(text); }, false)
{
    mOptions.addFlag("--verbose", mVerbose, "tell on standard error what is done");
}

void Command::diagnose(std::string_view text) const
{
    if (mVerbose)
        std::fprintf(stderr, "%s\n", visibleText(text.substr(0, text.find_last_not_of('\n') + 1)).c_str());
}

int Command::print(const std::string& text)
{
    Output output;
    output.write(text);
    return output.finish();
}

void Command::say(const std::string& message)
{
    const char* pName = message.starts_with(": ") ? "\"\"" : ""; // what has no name is told by that
    std::fprintf(stderr, "zarn-cli: %s%s\n", pName, visibleText(message).c_str());
}

int Command::fail(const std::string& message)
{
    say(message);
    return eFailed;
}

std::string tableTime(double seconds)
{
    return CardContainer::time(seconds).toStdString();
}

std::string tableDate(const QDateTime& dateTime)
{
    return dateTime.isValid() ? tableDateText(dateTime).toStdString() : "no clock";
}

std::string countedText(uint64_t count, const char* one, const char* many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string tableNumber(double number, int decimals)
{
    char buffer[kNumberTextSize];
    return {buffer, writeFixed(buffer, number, decimals)};
}

std::string tableTitle(const char* title, const std::string& unit)
{
    return unit.empty() ? title : std::string(title) + " [" + unit + "]";
}

} // namespace ZARN
