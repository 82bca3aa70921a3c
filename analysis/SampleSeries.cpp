#include "analysis/SampleSeries.h"

#include "app/Numeric.h"
#include "vesk/base/Memory.h"

#include <array>
#include <cmath>

namespace ZARN {

namespace {

/// The index covers one day and a little; samples after it are found by bisection. No time in a file makes it grow further.
constexpr std::size_t kMostSeconds = 86402;

bool isFloat(double value)
{
    const auto single = static_cast<float>(value);
    return static_cast<double>(single) == value || std::isnan(value);
}

} // namespace

void SampleSeries::reserve(std::size_t count)
{
    const auto take = [count](auto& values) {
        values.reserve(count);
        VESK::Memory::preferLargePages(values.data() + values.size(), (values.capacity() - values.size()) * sizeof(values[0]));
    };
    take(mTimes);
    if (mIsDouble)
        take(mDoubles);
    else
        take(mFloats);
}

void SampleSeries::clear()
{
    *this = SampleSeries();
}

void SampleSeries::useDoubles()
{
    mDoubles.reserve(std::max(mFloats.capacity(), mFloats.size() + 1));
    mDoubles.assign(mFloats.begin(), mFloats.end());
    mFloats = std::vector<float>(); // "= {}" would keep their memory
    mFloatPyramid.clear();
    mIsDouble = true;
    mDoublePyramid.update(mDoubles);
}

void SampleSeries::noteOrder(double time)
{
    if (ascending()) {
        if (mTimes.empty() || time >= mTimes.back())
            return;
        mLatest.reserve(mTimes.capacity());
        mLatest.begin(mTimes);
    }
    mLatest.append(time);
}

void SampleSeries::note(double time, double value)
{
    noteOrder(time);
    if (mTimes.empty())
        mFirstSecond = std::isfinite(time) ? std::floor(time) : 0.0;
    const auto position = static_cast<uint32_t>(mTimes.size());
    while (mSeconds.size() < kMostSeconds && time >= mFirstSecond + static_cast<double>(mSeconds.size()))
        mSeconds.push_back(position);
    mTimes.push_back(time);
    if (!mIsDouble && !isFloat(value))
        useDoubles();
    if (mIsDouble)
        mDoubles.push_back(value);
    else
        mFloats.push_back(static_cast<float>(value));
    if (std::isfinite(value)) {
        mExtremes.add(value);
        mSum += value;
        ++mFinite;
    }
    if (position % kAreaStep == 0)
        noteArea();
}

void SampleSeries::noteArea()
{
    if (mAreas.empty()) {
        mAreas.emplace_back();
        return;
    }
    const Area more = area((mAreas.size() - 1) * kAreaStep, mAreas.size() * kAreaStep);
    mAreas.push_back({mAreas.back().sum + more.sum, mAreas.back().covered + more.covered});
}

void SampleSeries::append(double time, double value)
{
    note(time, value);
    if (mIsDouble)
        mDoublePyramid.update(mDoubles);
    else
        mFloatPyramid.update(mFloats);
}

void SampleSeries::append(std::span<const double> times, std::span<const double> values)
{
    for (std::size_t i = 0; i < std::min(times.size(), values.size()); ++i)
        note(times[i], values[i]);
    if (mIsDouble)
        mDoublePyramid.update(mDoubles);
    else
        mFloatPyramid.update(mFloats);
}

std::pair<std::size_t, std::size_t> SampleSeries::secondOf(double time) const
{
    if (mSeconds.empty())
        return {0, size()};
    const double second = std::floor(time - mFirstSecond);
    if (!(second >= 0))
        return {0, std::isnan(second) ? size() : mSeconds.front()};
    const auto entry = saturatingCast<std::size_t>(second);
    if (entry < mSeconds.size() - 1)
        return {mSeconds[entry], mSeconds[entry + 1]};
    return {mSeconds[std::min(entry, mSeconds.size() - 1)], size()};
}

std::size_t SampleSeries::firstAtOrAfter(double time) const
{
    if (std::isnan(time))
        return size();
    const auto [first, last] = secondOf(time);
    const auto begin = order().begin();
    return static_cast<std::size_t>(
        std::lower_bound(begin + static_cast<std::ptrdiff_t>(first), begin + static_cast<std::ptrdiff_t>(last), time) - begin);
}

void SampleSeries::positionsAt(double start, double step, std::span<uint32_t> positions) const
{
    // Within a second samples come at an almost even pace, so a guess is a few samples off at most, and what it will read can be
    // asked for ahead: these are cache misses over hundreds of megabytes.
    constexpr std::size_t kAhead = 16, kNear = 8;
    if (empty()) {
        std::ranges::fill(positions, 0U);
        return;
    }
    struct Place {
        std::size_t first, last, guess;
    };
    const double* pOrder = order().data();
    const auto look = [&](std::size_t i) -> Place {
        const double time = start + step * static_cast<double>(i);
        const auto [first, last] = secondOf(time);
        const double part = (time - std::floor(time)) * static_cast<double>(last - first);
        const std::size_t guess = std::min(first + saturatingCast<std::size_t>(part), last);
        __builtin_prefetch(pOrder + std::min(guess, size() - 1));
        return {first, last, guess};
    };
    std::array<Place, kAhead> places;
    for (std::size_t i = 0; i < std::min(kAhead, positions.size()); ++i)
        places[i] = look(i);
    for (std::size_t i = 0; i < positions.size(); ++i) {
        const double time = start + step * static_cast<double>(i);
        const auto [first, last, guess] = places[i % kAhead];
        if (i + kAhead < positions.size())
            places[i % kAhead] = look(i + kAhead);
        std::size_t at = guess, steps = 0;
        while (at > first && pOrder[at - 1] >= time && steps < kNear)
            --at, ++steps;
        while (at < last && pOrder[at] < time && steps < kNear)
            ++at, ++steps;
        if (steps >= kNear)
            at = static_cast<std::size_t>(std::lower_bound(pOrder + first, pOrder + last, time) - pOrder);
        positions[i] = static_cast<uint32_t>(at);
    }
}

std::optional<std::size_t> SampleSeries::lastAtOrBefore(double time) const
{
    if (std::isnan(time))
        return std::nullopt;
    const auto [first, last] = secondOf(time);
    const auto begin = order().begin();
    const auto after = std::upper_bound(begin + static_cast<std::ptrdiff_t>(first), begin + static_cast<std::ptrdiff_t>(last), time);
    std::size_t position = static_cast<std::size_t>(after - begin);
    while (position > 0 && mTimes[position - 1] > time)
        --position;
    return position > 0 ? std::optional(position - 1) : std::nullopt;
}

double SampleSeries::interpolated(double time) const
{
    const std::size_t after = firstAtOrAfter(time);
    if (after == 0 || after == size() || mTimes[after] == time)
        return value(std::min(after, size() - 1));
    const double before = mTimes[after - 1], width = mTimes[after] - before;
    const double share = width > 0 ? std::clamp((time - before) / width, 0.0, 1.0) : 1.0;
    return value(after - 1) + (value(after) - value(after - 1)) * share;
}

ValueRange<double> SampleSeries::range(std::size_t first, std::size_t last) const
{
    if (mIsDouble)
        return mDoublePyramid.range(mDoubles, first, last);
    const ValueRange<float> range = mFloatPyramid.range(mFloats, first, last);
    return {static_cast<double>(range.least), static_cast<double>(range.greatest)};
}

void SampleSeries::ranges(std::span<const uint32_t> positions, std::span<ValueRange<double>> out) const
{
    constexpr std::size_t kAhead = 12;
    for (std::size_t i = 0; i + 1 < positions.size(); ++i) {
        if (i + kAhead < positions.size()) {
            if (mIsDouble)
                mDoublePyramid.prefetch(mDoubles, positions[i + kAhead]);
            else
                mFloatPyramid.prefetch(mFloats, positions[i + kAhead]);
        }
        out[i] = range(positions[i], positions[i + 1]);
    }
}

SampleSeries::Area SampleSeries::segment(std::size_t position, double from, double to) const
{
    const double begin = mTimes[position], width = mTimes[position + 1] - begin;
    const double left = value(position), right = value(position + 1);
    const double start = std::max(from, begin), end = std::min(to, mTimes[position + 1]);
    if (!(width > 0) || !(end > start) || !std::isfinite(left) || !std::isfinite(right))
        return {};
    const auto at = [&](double time) { return left + (right - left) * ((time - begin) / width); };
    return {(end - start) * (at(start) + at(end)) / 2, end - start};
}

SampleSeries::Area SampleSeries::area(std::size_t first, std::size_t last) const
{
    Area area;
    for (; first < last && first + 1 < size(); ++first) {
        const double width = mTimes[first + 1] - mTimes[first], sum = value(first) + value(first + 1);
        if (width > 0 && std::isfinite(sum)) {
            area.sum += width * sum / 2;
            area.covered += width;
        }
    }
    return area;
}

double SampleSeries::integral(double from, double to, double* pCovered) const
{
    Area total;
    const auto add = [&total](const Area& more, double sign = 1.0) {
        total.sum += sign * more.sum;
        total.covered += sign * more.covered;
    };
    if (size() > 1 && to > from && !ascending()) {
        for (std::size_t i = 0; i + 1 < size(); ++i)
            add(segment(i, from, to));
    } else if (size() > 1 && to > from) {
        // Whole segments lie between the samples `first` and `last`; a piece of one may hang on at each side.
        const std::size_t first = std::min(firstAtOrAfter(from), size() - 1);
        const std::size_t last = lastAtOrBefore(to).value_or(0);
        if (first > 0)
            add(segment(first - 1, from, to));
        if (last >= first && last + 1 < size())
            add(segment(last, from, to));
        const std::size_t begin = (first + kAreaStep - 1) / kAreaStep, end = last / kAreaStep;
        if (begin < end && end < mAreas.size()) {
            add(area(first, begin * kAreaStep));
            add(mAreas[end]);
            add(mAreas[begin], -1.0);
            add(area(end * kAreaStep, last));
        } else if (first < last) {
            add(area(first, last));
        }
    }
    if (pCovered)
        *pCovered = total.covered;
    return total.sum;
}

std::size_t SampleSeries::bytes() const
{
    return (mTimes.capacity() + mDoubles.capacity() + mLatest.maxima().capacity()) * sizeof(double) + mFloats.capacity() * sizeof(float) +
           mSeconds.capacity() * sizeof(uint32_t) + mAreas.capacity() * sizeof(Area) + mFloatPyramid.bytes() + mDoublePyramid.bytes();
}

} // namespace ZARN
