#pragma once

#include "export/CsvForm.h"
#include "trace/Trace.h"

namespace ZARN {

/// A span of ticks that is made into rows at once, and which of them have a row.
struct CsvWindow {
    explicit CsvWindow(uint32_t ticks) : marked(ticks) {}

    [[nodiscard]] uint64_t end() const { return first + marked.size(); }

    uint64_t first = 0;          ///< its first tick
    std::vector<uint8_t> marked; ///< one a tick
    std::vector<uint16_t> rows;  ///< the marked ones, as offsets from `first`, ascending
};

/// One cell, with the separator behind its text. Most texts are short; longer ones stand aside.
struct CsvCell {
    static constexpr uint8_t kAside = 16; ///< in `length`: the text's first four bytes are its number among the long texts
    char text[15];
    uint8_t length;
};

/// One column of a CSV export: a cursor through the samples of a parameter in the order of their ticks, of which the last of
/// each tick counts.
class CsvColumn {
public:
    static constexpr uint64_t kNoTick = UINT64_MAX;

    /// @param trace of the kind eText, which must outlive the column
    /// @param ticksPerSecond the rows' resolution
    CsvColumn(const Trace& trace, double ticksPerSecond, const CsvForm& form);

    /// The tick of the next sample; kNoTick after the last.
    [[nodiscard]] uint64_t nextTick() const { return mNextTick; }
    /// The first tick for which one of several columns has a sample that was not taken.
    [[nodiscard]] static uint64_t firstTick(const std::vector<CsvColumn>& columns);
    /// How many samples there are, and how many of them have been taken: both without those that a later one of their tick replaces,
    /// where the samples had to be sorted.
    [[nodiscard]] std::size_t sampleCount() const { return !mSorted.empty() ? mSorted.size() : mpTrace->size(); }
    [[nodiscard]] std::size_t samplesDone() const { return mNext; }
    /// Takes the samples that lie in the window and marks their rows.
    void collect(CsvWindow& window);
    /// What collect() took: the ticks that have a sample, as offsets from the window's first, and the number of the last one of each.
    [[nodiscard]] std::span<const uint16_t> takenOffsets() const { return {mOffsets.data(), mTaken}; }
    [[nodiscard]] std::span<const double> takenNumbers() const { return {mValues.data(), mTaken}; }
    /// Writes one cell a row of the window, side by side; texts that are too long for a cell go to `longTexts`.
    void fill(const CsvWindow& window, CsvCell* pCells, std::vector<std::string>& longTexts);

private:
    struct TickPosition {
        uint32_t tick;
        uint32_t position;
    };
    void sortByTick();
    void readAhead();
    void take(uint64_t offset, double value);
    void collectAscending(const CsvWindow& window);
    void collectSorted(const CsvWindow& window);
    void makeCell(double textValue, CsvCell& cell);
    void setAside(CsvCell& cell, std::vector<std::string>& longTexts) const;

    const Trace* mpTrace;
    double mTicksPerSecond;
    CsvForm mForm;
    CsvCell mCell;                     // the text that holds
    std::vector<TickPosition> mSorted; // when the times do not ascend: the last sample of each tick
    std::size_t mNext = 0;             // sample, or place in mSorted
    uint64_t mNextTick = kNoTick;
    std::string mLongText; // the held text when it is too long for a cell

    // The samples taken from the current window: the first mTaken of each.
    std::size_t mTaken = 0;
    std::vector<uint16_t> mOffsets;
    std::vector<double> mValues;
};

} // namespace ZARN
