#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace ZARN {

/// The options of one subcommand, over the command-line library; the one place that knows it, beside what reads and completes
/// whole calls, for its headers are heavy. The values given are stored into the variables named here when the call is parsed.
class CommandOptions {
public:
    enum ENeed { eOptional, eRequired };
    /// Says what is wrong with a text that was given; "" when nothing is.
    using Check = std::function<std::string(const std::string&)>;

    /// @param example a whole call, which the help shows.
    CommandOptions(CLI::App& program, const char* name, const char* description, const char* example);

    void add(const char* name, std::string& value, const char* help, ENeed need = eOptional, const Check& check = {});
    void add(const char* name, int& value, const char* help);
    void add(const char* name, unsigned int& value, const char* help, const Check& check = {});
    void add(const char* name, uint64_t& value, const char* help);
    void add(const char* name, double& value, const char* help, const Check& check = {});
    /// Options that may be given many times, each time with one value.
    void addMany(const char* name, std::vector<std::string>& values, const char* help, const Check& check = {});
    void addMany(const char* name, std::vector<double>& values, const char* help, ENeed need);
    /// A place for any number of values without a name before them.
    void addAll(const char* name, std::vector<std::string>& values, const char* help);
    void addFlag(const char* name, bool& value, const char* help);

    /// Whether the option was in the call.
    [[nodiscard]] bool isGiven(const char* name) const;
    [[nodiscard]] std::string name() const;
    /// Whether the call was for this subcommand.
    [[nodiscard]] bool isChosen() const;

    /// One of these texts; the help and what completes calls name them, with this between them.
    static constexpr const char* kOr = "|";
    static Check oneOf(std::initializer_list<const char*> texts);
    static Check between(double least, double most);

private:
    CLI::App& mApp; // owned by the program's parser
};

} // namespace ZARN
