#include "analysis/Distribution.h"

#include "app/FusedMultiplyAdd.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>

namespace ZARN {

namespace {

constexpr std::array<double, 3> kParts{0.05, 0.5, 0.95};

struct Totals {
    double least;
    double greatest;
    double sum;
};

constexpr std::size_t kLanes = 8; // values that a processor may take at once, and that do not wait for each other

/// Adds a value; what the sum is too coarse to hold goes into the rest. Else one damaged value, 10^30 times the others, would leave no
/// trace of them in the mean.
[[gnu::always_inline]] inline void addTo(double& sum, double& rest, double value)
{
    const double next = sum + value, taken = next - sum;
    rest += (sum - (next - taken)) + (value - taken);
    sum = next;
}

ZARN_FUSED_MULTIPLY_ADD Totals totalsOf(const std::vector<double>& values)
{
    std::array<double, kLanes> least, greatest, sums{}, rests{};
    least.fill(values.front());
    greatest.fill(values.front());
    std::size_t i = 0;
    for (; i + kLanes <= values.size(); i += kLanes) {
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            const double value = values[i + lane];
            least[lane] = value < least[lane] ? value : least[lane];
            greatest[lane] = value > greatest[lane] ? value : greatest[lane];
            addTo(sums[lane], rests[lane], value);
        }
    }
    Totals totals{*std::ranges::min_element(least), *std::ranges::max_element(greatest), 0.0};
    double rest = 0;
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
        addTo(totals.sum, rest, sums[lane]);
        addTo(totals.sum, rest, rests[lane]);
    }
    for (; i < values.size(); ++i) {
        totals.least = std::min(totals.least, values[i]);
        totals.greatest = std::max(totals.greatest, values[i]);
        addTo(totals.sum, rest, values[i]);
    }
    totals.sum += rest;
    return totals;
}

constexpr std::size_t kBlock = 64; // of values that are counted at once

struct Counts {
    uint64_t below = 0, notAboveLower = 0, belowUpper = 0, notAboveUpper = 0;
};

/// As wide as the values and without a branch, for the processor to take several at once.
ZARN_FUSED_MULTIPLY_ADD Counts countBlock(const double* pValues, double lower, double upper)
{
    Counts counts;
    for (std::size_t i = 0; i < kBlock; ++i) {
        counts.below += pValues[i] < lower ? 1U : 0U;
        counts.notAboveLower += pValues[i] <= lower ? 1U : 0U;
        counts.belowUpper += pValues[i] < upper ? 1U : 0U;
        counts.notAboveUpper += pValues[i] <= upper ? 1U : 0U;
    }
    return counts;
}

/// Where a part of the values ends when they are in order: between two borders that a sample tells, so that only the values between
/// them need be put in order. Values on a border are counted alone, for many are alike.
class Bracket {
public:
    Bracket(const std::vector<double>& sample, double part)
    {
        const double last = static_cast<double>(sample.size() - 1), place = part * last;
        const double margin = 3 * std::sqrt(last * part * (1 - part)); // the real place seldom lies further off
        mLower = sample[static_cast<std::size_t>(std::max(0.0, place - margin))];
        mUpper = sample[static_cast<std::size_t>(std::min(last, place + margin + 1))];
    }

    void add(const double* pValues)
    {
        const Counts counts = countBlock(pValues, mLower, mUpper);
        mBelow += counts.below;
        mOnLower += counts.notAboveLower - counts.below;
        mOnUpper += counts.notAboveUpper - counts.belowUpper;
        if (counts.belowUpper > counts.notAboveLower)
            std::copy_if(pValues, pValues + kBlock, std::back_inserter(mBetween), [this](double value) { return value > mLower && value < mUpper; });
    }

