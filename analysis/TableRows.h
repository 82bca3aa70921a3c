#pragma once

#include "analysis/TimeKey.h"
#include "trace/TraceSet.h"

#include <optional>

namespace ZARN {

/// The rows of the data table: one for each distinct time, in tenths of a second, of the samples of all shown parameters, and for
/// each column the sample that stands in a row. A row takes 4 bytes; a sample takes nothing where the channel's times ascend, for
/// there the records themselves are searched, and 4 bytes where they go backwards. Refers to the traces.
class TableRows {
public:
    TableRows() = default;
    /// @param traces the columns, in order, which must outlive the rows
    explicit TableRows(const TraceSet& traces);

    [[nodiscard]] std::size_t rowCount() const { return mKeys.size(); }
    [[nodiscard]] std::size_t columnCount() const { return mColumns.size(); }
    [[nodiscard]] TimeKey key(std::size_t row) const { return mKeys[row]; }
    /// The row of the greatest key at or before a time; 0 when there is none.
    [[nodiscard]] std::size_t rowAt(double seconds) const;
    /// The position, in its trace, of the sample in a cell: the last one stored of that time. None in an empty cell.
    [[nodiscard]] std::optional<std::size_t> sampleAt(std::size_t column, std::size_t row) const;
    [[nodiscard]] std::size_t bytes() const; ///< of memory that the index takes

private:
    struct Channel {
        const Trace* pTrace; // one of those that share the channel
        std::vector<uint32_t> sorted; // positions in ascending order of keys, the last of each; empty when the times ascend
        mutable std::size_t found = 0; // where the last search ended: a page asks for rows that stand side by side

        [[nodiscard]] TimeKey keyAt(std::size_t position) const { return TimeKey::of(pTrace->time(position)); }
        [[nodiscard]] std::optional<std::size_t> last(TimeKey key) const;
        /// Calls `visit` with the key of every sample, in ascending order of keys; may leave out those of a run from one key to another
        /// all of which are known.
        template <typename Skip, typename Visitor> void forEachKey(Skip isKnown, Visitor visit) const;
    };
    static constexpr std::size_t kNoSamples = SIZE_MAX;

    std::size_t addChannel(const Trace& trace);
    static std::vector<uint32_t> sortedPositions(const Trace& trace);
    void collectKeys();
    void sortKeys(TimeKey first, TimeKey last);
    void mergeKeys();

    std::vector<TimeKey> mKeys;
    std::vector<Channel> mChannels;
    std::vector<std::size_t> mColumns; // index of the channel; kNoSamples when the trace has none
};

} // namespace ZARN
