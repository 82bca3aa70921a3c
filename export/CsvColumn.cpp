#include "export/CsvColumn.h"

#include "app/NumberText.h"
#include "card/record/TimeKernels.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace ZARN {

namespace {

constexpr std::size_t kBatch = 64; // samples whose ticks and values are computed at once

uint32_t tickOf(double time, double ticksPerSecond)
{
    return saturatingCast<uint32_t>(time * ticksPerSecond + 0.5);
}

} // namespace

CsvColumn::CsvColumn(const RecordChannel* pChannel, const ValueDecoder& decoder, bool isPosition, double ticksPerSecond, char separator,
                     CoordinateFilter& filter)
    : mpChannel(pChannel), mDecoder(decoder), mTicksPerSecond(ticksPerSecond), mSeparator(separator), mCell{{separator}, 1}
{
    if (!mpChannel)
        return;
    if (isPosition) {
        mPositions.reserve(mpChannel->entries.size());
        for (std::size_t c = 0; c < mpChannel->entries.chunkCount(); ++c) {
            for (const StoredRecord& record : mpChannel->entries.chunk(c))
                mPositions.push_back(static_cast<float>(mDecoder.textValue(record.payload, filter)));
        }
    }
    if (!mpChannel->entries.ascending())
        sortByTick();
    readAhead();
}

void CsvColumn::sortByTick()
{
    const RecordEntries& entries = mpChannel->entries;
    mSorted.reserve(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i)
        mSorted.push_back({tickOf(entries.time(i), mTicksPerSecond), static_cast<uint32_t>(i)});
    std::sort(mSorted.begin(), mSorted.end(), [](const TickPosition& a, const TickPosition& b) {
        return a.tick != b.tick ? a.tick < b.tick : a.position < b.position;
    });
    const auto isOverwritten = [](const TickPosition& a, const TickPosition& b) { return a.tick == b.tick; };
    // The last of equal ticks stays: unique() from behind keeps the first it meets.
    mSorted.erase(mSorted.begin(), std::unique(mSorted.rbegin(), mSorted.rend(), isOverwritten).base());
}

void CsvColumn::readAhead()
{
    if (!mSorted.empty())
        mNextTick = mNext < mSorted.size() ? mSorted[mNext].tick : kNoTick;
    else
        mNextTick = mNext < mpChannel->entries.size() ? tickOf(mpChannel->entries.time(mNext), mTicksPerSecond) : kNoTick;
}

void CsvColumn::take(uint64_t offset, double value)
{
    if (mTaken == 0 || mOffsets[mTaken - 1] != offset)
        mOffsets[mTaken++] = static_cast<uint16_t>(offset);
    mValues[mTaken - 1] = value;
}

void CsvColumn::collectSorted(const CsvWindow& window)
{
    CoordinateFilter unused;
    for (; mNext < mSorted.size() && mSorted[mNext].tick < window.end(); ++mNext) {
        const std::size_t position = mSorted[mNext].position;
        const double value = mPositions.empty() ? mDecoder.textValue(mpChannel->entries.stored(position).payload, unused) : mPositions[position];
        take(mSorted[mNext].tick - window.first, value);
    }
}

// All samples are decoded, also those that a later one of the same tick overwrites: that is cheaper than to ask first.
void CsvColumn::collectAscending(const CsvWindow& window)
{
    const RecordEntries& entries = mpChannel->entries;
    const double ticksPerSecond = mTicksPerSecond;
    std::array<double, kBatch> times;
    std::array<double, kBatch> values;
    std::array<uint32_t, kBatch> ticks;
    while (mNext < entries.size()) {
        const auto batch = entries.run(mNext, kBatch);
        recordTimes(batch, times.data());
        for (std::size_t i = 0; i < batch.size(); ++i)
            ticks[i] = tickOf(times[i], ticksPerSecond);
        const auto inWindow = static_cast<std::size_t>(std::lower_bound(ticks.begin(), ticks.begin() + batch.size(), window.end()) - ticks.begin());
        valuesOf(batch.first(inWindow), values.data());
        for (std::size_t i = 0; i < inWindow; ++i)
            take(ticks[i] - window.first, values[i]);
        mNext += inWindow;
        if (inWindow < batch.size())
            return;
    }
}

void CsvColumn::valuesOf(std::span<const StoredRecord> records, double* pOut) const
{
    CoordinateFilter unused;
    if (mPositions.empty())
        mDecoder.textValues(records, pOut, unused);
    else
        std::copy_n(mPositions.begin() + static_cast<std::ptrdiff_t>(mNext), records.size(), pOut);
}

void CsvColumn::collect(CsvWindow& window)
{
    mTaken = 0;
    if (mNextTick >= window.end())
        return;
    mOffsets.resize(window.marked.size());
    mValues.resize(window.marked.size());
    if (mSorted.empty())
        collectAscending(window);
    else
        collectSorted(window);
    readAhead();
    for (std::size_t i = 0; i < mTaken; ++i)
        window.marked[mOffsets[i]] = 1;
}

void CsvColumn::fill(const CsvWindow& window, CsvCell* pCells, std::vector<std::string>& longTexts)
{
    if (mCell.length == CsvCell::kAside)
        setAside(mCell, longTexts);
    const CsvCell* pHeld = &mCell;
    std::size_t next = 0;
    for (const uint16_t row : window.rows) {
        if (next < mTaken && mOffsets[next] == row) {
            makeCell(mValues[next++], *pCells);
            if (pCells->length == CsvCell::kAside)
                setAside(*pCells, longTexts);
            pHeld = pCells;
        } else {
            *pCells = *pHeld;
        }
        ++pCells;
    }
    mCell = *pHeld;
}

void CsvColumn::makeCell(double textValue, CsvCell& cell)
{
    char buffer[kNumberTextSize + 1];
    if (char* pEnd = mDecoder.writeNumber(textValue, buffer)) {
        *pEnd++ = mSeparator;
        const auto length = static_cast<std::size_t>(pEnd - buffer);
        if (length <= sizeof cell.text) {
            std::memcpy(cell.text, buffer, sizeof cell.text); // a fixed size is a pair of moves
            cell.length = static_cast<uint8_t>(length);
            return;
        }
        mLongText.assign(buffer, length);
    } else {
        mLongText.clear();
        mDecoder.appendText(textValue, mLongText);
        mLongText += mSeparator;
        if (mLongText.size() <= sizeof cell.text) {
            std::memcpy(cell.text, mLongText.data(), mLongText.size());
            cell.length = static_cast<uint8_t>(mLongText.size());
            return;
        }
    }
    cell.length = CsvCell::kAside;
}

void CsvColumn::setAside(CsvCell& cell, std::vector<std::string>& longTexts) const
{
    const auto number = static_cast<uint32_t>(longTexts.size());
    std::memcpy(cell.text, &number, sizeof number);
    longTexts.push_back(mLongText);
}

} // namespace ZARN
