#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace ZARN {

/// What may stand at the end of a call that is being typed, for the shells' completions (packaging/completion). It reads the options out of
/// the parser, cycles out of the card and names out of the profile that the call names, and says nothing where it knows nothing.
class Completion {
public:
    /// Instead of a candidate: any file, or folder, of the system.
    static constexpr const char* kFiles = ":files";
    static constexpr const char* kFolders = ":folders";

    explicit Completion(const CLI::App& program) : mProgram(program) {}

    /// @param words of the call behind the program's name; the last one, which may be empty, is being typed.
    /// @return the candidates that begin with it, some with a tabulator and a description behind them.
    [[nodiscard]] std::vector<std::string> candidates(const std::vector<std::string>& words) const;
    /// Null when there is none of that name.
    [[nodiscard]] static const CLI::App* subcommand(const CLI::App& program, const std::string& name);
    /// "--cycle" and "-o" of a subcommand.
    [[nodiscard]] static std::vector<std::string> optionNames(const CLI::App& command);

private:
    [[nodiscard]] std::vector<std::string> all(const std::vector<std::string>& words) const;
    [[nodiscard]] std::vector<std::string> subcommands() const;
    [[nodiscard]] static std::vector<std::string> values(const CLI::App& command, const CLI::Option& option,
                                                         const std::vector<std::string>& words);

    const CLI::App& mProgram;
};

} // namespace ZARN
