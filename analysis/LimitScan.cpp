#include "analysis/LimitScan.h"

#include "analysis/WatchedTimes.h"
#include "app/FusedMultiplyAdd.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

bool isOutside(const ThresholdBand& band)
{
    return band.pThreshold && band.pThreshold->state != eThresholdOk;
}

/// As wide as the values and without a branch, for the processor to take several at once.
ZARN_FUSED_MULTIPLY_ADD bool areInside(std::span<const double> values, double from, double to)
{
    constexpr std::size_t kBlock = 64;
    std::size_t i = 0;
    for (; i + kBlock <= values.size(); i += kBlock) {
        const double* pValues = values.data() + i;
        uint64_t inside = 0;
        for (std::size_t k = 0; k < kBlock; ++k)
            inside += static_cast<uint64_t>(pValues[k] >= from) & static_cast<uint64_t>(pValues[k] < to);
        if (inside != kBlock)
            return false;
    }
    return std::ranges::all_of(values.subspan(i), [=](double value) { return value >= from && value < to; });
}

} // namespace

LimitScan::LimitScan(const std::string& group, const Trace& texts, const EngineRunning& engine, const std::vector<double>& takeOffs,
                     EpisodeList& list)
    : mGroup(group), mTexts(texts), mEngine(engine), mTakeOffs(takeOffs), mList(list), mThresholds(*texts.decoder().thresholds()),
      mBands(thresholdBands(mThresholds)), mpBand(&mBands.front())
{
}

bool LimitScan::allInside(std::span<const double> values) const
{
    return !isOutside(*mpBand) && areInside(values, mpBand->from, mpBand->to);
}

void LimitScan::walk(int number, const WatchedPart& part)
{
    Sequence& sequence = mSequences[number];
    const std::span<const double> numbers = part.numbers();
    if (allInside(numbers)) { // nearly always
        if (sequence.extent.isOutside())
            sequence.extent.inside(part.time(0));
        sequence.isEmpty = false;
        return;
    }
    const std::span<const double> times = part.times();
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const double value = numbers[i];
        if (!mpBand->holds(value))
            mpBand = &findBand(mBands, value);
        if (isOutside(*mpBand))
            outside(sequence, number, times[i], value, part.position() + i);
        else
            sequence.extent.inside(times[i]);
        sequence.isEmpty = false;
    }
}

void LimitScan::outside(Sequence& sequence, int number, double time, double value, std::size_t position)
{
    if (sequence.extent.isOverAt(time))
        close(sequence, number);
    if (!sequence.extent.isOpen())
        sequence.isFromFirst = sequence.isEmpty;
    const int state = mpBand->pThreshold->state;
    if (sequence.extent.outside(time, state)) {
        sequence.position = position;
        sequence.side = sideOf(value);
        sequence.hasPeak = false;
    }
    if (state == sequence.extent.state() && std::isfinite(value))
        takePeak(sequence, time, value, position);
}

void LimitScan::takePeak(Sequence& sequence, double time, double value, std::size_t position) const
{
    const bool isWorse = sequence.side == ESide::eHigh ? value > sequence.peak : value < sequence.peak;
    if (sequence.hasPeak && !isWorse)
        return;
    sequence.hasPeak = true;
    sequence.peak = value;
    sequence.peakTime = time;
    sequence.peakPosition = position;
}

bool LimitScan::finish()
{
    for (auto& [number, sequence] : mSequences)
        close(sequence, number);
    return !mSequences.empty() && mSequences.rbegin()->first != WatchedTimes::kOthers;
}

void LimitScan::close(Sequence& sequence, int number)
{
    if (!sequence.extent.isOpen())
        return;
    Episode episode;
    episode.group = mGroup;
    episode.parameter = mTexts.name();
    episode.unit = mTexts.parameter().unitMetric;
    episode.state = sequence.extent.state();
    episode.stateTime = sequence.extent.stateTime();
    episode.start = sequence.extent.start();
    episode.end = sequence.extent.end();
    episode.side = sequence.side;
    mTexts.decoder().appendText(mTexts.number(sequence.hasPeak ? sequence.peakPosition : sequence.position), episode.text);
    if (!mTexts.unit().empty())
        episode.text += " " + mTexts.unit();
    if (sequence.hasPeak)
        describePeak(episode, sequence);
    const bool isWatched = number != WatchedTimes::kOthers && !isWarmingUp(episode, sequence);
    mList.add(std::move(episode), isWatched);
    sequence.extent.close();
}

void LimitScan::describePeak(Episode& episode, const Sequence& sequence) const
{
    const ValueDecoder& decoder = mTexts.decoder();
    episode.peak = {limitOf(sequence), sequence.peak};
    episode.peakTime = sequence.peakTime;
    episode.precision = mTexts.parameter().precision;
    // A pair of units that the profile does not declare converts all to 0: the metric numbers are right at least.
    const bool isConverted = decoder.toDisplayUnit(0.0) != decoder.toDisplayUnit(1.0);
    episode.shownUnit = isConverted ? mTexts.unit() : episode.unit;
    episode.shown =
        isConverted ? EpisodePeak{decoder.toDisplayUnit(episode.peak->limit), decoder.toDisplayUnit(episode.peak->value)} : *episode.peak;
}

bool LimitScan::isWarmingUp(const Episode& episode, const Sequence& sequence) const
{
    const bool isTemperature = episode.unit == "°C" || episode.unit == "C" || episode.unit == "K";
    if (!mEngine.isKnown() || !isTemperature || episode.side != ESide::eLow || episode.state != eThresholdWarning || !sequence.isFromFirst)
        return false;
    const auto takeOff = std::ranges::lower_bound(mTakeOffs, episode.start);
    return takeOff == mTakeOffs.end() || *takeOff > episode.end;
}

/// The place of a value's boundary in the list; only asked for values that have one.
std::size_t LimitScan::bandOf(double value) const
{
    return static_cast<std::size_t>(findBand(mBands, value).pThreshold - mThresholds.data());
}

ESide LimitScan::sideOf(double value) const
{
    const std::size_t band = bandOf(value);
    const auto own = mThresholds.begin() + static_cast<std::ptrdiff_t>(band);
    const bool isAboveOk = std::any_of(mThresholds.begin(), own, [](const Threshold& below) { return below.state == eThresholdOk; });
    const bool isBelowOk = std::any_of(own, mThresholds.end(), [](const Threshold& above) { return above.state == eThresholdOk; });
    return isAboveOk || !isBelowOk ? ESide::eHigh : ESide::eLow;
}

double LimitScan::limitOf(const Sequence& sequence) const
{
    std::size_t band = bandOf(sequence.peak);
    if (sequence.side == ESide::eHigh) {
        while (band > 0 && mThresholds[band - 1].state == sequence.extent.state())
            --band;
        return mThresholds[band].value;
    }
    while (band + 1 < mThresholds.size() && mThresholds[band].state == sequence.extent.state())
        ++band;
    return mThresholds[band].value;
}

} // namespace ZARN
