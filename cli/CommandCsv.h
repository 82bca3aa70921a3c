#pragma once

#include "cli/DataCommand.h"

namespace ZARN {

/// `csv`: the decoded data of a cycle as a table of separated values.
class CommandCsv : public DataCommand {
public:
    explicit CommandCsv(CLI::App& program);

private:
    int runOnData() override;
    /// Empty when there is such a locale; else what is wrong with it.
    static std::string checkLocale(const std::string& name);

    unsigned int mResolution = 100;
    std::string mSeparator = "semicolon";
    std::string mLocale;
};

} // namespace ZARN
