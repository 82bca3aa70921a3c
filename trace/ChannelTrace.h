#pragma once

#include "trace/Trace.h"

#include <memory>

namespace ZARN {

/// The trace of a parameter of the profile: the records of its channel, decoded when they are asked for. Positions of a pass are decoded
/// once, when the trace is made, since each fix is judged by those before it; they take 4 bytes a sample as texts, else 8.
class ChannelTrace : public Trace {
public:
    /// @param pChannel null: a trace without samples
    /// @param pFilter the position filter of the pass; positions advance it, in stored order. Null: each fix by itself
    /// @param latestTime positions after it are damage that the filter must not follow; their number is NaN
    ChannelTrace(std::string group, const ProfileParameter& parameter, const DecodingContext& context, std::shared_ptr<const RecordChannel> pChannel,
                 ENumber kind, CoordinateFilter* pFilter, double latestTime = std::numeric_limits<double>::infinity());

    [[nodiscard]] std::vector<PositionRange> rangesIn(double from, double to) const override;
    [[nodiscard]] std::size_t size() const override { return mpEntries ? mpEntries->size() : 0; }
    [[nodiscard]] bool ascending() const override { return !mpEntries || mpEntries->ascending(); }
    [[nodiscard]] double time(std::size_t position) const override { return mpEntries->time(position); }
    [[nodiscard]] const void* timesIdentity() const override { return mpEntries; }
    [[nodiscard]] double number(std::size_t position) const override;
    [[nodiscard]] std::size_t sideBySide(std::size_t position, std::size_t most) const override;
    std::size_t readTimes(std::size_t position, std::span<double> times) const override;
    void readNumbers(std::size_t position, std::span<double> numbers) const override;
    [[nodiscard]] std::size_t bytes() const override { return mTextPositions.capacity() * sizeof(float) + mPositions.capacity() * sizeof(double); }

private:
    void decode(std::span<const StoredRecord> records, double* pOut, CoordinateFilter& filter) const;
    void decodeEach(std::span<const StoredRecord> records, double* pOut) const;
    void decodePositions(CoordinateFilter& filter, double latestTime);
    void hold(double number);

    const std::shared_ptr<const RecordChannel> mpChannel; // null without samples
    const RecordEntries* mpEntries; // its, or null
    const ENumber mKind;
    std::vector<float> mTextPositions; // of a position: the numbers of all samples, in the one or the other
    std::vector<double> mPositions;
};

} // namespace ZARN
