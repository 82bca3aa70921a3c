#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <span>
#include <vector>

namespace ZARN {

/// The least and the greatest of some values; `least` above `greatest` where there were none. Values that are not numbers do not count.
template <typename Value> struct ValueRange {
    Value least = std::numeric_limits<Value>::infinity();
    Value greatest = -std::numeric_limits<Value>::infinity();

    void add(Value value)
    {
        least = value < least ? value : least;
        greatest = value > greatest ? value : greatest;
    }
    void add(const ValueRange& other)
    {
        least = other.least < least ? other.least : least;
        greatest = other.greatest > greatest ? other.greatest : greatest;
    }
    [[nodiscard]] bool isEmpty() const { return !(least <= greatest); }
};

/// Finds the least and greatest of any run of a growing sequence of values without looking at each of them: of every 64 values, and of
/// every 16 of these, and so on, both are kept (an eighth of a value's bytes in all). The values themselves stay with the caller.
template <typename Value> class MinMaxPyramid {
public:
    using Range = ValueRange<Value>;
    static constexpr std::size_t kLeaf = 32;
    static constexpr std::size_t kFan = 16;

    /// Takes in what came to the end of the values since the last call.
    void update(std::span<const Value> values);
    void clear() { mLevels.clear(); }
    /// Of the values from `first` up to but not including `last`, which must all have been there at the last update().
    [[nodiscard]] Range range(std::span<const Value> values, std::size_t first, std::size_t last) const;
    /// Asks the memory for what range() is going to read first for a run that begins at `first`.
    void prefetch(std::span<const Value> values, std::size_t first) const;
    [[nodiscard]] std::size_t bytes() const;

    /// Looks at each value.
    static Range scan(const Value* pValues, std::size_t count);

private:
    static void addNodes(const std::vector<Range>& nodes, std::size_t first, std::size_t last, Range& range);

    std::vector<std::vector<Range>> mLevels; // complete nodes only: they never change
};

template <typename Value> ValueRange<Value> MinMaxPyramid<Value>::scan(const Value* pValues, std::size_t count)
{
    constexpr std::size_t kLanes = 16; // side by side, so that the processor takes many at once
    Range range;
    if (count >= kLanes) {
        Value least[kLanes], greatest[kLanes];
        std::fill(least, least + kLanes, range.least);
        std::fill(greatest, greatest + kLanes, range.greatest);
        for (; count >= kLanes; count -= kLanes, pValues += kLanes) {
            for (std::size_t i = 0; i < kLanes; ++i)
                least[i] = pValues[i] < least[i] ? pValues[i] : least[i];
            for (std::size_t i = 0; i < kLanes; ++i)
                greatest[i] = pValues[i] > greatest[i] ? pValues[i] : greatest[i];
        }
        for (std::size_t i = 0; i < kLanes; ++i)
            range.add(Range{least[i], greatest[i]});
    }
    for (; count > 0; --count, ++pValues)
        range.add(*pValues);
    return range;
}

template <typename Value> void MinMaxPyramid<Value>::update(std::span<const Value> values)
{
    if (mLevels.empty())
        mLevels.emplace_back();
    for (std::size_t i = mLevels[0].size(); (i + 1) * kLeaf <= values.size(); ++i)
        mLevels[0].push_back(scan(values.data() + i * kLeaf, kLeaf));
    for (std::size_t level = 1; mLevels[level - 1].size() >= kFan; ++level) {
        if (level == mLevels.size())
            mLevels.emplace_back();
        for (std::size_t i = mLevels[level].size(); (i + 1) * kFan <= mLevels[level - 1].size(); ++i) {
            Range node;
            addNodes(mLevels[level - 1], i * kFan, (i + 1) * kFan, node);
            mLevels[level].push_back(node);
        }
    }
}

template <typename Value>
void MinMaxPyramid<Value>::addNodes(const std::vector<Range>& nodes, std::size_t first, std::size_t last, Range& range)
{
    for (; first < last; ++first)
        range.add(nodes[first]);
}

template <typename Value>
ValueRange<Value> MinMaxPyramid<Value>::range(std::span<const Value> values, std::size_t first, std::size_t last) const
{
    if (first >= last)
        return {};
    std::size_t begin = (first + kLeaf - 1) / kLeaf, end = last / kLeaf;
    if (begin >= end || mLevels.empty())
        return scan(values.data() + first, last - first);
    Range range = scan(values.data() + first, begin * kLeaf - first);
    range.add(scan(values.data() + end * kLeaf, last - end * kLeaf));
    for (std::size_t level = 0;; ++level) {
        const std::vector<Range>& nodes = mLevels[level];
        if (level + 1 == mLevels.size() || end - begin < 2 * kFan) {
            addNodes(nodes, begin, end, range);
            return range;
        }
        const std::size_t above = (begin + kFan - 1) / kFan, below = end / kFan;
        addNodes(nodes, begin, above * kFan, range);
        addNodes(nodes, below * kFan, end, range);
        begin = above;
        end = below;
    }
}

template <typename Value> void MinMaxPyramid<Value>::prefetch(std::span<const Value> values, std::size_t first) const
{
    if (mLevels.empty() || mLevels[0].empty())
        return;
    constexpr std::size_t kLine = 64;
    const auto ask = [](const auto* pFirst, std::size_t count) {
        const auto* pBytes = reinterpret_cast<const char*>(pFirst);
        for (std::size_t offset = 0; offset < count * sizeof(*pFirst) + kLine; offset += kLine)
            __builtin_prefetch(pBytes + offset);
    };
    // One run ends where the next begins: between them they read the leaf around the place, and the nodes beside it up to the next above.
    const std::size_t leaf = std::min(first / kLeaf, mLevels[0].size() - 1);
    ask(values.data() + leaf * kLeaf, kLeaf);
    ask(mLevels[0].data() + leaf / kFan * kFan, kFan);
}

template <typename Value> std::size_t MinMaxPyramid<Value>::bytes() const
{
    std::size_t bytes = 0;
    for (const std::vector<Range>& level : mLevels)
        bytes += level.capacity() * sizeof(Range);
    return bytes;
}

} // namespace ZARN
