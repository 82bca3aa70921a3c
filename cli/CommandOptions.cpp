#include "cli/CommandOptions.h"

#include "app/Revision.h"

#include <CLI/App.hpp>

namespace ZARN {

namespace {

CLI::Option* checked(CLI::Option* pOption, const CommandOptions::Check& check)
{
    return check ? pOption->check(check) : pOption;
}

} // namespace

CommandOptions::CommandOptions(CLI::App& program, const char* name, const char* description, const char* example)
    : mApp(*program.add_subcommand(name, description))
{
    mApp.footer(std::string("Example: ") + example);
    mApp.set_version_flag("--version", Revision::getRevisionString());
}

void CommandOptions::add(const char* name, std::string& value, const char* help, ENeed need, const Check& check)
{
    checked(mApp.add_option(name, value, help), check)->required(need == eRequired);
}

void CommandOptions::add(const char* name, int& value, const char* help)
{
    mApp.add_option(name, value, help);
}

void CommandOptions::add(const char* name, unsigned int& value, const char* help, const Check& check)
{
    checked(mApp.add_option(name, value, help), check);
}

void CommandOptions::add(const char* name, uint64_t& value, const char* help)
{
    mApp.add_option(name, value, help);
}

void CommandOptions::add(const char* name, double& value, const char* help, const Check& check)
{
    checked(mApp.add_option(name, value, help), check);
}

void CommandOptions::addMany(const char* name, std::vector<std::string>& values, const char* help, const Check& check)
{
    checked(mApp.add_option(name, values, help)->allow_extra_args(false)->take_all(), check);
}

void CommandOptions::addMany(const char* name, std::vector<double>& values, const char* help, ENeed need)
{
    mApp.add_option(name, values, help)->allow_extra_args(false)->take_all()->required(need == eRequired);
}

void CommandOptions::addAll(const char* name, std::vector<std::string>& values, const char* help)
{
    mApp.add_option(name, values, help);
}

void CommandOptions::addFlag(const char* name, bool& value, const char* help)
{
    mApp.add_flag(name, value, help);
}

bool CommandOptions::isGiven(const char* name) const
{
    return mApp.count(name) > 0;
}

std::string CommandOptions::name() const
{
    return mApp.get_name();
}

bool CommandOptions::isChosen() const
{
    return mApp.parsed();
}

CommandOptions::Check CommandOptions::oneOf(std::initializer_list<const char*> texts)
{
    return [allowed = std::vector<std::string>(texts.begin(), texts.end())](const std::string& text) {
        std::string list;
        for (const std::string& one : allowed) {
            if (text == one)
                return std::string();
            list += (list.empty() ? "" : ", ") + one;
        }
        return text + ": not one of " + list;
    };
}

CommandOptions::Check CommandOptions::between(double least, double most)
{
    return [least, most](const std::string& text) {
        const double number = std::strtod(text.c_str(), nullptr);
        return number >= least && number <= most ? std::string() : text + ": not between " + std::to_string(least) + " and " + std::to_string(most);
    };
}

} // namespace ZARN
