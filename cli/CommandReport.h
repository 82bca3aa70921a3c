#pragma once

#include "cli/DataCommand.h"
#include "report/FlightReport.h"

namespace ZARN {

/// `report`: a cycle or flight on paper, or as a page for a browser.
class CommandReport : public DataCommand {
public:
    explicit CommandReport(CLI::App& program);
    int run() override;

private:
    int runOnData() override;

    std::string mFormat = "pdf";
    std::string mPaper = "a4";
    std::string mLanguage = "en";
    ReportOptions mReport;
};

} // namespace ZARN
