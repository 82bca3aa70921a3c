#pragma once

#include "app/Console.h"
#include "card/CardContainer.h"
#include "cli/CommandOptions.h"

namespace ZARN {

enum EExitStatus { eDone = 0, eFailed = 1, eWrongCall = 2 };

/// One subcommand of the batch program: declares its options on construction, then does its work. Each run has its own card
/// container and profile; nothing reads or writes the user's settings.
class Command {
public:
    /// @param example a call that people can take as a pattern.
    Command(CLI::App& program, const char* name, const char* description, const char* example);
    virtual ~Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    [[nodiscard]] std::string name() const { return mOptions.name(); }
    [[nodiscard]] bool isChosen() const { return mOptions.isChosen(); }
    /// Also tells what the core says while it works.
    void setVerbose() { mVerbose = true; }
    [[nodiscard]] bool isVerbose() const { return mVerbose; }
    /// All arguments of the call, for who hands it on.
    void setCall(const std::vector<std::string>& arguments) { mCall = arguments; }
    /// @return the process's exit status; a failure has been said on standard error.
    virtual int run() = 0;

    /// Writes the result to standard output. @return the exit status. A reader that has gone away ends the program without a word.
    static int print(const std::string& text);
    /// Says one line on standard error, whatever is in the message.
    static void say(const std::string& message);
    /// Says "NAME: reason". @return eFailed.
    static int fail(const std::string& message);

protected:
    CommandOptions& options() { return mOptions; }
    [[nodiscard]] const std::vector<std::string>& call() const { return mCall; }
    [[nodiscard]] bool isGiven(const char* option) const { return mOptions.isGiven(option); }
    void addJson() { mOptions.addFlag("--json", mJson, "one JSON object instead of tables for people"); }
    /// Where the core's diagnostics go: to standard error when they are wanted.
    [[nodiscard]] const Console& console() const { return mConsole; }

    bool mJson = false;

private:
    void diagnose(std::string_view text) const;

    CommandOptions mOptions;
    std::vector<std::string> mCall;
    bool mVerbose = false;
    Console mConsole;
};

/// The formatting that the tables for people share.
std::string tableTime(double seconds);                    ///< "hh:mm:ss.zzz"
std::string tableDate(const QDateTime& dateTime);         ///< "yyyy-MM-dd hh:mm:ss", "no clock" when invalid
std::string tableNumber(double number, int decimals);
/// A count and what is counted: "1 card", "2 cards".
std::string countedText(uint64_t count, const char* one, const char* many);
std::string tableTitle(const char* title, const std::string& unit); ///< "Title [unit]", the title alone without a unit

} // namespace ZARN
