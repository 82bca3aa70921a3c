#include "analysis/Distribution.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <functional>

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
void addTo(double& sum, double& rest, double value)
{
    const double next = sum + value, taken = next - sum;
    rest += (sum - (next - taken)) + (value - taken);
    sum = next;
}

Totals totalsOf(const std::vector<double>& values)
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

/// Sorts values into bins of even width, so that only the few values of the bins that hold a rank need be put in order.
class Ranks {
public:
    using Places = std::array<std::size_t, 2 * kParts.size()>;

    Ranks(const std::vector<double>& values, const Totals& totals) : mValues(values), mBins(values.size())
    {
        const double width = totals.greatest - totals.least, scale = (kBins - 1) / width;
        if (values.size() >= kFew && std::isfinite(width) && std::isfinite(scale)) // else all are in one bin
            sortOut(totals.least, scale);
        count();
    }

    /// The values that stand at ascending ranks when all are in order.
    std::array<double, 2 * kParts.size()> valuesAt(Places ranks)
    {
        std::vector<double> some = valuesAround(ranks);
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

    void sortOut(double least, double scale)
    {
        // From 0 to kBins - 1, so that no cast has to be held.
        const auto binOf = [=](double value) { return static_cast<int32_t>((value - least) * scale); };
        std::size_t i = 0;
        for (; i + kLanes <= mValues.size(); i += kLanes) {
            for (std::size_t lane = 0; lane < kLanes; ++lane)
                mBins[i + lane] = binOf(mValues[i + lane]);
        }
        for (; i < mValues.size(); ++i)
            mBins[i] = binOf(mValues[i]);
    }

    void count()
    {
        // In turns, since neighbours tend to fall into one bin and each count would wait for the one before.
        std::array<uint32_t, kBins> others{};
        for (std::size_t i = 0; i + 1 < mBins.size(); i += 2) {
            ++mCounts[static_cast<std::size_t>(mBins[i])];
            ++others[static_cast<std::size_t>(mBins[i + 1])];
        }
        if (mBins.size() % 2 != 0)
            ++mCounts[static_cast<std::size_t>(mBins.back())];
        std::ranges::transform(mCounts, others, mCounts.begin(), std::plus());
    }

    /// All values of the bins that hold a rank; the ranks become those among them.
    std::vector<double> valuesAround(Places& ranks) const
    {
        std::array<uint8_t, kBins> wanted{};
        std::size_t before = 0, left = 0, next = 0; // values of lower bins, and those of them that are left out
        for (std::size_t bin = 0; bin < kBins; before += mCounts[bin++]) {
            for (; next < ranks.size() && ranks[next] < before + mCounts[bin]; ++next) {
                wanted[bin] = 1;
                ranks[next] -= left;
            }
            left += wanted[bin] != 0 ? 0 : mCounts[bin];
        }
        std::vector<double> some(mValues.size() + 1);
        std::size_t end = 0;
        for (std::size_t i = 0; i < mValues.size(); ++i) { // no branch: it could not be foretold
            some[end] = mValues[i];
            end += wanted[static_cast<std::size_t>(mBins[i])];
        }
        some.resize(end);
        return some;
    }

    const std::vector<double>& mValues;
    std::vector<int32_t> mBins; // of each value
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
    Ranks::Places ranks{};
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
