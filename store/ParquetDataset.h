#pragma once

#include "profile/DecodingContext.h"
#include "store/CycleRows.h"
#include "store/ParquetFile.h"
#include "store/ParquetSamples.h"
#include "store/ScanTarget.h"

namespace ZARN {

/// What was found on many cards, as a folder of Parquet files: one of each table for each cycle, in folders by engine and month. A file that is
/// there is whole, and written twice it is the same, so that any number of programs may write at once. The file of the table of cycles is
/// written last: a cycle that has it is done.
class ParquetDataset : public ScanTarget {
    Q_DECLARE_TR_FUNCTIONS(ZARN::ParquetDataset)

public:
    /// @param samples "none", "100", "10" or "all"
    ParquetDataset(std::string folder, AnalysisKey key, DecodingContext context, std::string samples);

    /// Makes the folder where it is missing. @return empty, or what failed and why
    [[nodiscard]] std::string prepare() const;
    bool isCurrent(const CardListing& /*listing*/) override { return false; }
    bool hasCycle(const CycleHead& cycle, std::vector<CardProblem>& told) override;
    std::string takeLoaded(const CardListing& card, const CycleFacts& cycle, const CycleValues& values) override;
    std::string forgetFailures(const std::vector<std::string>& folders) override;
    std::string write(const CardFacts& card) override;

private:
    [[nodiscard]] std::string path(const std::string& table, const std::string& engine, const QDateTime& month,
                                   const std::string& name) const;
    [[nodiscard]] std::string cyclePath(const std::string& table, const CycleHead& cycle, const QDateTime& month) const;
    [[nodiscard]] std::string problemPath(const std::string& engine, const std::string& card) const;
    [[nodiscard]] ParquetFile::Notes notes(const std::vector<CardProblem>& problems) const;
    void forgetFiles(const CycleHead& cycle, const QDateTime& month) const;
    [[nodiscard]] bool isCovered(const CycleHead& cycle, const CycleHead& other) const;
    std::map<std::string, CycleHead> forgetParts(const CardFacts& card, const std::string& before) const;
    void forgetUndated(const CycleHead& cycle) const;

    const std::string mFolder;
    const AnalysisKey mKey;
    const DecodingContext mContext;
    const std::string mSamples;
};

} // namespace ZARN
