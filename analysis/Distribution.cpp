#include "analysis/Distribution.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace ZARN {

namespace {

constexpr std::array<double, 3> kParts{0.05, 0.5, 0.95};

struct Totals {
    double least;
    double greatest;
    double sum;
};

/// In four lanes, so that no step waits for the one before.
Totals totalsOf(const std::vector<double>& values)
{
    constexpr std::size_t kLanes = 4;
    double least[kLanes], greatest[kLanes], sum[kLanes]{};
    std::fill_n(least, kLanes, values.front());
    std::fill_n(greatest, kLanes, values.front());
    const auto take = [&](std::size_t lane, double value) {
        least[lane] = value < least[lane] ? value : least[lane];
        greatest[lane] = value > greatest[lane] ? value : greatest[lane];
        sum[lane] += value;
    };
    std::size_t i = 0;
    for (; i + kLanes <= values.size(); i += kLanes) {
        for (std::size_t lane = 0; lane < kLanes; ++lane)
            take(lane, values[i + lane]);
    }
    for (; i < values.size(); ++i)
        take(0, values[i]);
    return {*std::min_element(least, least + kLanes), *std::max_element(greatest, greatest + kLanes), sum[0] + sum[1] + sum[2] + sum[3]};
}

/// Sorts values into bins of even width, so that only the few values of the bins that hold a rank need be put in order.
class Ranks {
public:
    Ranks(const std::vector<double>& values, const Totals& totals) : mValues(values), mLeast(totals.least)
    {
        mScale = (kBins - 1) / (totals.greatest - totals.least);
        if (values.size() < kFew || !std::isfinite(mScale))
            mScale = 0.0; // all in one bin
        for (const double value : values)
            ++mCounts[binOf(value)];
    }

    /// The values that stand at ascending ranks when all are in order.
    std::array<double, 2 * kParts.size()> valuesAt(std::array<std::size_t, 2 * kParts.size()> ranks)
    {
        std::array<bool, kBins> wanted{};
        std::size_t before = 0, left = 0, next = 0; // values of lower bins, and those of them that are left out
        for (std::size_t bin = 0; bin < kBins; before += mCounts[bin++]) {
            for (; next < ranks.size() && ranks[next] < before + mCounts[bin]; ++next) {
                wanted[bin] = true;
                ranks[next] -= left;
            }
            left += wanted[bin] ? 0 : mCounts[bin];
        }
        std::vector<double> some;
        for (const double value : mValues) {
            if (wanted[binOf(value)])
                some.push_back(value);
        }
        std::array<double, 2 * kParts.size()> found{};
        auto first = some.begin();
        for (std::size_t i = 0; i < ranks.size(); ++i) {
            const auto place = some.begin() + static_cast<std::ptrdiff_t>(ranks[i]);
            if (place >= first)
                std::nth_element(first, place, some.end());
            first = std::max(first, place + 1);
            found[i] = *place;
        }
        return found;
    }

private:
    static constexpr std::size_t kBins = 1024;
    static constexpr std::size_t kFew = 1000; // of so few, sorting out costs more than it saves

    [[nodiscard]] std::size_t binOf(double value) const
    {
        return static_cast<std::size_t>(static_cast<int32_t>((value - mLeast) * mScale));
    }

    const std::vector<double>& mValues;
    double mLeast;
    double mScale = 0.0;
    std::array<uint32_t, kBins> mCounts{};
};

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
    std::array<std::size_t, 2 * kParts.size()> ranks{};
    std::array<double, kParts.size()> shares{};
    for (std::size_t i = 0; i < kParts.size(); ++i) {
        const double rank = kParts[i] * static_cast<double>(values.size() - 1);
        ranks[2 * i] = static_cast<std::size_t>(rank);
        ranks[2 * i + 1] = std::min(ranks[2 * i] + 1, values.size() - 1);
        shares[i] = rank - std::floor(rank);
    }
    const std::array<double, 2 * kParts.size()> found = Ranks(values, totals).valuesAt(ranks);
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
