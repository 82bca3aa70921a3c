#include "cli/Completion.h"

#include "app/FileName.h"
#include "app/Progress.h"
#include "card/CardContainer.h"
#include "cli/Command.h"
#include "cli/Resources.h"
#include "export/KmlExportOptions.h"
#include "profile/Profile.h"

#include <CLI/App.hpp>

#include <algorithm>

namespace ZARN {

namespace {

using Words = std::vector<std::string>;

const Console& silence()
{
    static const Console console([](std::string_view) {}, [](std::string_view) {}, false);
    return console;
}

/// The option that a word stands behind as its value; null for none.
const CLI::Option* optionBefore(const CLI::App& command, const Words& words, std::size_t place)
{
    const bool isBehindAny = place > 1 && words[place - 1].starts_with('-') && words[place - 1] != "--";
    const CLI::Option* pOption = isBehindAny ? command.get_option_no_throw(words[place - 1]) : nullptr;
    return pOption && pOption->get_items_expected_max() > 0 ? pOption : nullptr;
}

/// The value that the call gives an option; empty when it gives none.
std::string given(const CLI::App& command, const Words& words, const std::string& name)
{
    for (std::size_t place = 2; place + 1 < words.size(); ++place) {
        const CLI::Option* pOption = optionBefore(command, words, place);
        if (pOption && pOption->check_lname(name))
            return words[place];
    }
    return {};
}

/// The first name in the call that belongs to no option.
std::string firstOperand(const CLI::App& command, const Words& words)
{
    for (std::size_t place = 1; place + 1 < words.size(); ++place) {
        if (!words[place].starts_with('-') && !optionBefore(command, words, place))
            return words[place];
    }
    return {};
}

QString profileOf(const CLI::App& command, const Words& words)
{
    const std::string file = given(command, words, "profile");
    return decodeFileName(file.empty() ? shippedProfile("915") : file);
}

Words variants(const CLI::App& command, const Words& words)
{
    Words names;
    Profile profile(silence());
    const bool isOperand = !command.get_option_no_throw("--profile");
    for (const ProfileVariant& variant :
         profile.loadVariants(isOperand ? decodeFileName(firstOperand(command, words)) : profileOf(command, words)))
        names.push_back(variant.name);
    return names;
}

Words parameters(const CLI::App& command, const Words& words)
{
    Words names;
    Profile profile(silence());
    if (profile.loadProfile(profileOf(command, words), given(command, words, "variant"))) {
        for (const auto& [device, parameter] : profile.model().parameters())
            names.push_back(parameter.name + (parameter.unitMetric.empty() ? "" : "\t" + parameter.unitMetric));
    }
    return names;
}

Words cycles(const CLI::App& command, const Words& words)
{
    Words numbers;
    const Profile profile(silence());
    CardContainer container(silence(), profile, nullProgress());
    const bool isOption = command.get_option_no_throw("--replay");
    if (container.readContainer(decodeFileName(isOption ? given(command, words, "replay") : firstOperand(command, words)))) {
        for (const auto& [number, cycle] : container.recordCycles())
            numbers.push_back(std::to_string(number) + "\t" + tableDate(cycle.dateTime));
    }
    return numbers;
}

Words profiles(const CLI::App&, const Words&)
{
    return {Completion::kFiles, shippedProfile("915") + "\tthe shipped profile"};
}

Words files(const CLI::App&, const Words&)
{
    return {Completion::kFiles};
}

Words folders(const CLI::App&, const Words&)
{
    return {Completion::kFolders};
}

/// What a name without an option before it may be: the interface of a bus is no file, a card to make is none that is there.
Words operands(const CLI::App& command)
{
    if (command.get_name() == "live")
        return {};
    return {command.get_name() == "simulate" ? Completion::kFolders : Completion::kFiles};
}

Words settings(const CLI::App&, const Words&)
{
    Words keys = KmlExportOptions::keys();
    for (std::string& key : keys)
        key += '=';
    return keys;
}

struct Kind {
    const char* option;
    Words (*values)(const CLI::App&, const Words&);
};

constexpr Kind kKinds[] = {
    {"cycle", cycles},     {"parameter", parameters}, {"select", parameters}, {"variant", variants},
    {"profile", profiles}, {"output", files},         {"from-file", files},   {"store", files},
    {"set", settings},     {"record", folders},       {"replay", files},
};

Words split(const std::string& text, char separator)
{
    Words parts;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t to = std::min(text.find(separator, from), text.size());
        parts.push_back(text.substr(from, to - from));
        from = to + 1;
    }
    return parts;
}

bool isShown(const std::string& candidate, const std::string& begun)
{
    return candidate == Completion::kFiles || candidate == Completion::kFolders ||
           (candidate.starts_with(begun) && candidate.find('\n') == std::string::npos);
}

} // namespace

std::vector<std::string> Completion::candidates(const std::vector<std::string>& words) const
{
    if (words.empty())
        return {};
    Words found = all(words);
    std::erase_if(found, [&words](const std::string& candidate) { return !isShown(candidate, words.back()); });
    return found;
}

std::vector<std::string> Completion::all(const std::vector<std::string>& words) const
{
    if (words.size() == 1 || (words.size() == 2 && words.front() == "help"))
        return subcommands();
    const CLI::App* pCommand = subcommand(mProgram, words.front());
    if (!pCommand)
        return {};
    if (const CLI::Option* pOption = optionBefore(*pCommand, words, words.size() - 1))
        return values(*pCommand, *pOption, words);
    if (words.back().starts_with('-') && std::count(words.begin(), words.end() - 1, "--") == 0)
        return optionNames(*pCommand);
    return operands(*pCommand);
}

const CLI::App* Completion::subcommand(const CLI::App& program, const std::string& name)
{
    const auto found = program.get_subcommands([&name](const CLI::App* pCommand) { return pCommand->get_name() == name; });
    return found.empty() ? nullptr : found.front();
}

std::vector<std::string> Completion::optionNames(const CLI::App& command)
{
    Words names;
    for (const CLI::Option* pOption : command.get_options()) {
        for (const std::string& name : pOption->get_lnames())
            names.push_back("--" + name);
        for (const std::string& name : pOption->get_snames())
            names.push_back("-" + name);
    }
    return names;
}

std::vector<std::string> Completion::subcommands() const
{
    Words names = {"--help", "--version", "help"};
    for (const CLI::App* pCommand : mProgram.get_subcommands([](const CLI::App*) { return true; }))
        names.push_back(pCommand->get_name() + "\t" + pCommand->get_description());
    return names;
}

std::vector<std::string> Completion::values(const CLI::App& command, const CLI::Option& option, const std::vector<std::string>& words)
{
    const auto kind = std::ranges::find_if(kKinds, [&option](const Kind& one) { return option.check_lname(one.option); });
    if (kind != std::end(kKinds))
        return kind->values(command, words);
    const std::string type = option.get_type_name();
    return type.find(CommandOptions::kOr) == std::string::npos ? Words() : split(type, *CommandOptions::kOr);
}

} // namespace ZARN
