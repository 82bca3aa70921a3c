#include "app/CmdLine.h"

#include "app/Console.h"

namespace ZARN {

CmdLine& CmdLine::instance()
{
    static CmdLine cmdLine(Console::standardOutput());
    return cmdLine;
}

void CmdLine::addSwitch(const std::string& name, const std::string& help)
{
    mOptions[name] = Option{EKind::eSwitch, false, help, "false"};
}

void CmdLine::addParameter(const std::string& name, const std::string& help, const std::string& defaultValue)
{
    mOptions[name] = Option{EKind::eParameter, false, help, defaultValue};
}

bool CmdLine::parse(int argc, const char* const* argv)
{
    if (argc > 0)
        mProgramName = argv[0];
    bool allKnown = true;
    for (int i = 1; i < argc; ++i) {
        const auto found = mOptions.find(argv[i]);
        if (found == mOptions.end()) {
            if (takeOperand(argv[i]))
                continue;
            mConsole.print("unknown option %s\n", argv[i]);
            allKnown = false;
            continue;
        }
        Option& option = found->second;
        option.given = true;
        if (option.kind == EKind::eSwitch)
            option.value = option.value == "true" ? "false" : "true";
        else if (i < argc - 1)
            option.value = argv[++i];
    }
    return allKnown;
}

bool CmdLine::takeOperand(const std::string& argument)
{
    if (!mOperand.empty() || !mAcceptsOperand || !mAcceptsOperand(argument))
        return false;
    mOperand = argument;
    return true;
}

bool CmdLine::getSwitch(const std::string& name) const
{
    const auto found = mOptions.find(name);
    return found != mOptions.end() && found->second.given;
}

bool CmdLine::getParameter(const std::string& name, std::string& value) const
{
    const auto found = mOptions.find(name);
    if (found == mOptions.end())
        return false;
    value = found->second.value;
    return found->second.given;
}

void CmdLine::printUsage() const
{
    mConsole.print("Usage of %s :\n", mProgramName.c_str());
    for (const auto& [name, option] : mOptions) {
        if (option.kind == EKind::eSwitch)
            mConsole.print("%-8s %s\n", name.c_str(), option.help.c_str());
        else
            mConsole.print("%-8s [%s] default [%s]\n", name.c_str(), option.help.c_str(), option.value.c_str());
    }
    mConsole.print("\n");
}

} // namespace ZARN
