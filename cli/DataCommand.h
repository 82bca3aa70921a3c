#pragma once

#include "analysis/TimeSpan.h"
#include "app/SafeFile.h"
#include "cli/CardCommand.h"

namespace ZARN {

/// A subcommand that works on one loaded cycle of a card, or on one of its flights.
class DataCommand : public CardCommand {
public:
    DataCommand(CLI::App& program, const char* name, const char* description, const char* example);

protected:
    /// Writes to a file and commits it. @return empty, or "NAME: reason".
    using FileWriter = std::function<std::string(SafeFile&)>;

    /// The work on the loaded data. @return the exit status.
    virtual int runOnData() = 0;
    void addOutput();
    [[nodiscard]] const std::string& output() const { return mOutput; }
    void addSelect(const char* description) { options().addMany("--select", mSelected, description); }
    [[nodiscard]] bool hasSelection() const { return !mSelected.empty(); }
    [[nodiscard]] const RecordCycle& cycle() const { return *mContainer.loadedCycle(); }
    /// The flight that the call asks for; none for the whole cycle.
    [[nodiscard]] std::optional<TimeSpan> flightSpan() const;
    /// Lets the writer fill the file of the option `-o`, which must not be one of the card's. @return the exit status.
    int writeOutput(const FileWriter& writer);

private:
    int runOnCard() final;
    bool selectParameters();

    std::vector<std::string> mSelected;
    std::string mOutput;
    int mFlight = 0;
};

} // namespace ZARN
