#include "export/CsvColumn.h"

#include "app/LastOfKey.h"
#include "app/NumberText.h"

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

CsvColumn::CsvColumn(const Trace& trace, double ticksPerSecond, const CsvForm& form)
    : mpTrace(&trace), mTicksPerSecond(ticksPerSecond), mForm(form), mCell{{form.separator}, 1}
{
    if (!trace.ascending())
        sortByTick();
    readAhead();
}

uint64_t CsvColumn::firstTick(const std::vector<CsvColumn>& columns)
{
    uint64_t first = kNoTick;
    for (const CsvColumn& column : columns)
        first = std::min(first, column.nextTick());
    return first;
}

void CsvColumn::sortByTick()
{
    mSorted.reserve(mpTrace->size());
    for (std::size_t i = 0; i < mpTrace->size(); ++i)
        mSorted.push_back({tickOf(mpTrace->time(i), mTicksPerSecond), static_cast<uint32_t>(i)});
    keepLastOfKey(mSorted, &TickPosition::tick);
}

void CsvColumn::readAhead()
{
    if (!mSorted.empty())
        mNextTick = mNext < mSorted.size() ? mSorted[mNext].tick : kNoTick;
    else
        mNextTick = mNext < mpTrace->size() ? tickOf(mpTrace->time(mNext), mTicksPerSecond) : kNoTick;
}

void CsvColumn::take(uint64_t offset, double value)
{
    if (mTaken == 0 || mOffsets[mTaken - 1] != offset)
        mOffsets[mTaken++] = static_cast<uint16_t>(offset);
    mValues[mTaken - 1] = value;
}

void CsvColumn::collectSorted(const CsvWindow& window)
{
    for (; mNext < mSorted.size() && mSorted[mNext].tick < window.end(); ++mNext)
        take(mSorted[mNext].tick - window.first, mpTrace->number(mSorted[mNext].position));
}

// All samples are decoded, also those that a later one of the same tick overwrites: that is cheaper than to ask first.
void CsvColumn::collectAscending(const CsvWindow& window)
{
    const double ticksPerSecond = mTicksPerSecond;
    std::array<double, kBatch> times;
    std::array<double, kBatch> values;
    std::array<uint32_t, kBatch> ticks;
    while (mNext < mpTrace->size()) {
        const std::size_t count = mpTrace->readTimes(mNext, times);
        for (std::size_t i = 0; i < count; ++i)
            ticks[i] = tickOf(times[i], ticksPerSecond);
        const auto inWindow =
            static_cast<std::size_t>(std::lower_bound(ticks.begin(), ticks.begin() + count, window.end()) - ticks.begin());
        mpTrace->readNumbers(mNext, std::span(values).first(inWindow));
        for (std::size_t i = 0; i < inWindow; ++i)
            take(ticks[i] - window.first, values[i]);
        mNext += inWindow;
        if (inWindow < count)
            return;
    }
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
    if (char* pEnd = mpTrace->decoder().writeNumber(textValue, buffer)) {
        pEnd = mForm.number(buffer, pEnd);
        *pEnd++ = mForm.separator;
        const auto length = static_cast<std::size_t>(pEnd - buffer);
        if (length <= sizeof cell.text) {
            std::memcpy(cell.text, buffer, sizeof cell.text); // a fixed size is a pair of moves
            cell.length = static_cast<uint8_t>(length);
            return;
        }
        mLongText.assign(buffer, length);
    } else {
        mLongText.clear();
        mpTrace->decoder().appendText(textValue, mLongText);
        mForm.makeCell(mLongText);
        mLongText += mForm.separator;
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
