#pragma once

#include "cli/Command.h"

namespace ZARN {

/// A subcommand that works on one loaded cycle of a card: the options that all of them share, and the way from them to the
/// loaded data.
class DataCommand : public Command {
public:
    DataCommand(CLI::App& program, const char* name, const char* description);
    int run() final;

protected:
    /// The work on the loaded data. @return the exit status.
    virtual int runOnData() = 0;
    void addSelect(const char* description) { options().addMany("--select", mSelected, description); }
    [[nodiscard]] bool hasSelection() const { return !mSelected.empty(); }
    [[nodiscard]] const RecordCycle& cycle() const { return *mContainer.loadedCycle(); }

    Profile mProfile;
    CardContainer mContainer;

private:
    bool loadProfile();
    bool selectParameters();
    bool loadData();

    std::string mCard;
    std::string mProfileFile;
    std::string mVariant;
    std::string mUnit = "metric";
    std::vector<std::string> mSelected;
    unsigned int mCycle = 0;
    int mFlight = 0;
};

} // namespace ZARN
