#pragma once

#include "cli/Command.h"
#include "profile/Profile.h"
#include "store/StoreReader.h"

namespace ZARN {

class JsonWriter;
class Output;

/// `trend`: how figures of an engine went from flight to flight, and which of them are not as they used to be.
class CommandTrend : public Command {
public:
    explicit CommandTrend(CLI::App& program);
    int run() override;

private:
    /// @return empty, or what failed and why
    [[nodiscard]] std::string tell(StoreReader& store, const std::vector<std::string>& engines, Output& output);
    [[nodiscard]] std::vector<TrendJudgement> judge(const Trend& trend) const;
    void writeJson(JsonWriter& writer, const Trend& trend) const;
    [[nodiscard]] std::string overview(const std::vector<Trend>& trends) const;
    [[nodiscard]] std::string table(const Trend& trend) const;

    std::string mStore;
    std::string mEngine;
    TrendFilter mFilter;
    Profile mProfile; ///< the shipped one, for a store that does not tell the precision of a parameter
};

} // namespace ZARN
