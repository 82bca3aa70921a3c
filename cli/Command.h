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
    Command(CLI::App& program, const char* name, const char* description);
    virtual ~Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    [[nodiscard]] std::string name() const { return mOptions.name(); }
    [[nodiscard]] bool isChosen() const { return mOptions.isChosen(); }
    /// @return the process's exit status; a failure has been said on standard error.
    virtual int run() = 0;

protected:
    CommandOptions& options() { return mOptions; }
    void addJson() { mOptions.addFlag("--json", mJson, "one JSON object instead of tables for people"); }
    /// Writes the result to standard output. @return the exit status.
    static int print(const std::string& text);
    /// Says "NAME: reason" on standard error. @return eFailed.
    static int fail(const std::string& message);

    bool mJson = false;

private:
    CommandOptions mOptions;
};

/// The formatting that the tables for people share.
std::string tableTime(double seconds);                    ///< "hh:mm:ss.zzz"
std::string tableDate(const QDateTime& dateTime);         ///< "yyyy-MM-dd hh:mm:ss", "no clock" when invalid
std::string tableNumber(double number, int decimals);

} // namespace ZARN
