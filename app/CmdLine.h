#pragma once

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

    /// Matches every argument as a whole. Unknown ones are written to the console and passed over; a parameter that is the
    /// last argument keeps its default. @return whether every argument was known.
    bool parse(int argc, const char* const* argv);

    /// @return whether the option was given.
    [[nodiscard]] bool getSwitch(const std::string& name) const;
    /// Copies the value, the default when the parameter was not given; an unknown name leaves it. @return whether it was given.
    bool getParameter(const std::string& name, std::string& value) const;

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
    std::string mProgramName;
    std::map<std::string, Option> mOptions;
};

} // namespace ZARN
