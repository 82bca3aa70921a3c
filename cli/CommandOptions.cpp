#include "cli/CommandOptions.h"

#include "app/Revision.h"
#include "cli/Operands.h"

#include <CLI/App.hpp>
#include <CLI/Validators.hpp>

#include <algorithm>

namespace ZARN {

namespace {

/// One of a few texts.
struct OneOf {
    std::vector<std::string> texts;

    std::string operator()(const std::string& text) const
    {
        if (std::ranges::find(texts, text) != texts.end())
            return {};
        std::string all;
        for (const std::string& one : texts)
            all += (all.empty() ? "" : &one == &texts.back() ? " or " : ", ") + one;
        return text + ": must be " + all;
    }
};

CLI::Option* checked(CLI::Option* pOption, const CommandOptions::Check& check)
{
    if (const OneOf* pChoice = check.target<OneOf>()) {
        std::string names;
        for (const std::string& text : pChoice->texts)
            names += (names.empty() ? "" : CommandOptions::kOr) + text;
        pOption->type_name(names);
    }
    return check ? pOption->check(check) : pOption;
}

/// Takes texts as they were before they were marked.
CLI::Option* plain(CLI::Option* pOption)
{
    return pOption->transform(CLI::Validator([](std::string& text) { return text = Operands::unmarked(text), std::string(); }, ""));
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
    checked(plain(mApp.add_option(name, value, help)), check)->required(need == eRequired);
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
    checked(plain(mApp.add_option(name, values, help)->allow_extra_args(false)->take_all()), check);
}

void CommandOptions::addMany(const char* name, std::vector<double>& values, const char* help, ENeed need)
{
    mApp.add_option(name, values, help)->allow_extra_args(false)->take_all()->required(need == eRequired);
}

void CommandOptions::addAll(const char* name, std::vector<std::string>& values, const char* help)
{
    plain(mApp.add_option(name, values, help));
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
    return OneOf{{texts.begin(), texts.end()}};
}

CommandOptions::Check CommandOptions::between(double least, double most)
{
    // What is no number lies in every range of the library's.
    return [range = CLI::Range(least, most)](const std::string& text) { return range(text.find_first_of("nN") == std::string::npos ? text : ""); };
}

} // namespace ZARN
