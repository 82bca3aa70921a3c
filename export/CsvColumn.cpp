#include "export/CsvColumn.h"

#include "app/NumberText.h"
#include "card/record/TimeKernels.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace ZARN {

namespace {

constexpr std::size_t kBatch = 32; // samples whose ticks are computed at once

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

uint32_t CsvColumn::tickAt(double time) const
{
    return saturatingCast<uint32_t>(time * mTicksPerSecond + 0.5);
}

void CsvColumn::sortByTick()
{
    const RecordEntries& entries = mpChannel->entries;
    mSorted.reserve(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i)
        mSorted.push_back({tickAt(entries.time(i)), static_cast<uint32_t>(i)});
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
        mNextTick = mNext < mpChannel->entries.size() ? tickAt(mpChannel->entries.time(mNext)) : kNoTick;
}

void CsvColumn::take(uint64_t offset, std::size_t position)
{
    if (mOffsets.empty() || mOffsets.back() != offset) {
        mOffsets.push_back(static_cast<uint16_t>(offset));
        mRecords.emplace_back();
        mValues.emplace_back();
    }
    if (mPositions.empty())
        mRecords.back() = mpChannel->entries.stored(position);
    else
        mValues.back() = mPositions[position];
}

void CsvColumn::collectSorted(const CsvWindow& window)
{
    for (; mNext < mSorted.size() && mSorted[mNext].tick < window.end(); ++mNext)
        take(mSorted[mNext].tick - window.first, mSorted[mNext].position);
}

void CsvColumn::collectAscending(const CsvWindow& window)
{
    const RecordEntries& entries = mpChannel->entries;
    std::array<double, kBatch> times;
    while (mNext < entries.size()) {
        const auto batch = entries.run(mNext, kBatch);
        recordTimes(batch, times.data());
        for (std::size_t i = 0; i < batch.size(); ++i) {
            const uint32_t tick = tickAt(times[i]);
            if (tick >= window.end())
                return;
            take(tick - window.first, mNext++);
        }
    }
}

void CsvColumn::collect(CsvWindow& window)
{
    mOffsets.clear();
    mRecords.clear();
    mValues.clear();
    if (mNextTick >= window.end())
        return;
    if (mSorted.empty())
        collectAscending(window);
    else
        collectSorted(window);
    readAhead();
    for (const uint16_t offset : mOffsets)
        window.marked[offset] = 1;
    if (mPositions.empty()) {
        CoordinateFilter unused;
        mDecoder.textValues(mRecords, mValues.data(), unused);
    }
}

void CsvColumn::fill(const CsvWindow& window, CsvCell* pCells, std::vector<std::string>& longTexts)
{
    if (mCell.length == CsvCell::kAside)
        setAside(longTexts);
    std::size_t next = 0;
    for (const uint16_t row : window.rows) {
        if (next < mOffsets.size() && mOffsets[next] == row) {
            makeCell(mValues[next++]);
            if (mCell.length == CsvCell::kAside)
                setAside(longTexts);
        }
        *pCells++ = mCell;
    }
}

void CsvColumn::makeCell(double textValue)
{
    char buffer[kNumberTextSize + 1];
    if (char* pEnd = mDecoder.writeNumber(textValue, buffer)) {
        *pEnd++ = mSeparator;
        const auto length = static_cast<std::size_t>(pEnd - buffer);
        if (length <= sizeof mCell.text) {
            std::memcpy(mCell.text, buffer, sizeof mCell.text); // a fixed size is a pair of moves
            mCell.length = static_cast<uint8_t>(length);
            return;
        }
        mLongText.assign(buffer, length);
    } else {
        mLongText.clear();
        mDecoder.appendText(textValue, mLongText);
        mLongText += mSeparator;
        if (mLongText.size() <= sizeof mCell.text) {
            std::memcpy(mCell.text, mLongText.data(), mLongText.size());
            mCell.length = static_cast<uint8_t>(mLongText.size());
            return;
        }
    }
    mCell.length = CsvCell::kAside;
}

void CsvColumn::setAside(std::vector<std::string>& longTexts)
{
    const auto number = static_cast<uint32_t>(longTexts.size());
    std::memcpy(mCell.text, &number, sizeof number);
    longTexts.push_back(mLongText);
}

} // namespace ZARN