    /// The value at a rank, not below one that was asked for before; none where it lies outside of the borders.
    std::optional<double> at(std::size_t rank)
    {
        if (rank < mBelow)
            return std::nullopt;
        rank -= mBelow;
        if (rank < mOnLower)
            return mLower;
        rank -= mOnLower;
        if (rank < mBetween.size()) {
            const auto place = mBetween.begin() + static_cast<std::ptrdiff_t>(rank);
            if (rank == mNext)
                std::iter_swap(place, std::min_element(place, mBetween.end()));
            else
                std::nth_element(mBetween.begin(), place, mBetween.end());
            mNext = rank + 1;
            return *place;
        }
        return rank - mBetween.size() < (mLower < mUpper ? mOnUpper : 0) ? std::optional(mUpper) : std::nullopt;
    }

private:
    double mLower;
    double mUpper;
    std::size_t mBelow = 0, mOnLower = 0, mOnUpper = 0; // values below the lower border, on it, on the upper one
    std::vector<double> mBetween;
    std::size_t mNext = std::numeric_limits<std::size_t>::max(); // those before it are in place
};

constexpr std::size_t kFew = 1024; // of so few, all are put in order

using Ranks = std::array<std::size_t, 2 * kParts.size()>;
using Ranked = std::array<double, 2 * kParts.size()>;

/// The values at ascending ranks; the values change their order.
Ranked inOrder(std::vector<double>& values, const Ranks& ranks)
{
    Ranked found{};
    auto first = values.begin();
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        const auto place = values.begin() + static_cast<std::ptrdiff_t>(ranks[i]);
        if (place >= first)
            std::nth_element(first, place, values.end());
        first = std::max(first, place + 1);
        found[i] = *place;
    }
    return found;
}

/// The same, without looking at most of the values twice.
Ranked valuesAt(std::vector<double>& values, const Ranks& ranks)
{
    constexpr std::size_t kSample = 256;
    if (values.size() < kFew)
        return inOrder(values, ranks);
    std::vector<double> sample(kSample);
    for (std::size_t i = 0; i < kSample; ++i)
        sample[i] = values[i * values.size() / kSample];
    std::ranges::sort(sample);
    std::vector<Bracket> brackets;
    for (const double part : kParts)
        brackets.emplace_back(sample, part);
    const std::size_t whole = values.size() / kBlock * kBlock;
    std::array<double, kBlock> rest;
    rest.fill(std::numeric_limits<double>::quiet_NaN()); // which none counts
    std::copy(values.begin() + static_cast<std::ptrdiff_t>(whole), values.end(), rest.begin());
    for (std::size_t i = 0; i < whole; i += kBlock) {
        for (Bracket& bracket : brackets)
            bracket.add(values.data() + i);
    }
    Ranked found{};
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        if (i % 2 == 0)
            brackets[i / 2].add(rest.data());
        const std::optional<double> value = brackets[i / 2].at(ranks[i]);
        if (!value)
            return inOrder(values, ranks);
        found[i] = *value;
    }
    return found;
}

} // namespace

Distribution Distribution::of(std::vector<double>& values)
{
    if (values.empty())
        return {};
    Totals totals = totalsOf(values);
    if (!std::isfinite(totals.sum)) {
        std::erase_if(values, [](double value) { return !std::isfinite(value); });
        if (values.empty())
            return {};
        totals = totalsOf(values);
    }
    Ranks ranks{};
    std::array<double, kParts.size()> shares{};
    for (std::size_t i = 0; i < kParts.size(); ++i) {
        const double rank = kParts[i] * static_cast<double>(values.size() - 1);
        ranks[2 * i] = static_cast<std::size_t>(rank);
        ranks[2 * i + 1] = std::min(ranks[2 * i] + 1, values.size() - 1);
        shares[i] = rank - std::floor(rank);
    }
    const Ranked found = valuesAt(values, ranks);
    const auto percentile = [&](std::size_t i) { return found[2 * i] + (found[2 * i + 1] - found[2 * i]) * shares[i]; };
    return {values.size(),
            totals.least,
            percentile(0),
            percentile(1),
            percentile(2),
            totals.greatest,
            totals.sum / static_cast<double>(values.size())};
}

} // namespace ZARN
