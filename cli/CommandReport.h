#pragma once

#include "cli/DataCommand.h"

namespace ZARN {

/// `report`: a cycle or flight on paper.
class CommandReport : public DataCommand {
public:
    explicit CommandReport(CLI::App& program);

private:
    int runOnData() override;

    std::string mPaper = "a4";
    std::string mLanguage = "en";
};

} // namespace ZARN
