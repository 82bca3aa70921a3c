#pragma once

#include "analysis/TimeKey.h"
#include "card/record/RecordData.h"

#include <optional>
#include <span>

namespace ZARN {

/// The rows of the data table: one for each distinct time, in tenths of a second, of the samples of all shown parameters, and for
/// each column the sample that stands in a row. A row takes 4 bytes; a sample takes nothing where the channel's times ascend, for
/// there the records themselves are searched, and 4 bytes where they go backwards. Refers to the records.
class TableRows {
public:
    TableRows() = default;
    /// @param identifiers of the columns' parameters, in order; one may stand there many times.
    TableRows(const RecordData& data, std::span<const uint32_t> identifiers);

    [[nodiscard]] std::size_t rowCount() const { return mKeys.size(); }
    [[nodiscard]] std::size_t columnCount() const { return mColumns.size(); }
    [[nodiscard]] TimeKey key(std::size_t row) const { return mKeys[row]; }
    /// The row of the greatest key at or before a time; 0 when there is none.
    [[nodiscard]] std::size_t rowAt(double seconds) const;
    /// The position, in its channel, of the sample in a cell: the last one stored of that time. None in an empty cell.
    [[nodiscard]] std::optional<std::size_t> sampleAt(std::size_t column, std::size_t row) const;
    /// The channel of a column; null when its parameter has no samples.
    [[nodiscard]] const RecordChannel* channel(std::size_t column) const;
    [[nodiscard]] std::size_t bytes() const; ///< of memory that the index takes

private:
    struct Channel {
        const RecordChannel* pChannel;
        std::vector<uint32_t> sorted; // positions in ascending order of keys, the last of each; empty when the times ascend

        [[nodiscard]] TimeKey keyAt(std::size_t position) const { return TimeKey::of(pChannel->entries.time(position)); }
        [[nodiscard]] std::optional<std::size_t> last(TimeKey key) const;
        /// Calls `visit` with the key of every sample, in ascending order of keys.
        template <typename Visitor> void forEachKey(Visitor visit) const;
    };
    static constexpr std::size_t kNoSamples = SIZE_MAX;

    std::size_t addChannel(const RecordChannel* pChannel);
    static std::vector<uint32_t> sortedPositions(const RecordEntries& entries);
    void collectKeys();
    void sortKeys(TimeKey first, TimeKey last);
    void mergeKeys();

    std::vector<TimeKey> mKeys;
    std::vector<Channel> mChannels;
    std::vector<std::size_t> mColumns; // index of the channel; kNoSamples when the parameter has none
};

} // namespace ZARN
