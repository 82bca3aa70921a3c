#pragma once

#include <functional>
#include <map>
#include <string>

namespace ZARN {

class Console;

/// The options that the program knows and what the command line said about them. Filled once at start-up, read from
/// everywhere; the program's own object lives until the process ends.
class CmdLine {
public:
    explicit CmdLine(const Console& console) : mConsole(console) {}
    static CmdLine& instance();

    /// Registering a name again replaces the option.
    void addSwitch(const std::string& name, const std::string& help);
    void addParameter(const std::string& name, const std::string& help, const std::string& defaultValue);

    /// Lets one argument that is no option stand for itself: the first one for which `accepts` holds becomes operand().
    void addOperand(std::function<bool(const std::string&)> accepts) { mAcceptsOperand = std::move(accepts); }

    /// Matches every argument as a whole. Unknown ones are written to the console and passed over; a parameter that is the
    /// last argument keeps its default. @return whether every argument was known.
    bool parse(int argc, const char* const* argv);

    /// @return whether the option was given.
    [[nodiscard]] bool getSwitch(const std::string& name) const;
    /// Copies the value, the default when the parameter was not given; an unknown name leaves it. @return whether it was given.
    bool getParameter(const std::string& name, std::string& value) const;

    /// The argument that stands for itself; empty when none was given.
    [[nodiscard]] const std::string& operand() const { return mOperand; }

    void printUsage() const;

private:
    enum class EKind { eSwitch, eParameter };

    struct Option {
        EKind kind = EKind::eSwitch;
        bool given = false;
        std::string help;
        std::string value;
    };

    const Console& mConsole;
    bool takeOperand(const std::string& argument);

    std::string mProgramName;
    std::string mOperand;
    std::function<bool(const std::string&)> mAcceptsOperand;
    std::map<std::string, Option> mOptions;
};

} // namespace ZARN
