#pragma once

#include "card/CycleValues.h"
#include "store/ParquetFile.h"

namespace ZARN {

/// Which samples of a cycle a dataset keeps.
enum class EParquetSamples { eNone, eTicks100, eTicks10, eAll };

/// Writes the samples of a loaded cycle as a table, in metric units: a row a tick that has a sample, with the value of every parameter that
/// holds then, or a row a sample. Memory does not grow with their number.
class ParquetSamples {
public:
    ParquetSamples(const CycleValues& values, EParquetSamples samples) : mValues(values), mSamples(samples) {}
    /// @return empty, or "NAME: reason"
    std::string write(const std::string& path, const ParquetFile::Notes& notes) const;

private:
    [[nodiscard]] std::string writeTicks(const std::string& path, const ParquetFile::Notes& notes) const;
    [[nodiscard]] std::string writeAll(const std::string& path, const ParquetFile::Notes& notes) const;

    const CycleValues& mValues;
    const EParquetSamples mSamples;
};

} // namespace ZARN
