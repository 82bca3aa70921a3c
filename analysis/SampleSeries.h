#pragma once

#include "analysis/MinMaxPyramid.h"
#include "app/RunningMaximum.h"

#include <cstdint>
#include <optional>

namespace ZARN {

/// The samples of one trace in the order in which they were put: times in seconds and values. Finds the sample of a time, the extremes
/// and the integral of any stretch without walking through it. A value takes 4 bytes while all of them are whole 32-bit floats and 8 as
/// soon as one is not; a time takes 8, everything else less than one.
class SampleSeries {
public:
    void reserve(std::size_t count);
    void append(double time, double value);
    /// The same for many; times[i] belongs to values[i].
    void append(std::span<const double> times, std::span<const double> values);
    void clear();

    [[nodiscard]] std::size_t size() const { return mTimes.size(); }
    [[nodiscard]] bool empty() const { return mTimes.empty(); }
    [[nodiscard]] double time(std::size_t position) const { return mTimes[position]; }
    [[nodiscard]] double value(std::size_t position) const
    {
        return mIsDouble ? mDoubles[position] : static_cast<double>(mFloats[position]);
    }
    /// True while no sample is earlier than the one before it.
    [[nodiscard]] bool ascending() const { return mLatest.empty(); }

    /// The position of the first sample, in stored order, whose time is at or after `time`; size() when there is none.
    [[nodiscard]] std::size_t firstAtOrAfter(double time) const;
    /// The same for start, start + step, ... at once; one position for each place of `positions`.
    void positionsAt(double start, double step, std::span<uint32_t> positions) const;
    /// The value in force at a time: of the last sample at or before it; none before the first one. @return its position
    [[nodiscard]] std::optional<std::size_t> lastAtOrBefore(double time) const;
    /// Straight between the samples around the time; the nearest sample's value outside of them. Needs a sample.
    [[nodiscard]] double interpolated(double time) const;

    /// The extremes of the samples from `first` up to but not including `last`.
    [[nodiscard]] ValueRange<double> range(std::size_t first, std::size_t last) const;
    /// The same for the runs between neighbouring positions, which never fall: one range less than positions.
    void ranges(std::span<const uint32_t> positions, std::span<ValueRange<double>> out) const;
    /// The extremes of all finite values.
    [[nodiscard]] const ValueRange<double>& extremes() const { return mExtremes; }
    /// The mean of all finite values, each counted alike; 0 when there are none.
    [[nodiscard]] double average() const { return mFinite > 0 ? mSum / static_cast<double>(mFinite) : 0.0; }

    /// The area under the straight lines between the samples from one time to the other, in value x seconds. Stretches outside the
    /// samples, and those at a value that is not finite, count nothing. @param pCovered gets the seconds that were counted
    [[nodiscard]] double integral(double from, double to, double* pCovered = nullptr) const;

    [[nodiscard]] std::size_t bytes() const; ///< of memory that the samples take

private:
    struct Area {
        double sum = 0.0;
        double covered = 0.0;
    };
    static constexpr std::size_t kAreaStep = 128;
    void note(double time, double value);
    void noteOrder(double time);
    void noteArea();
    void useDoubles();
    [[nodiscard]] const std::vector<double>& order() const { return ascending() ? mTimes : mLatest.maxima(); }
    [[nodiscard]] std::pair<std::size_t, std::size_t> secondOf(double time) const;
    [[nodiscard]] Area segment(std::size_t position, double from, double to) const;
    [[nodiscard]] Area area(std::size_t first, std::size_t last) const;

    std::vector<double> mTimes;
    std::vector<float> mFloats;
    std::vector<double> mDoubles;
    bool mIsDouble = false;
    RunningMaximum<double> mLatest;
    std::vector<uint32_t> mSeconds; // entry k: the first sample at or after mFirstSecond + k
    double mFirstSecond = 0.0;
    MinMaxPyramid<float> mFloatPyramid;
    MinMaxPyramid<double> mDoublePyramid;
    std::vector<Area> mAreas; // of all before sample k x kAreaStep
    ValueRange<double> mExtremes;
    double mSum = 0.0;
    std::size_t mFinite = 0;
};

} // namespace ZARN
