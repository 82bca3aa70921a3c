#pragma once

#include "analysis/EngineRunning.h"
#include "analysis/Episode.h"
#include "analysis/EpisodeExtent.h"
#include "analysis/WatchedPart.h"
#include "profile/ThresholdBand.h"

#include <map>

namespace ZARN {

/// Finds when the values of one parameter lay outside its limits, in one walk over its samples.
class LimitScan {
public:
    /// @param group the parameter's device
    /// @param texts the parameter as the numbers of its texts; its thresholds have a boundary
    /// @param takeOffs when flights took off, ascending: what is cold in a take-off is not warming up
    LimitScan(const std::string& group, const Trace& texts, const EngineRunning& engine, const std::vector<double>& takeOffs,
              EpisodeList& list);

    /// Takes samples of a sequence that follow each other, as metric values.
    void walk(int sequence, const WatchedPart& part);
    /// Tells the episodes that are still open. @return whether a sample was watched
    bool finish();

private:
    struct Sequence {
        bool isEmpty = true;
        EpisodeExtent extent;
        bool isFromFirst = false; // the episode began with the first sample of the sequence
        std::size_t position = 0; // of the samples of the greatest state: the first one,
        ESide side = ESide::eNone;
        bool hasPeak = false; // and the worst that is finite
        double peak = 0.0;
        double peakTime = 0.0;
        std::size_t peakPosition = 0;
    };

    [[nodiscard]] bool allInside(std::span<const double> values) const;
    void outside(Sequence& sequence, int number, double time, double value, std::size_t position);
    void takePeak(Sequence& sequence, double time, double value, std::size_t position) const;
    void close(Sequence& sequence, int number);
    void describePeak(Episode& episode, const Sequence& sequence) const;
    [[nodiscard]] bool isWarmingUp(const Episode& episode, const Sequence& sequence) const;
    [[nodiscard]] std::size_t bandOf(double value) const;
    [[nodiscard]] ESide sideOf(double value) const;
    [[nodiscard]] double limitOf(const Sequence& sequence) const;

    const std::string& mGroup;
    const Trace& mTexts;
    const EngineRunning& mEngine;
    const std::vector<double>& mTakeOffs;
    EpisodeList& mList;
    const ThresholdList& mThresholds;
    const std::vector<ThresholdBand> mBands;
    const ThresholdBand* mpBand; // of the sample before
    std::map<int, Sequence> mSequences;
};

} // namespace ZARN
