#include "analysis/EngineRunning.h"

#include "card/record/RecordEntry.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kRuns = 400.0; // revolutions a minute
constexpr double kStands = 300.0;
constexpr double kStart = 10.0; // seconds until what is measured of a started engine has settled
constexpr double kSilent = 10.0; // seconds without a sample of the speed
constexpr double kStop = 2.0;   // and for which it fell before the stop was seen

} // namespace

EngineRunning::EngineRunning() : mStretches(1, TimeSpan{-std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()})
{
}

EngineRunning::EngineRunning(const Trace& speed, double endTime) : EngineRunning()
{
    std::vector<TimeSpan> stretches;
    bool isRunning = false;
    double last = 0.0;
    speed.forEachSample([&](double time, double revolutions) {
        if (time > kLatestTime)
            return;
        if (mIsKnown && time - last > kSilent)
            mSilences.push_back({last, time});
        mIsKnown = true;
        mHasNumbers = mHasNumbers || !std::isnan(revolutions);
        last = time;
        if (!isRunning && revolutions > kRuns) {
            isRunning = true;
            stretches.push_back({time, time});
        } else if (isRunning && revolutions < kStands) {
            isRunning = false;
            stretches.back().end = time;
        }
    });
    if (!mIsKnown)
        return;
    if (endTime <= kLatestTime && endTime - last > kSilent)
        mSilences.push_back({last, endTime});
    if (isRunning)
        stretches.back().end = endTime > kLatestTime ? last : std::max(last, endTime);
    mStretches = std::move(stretches);
}

std::optional<double> EngineRunning::duration() const
{
    if (!mIsKnown)
        return {};
    double sum = 0.0;
    for (const TimeSpan& stretch : mStretches)
        sum += stretch.end - stretch.start;
    return sum;
}

void EngineRunning::crop(const TimeSpan& span)
{
    if (!mIsKnown)
        return;
    for (auto* pSpans : {&mStretches, &mSilences}) {
        for (TimeSpan& own : *pSpans)
            own = {std::max(own.start, span.start), std::min(own.end, span.end)};
        std::erase_if(*pSpans, [](const TimeSpan& own) { return own.end <= own.start; });
    }
}

std::vector<TimeSpan> EngineRunning::watched() const
{
    std::vector<TimeSpan> spans = mStretches;
    for (TimeSpan& span : spans) {
        if (mIsKnown)
            span = {span.start + kStart, span.end - kStop};
    }
    return spans;
}

} // namespace ZARN
