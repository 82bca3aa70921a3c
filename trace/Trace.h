#pragma once

#include "card/record/RecordChannel.h"
#include "profile/DecodingContext.h"

#include <algorithm>
#include <limits>
#include <span>
#include <string>
#include <vector>

namespace ZARN {

/// Which number a trace gives of its samples.
enum class ENumber {
    eDisplay, ///< the value in the display unit; 0 for data types that hold no number
    eMetric,  ///< the same in the metric unit
    eText,    ///< what the display text is written from
    eInteger  ///< the raw integer by the type code of the message itself, which states are judged by
};

/// Samples of a trace that stand side by side, in stored order; valid while they are visited.
struct TraceRun {
    std::size_t position = 0;        ///< of the first one
    std::span<const double> times;   ///< seconds since power-up
    std::span<const double> numbers; ///< as many
};

/// The same without their times.
struct TraceNumbers {
    std::size_t position = 0;
    std::span<const double> numbers;
};

/// The samples of one parameter as numbers over time, wherever they come from. Whoever wants values takes traces and never decodes
/// by himself. Holds the profile, and refers to what holds the samples, which must outlive it.
class Trace {
public:
    static constexpr std::size_t kRun = 512; ///< samples of a run at most; they stay in the processor's nearest cache

    Trace(std::string group, const ProfileParameter& parameter, const DecodingContext& context)
        : mContext(context), mGroup(std::move(group)), mParameter(parameter), mDecoder(context.decoder(parameter))
    {
    }
    virtual ~Trace() = default;
    Trace(const Trace&) = delete;
    Trace& operator=(const Trace&) = delete;

    /// The name of the device that it belongs to.
    [[nodiscard]] const std::string& group() const { return mGroup; }
    [[nodiscard]] const ProfileParameter& parameter() const { return mParameter; }
    [[nodiscard]] const std::string& name() const { return mParameter.name; }
    [[nodiscard]] const std::string& unit() const { return mContext.unitOf(mParameter); }
    /// How numbers of the kind eText become texts, and which thresholds they have.
    [[nodiscard]] const ValueDecoder& decoder() const { return mDecoder; }

    [[nodiscard]] virtual std::size_t size() const = 0;
    [[nodiscard]] bool empty() const { return size() == 0; }
    /// True while no sample is earlier than the one before it.
    [[nodiscard]] virtual bool ascending() const = 0;
    [[nodiscard]] virtual double time(std::size_t position) const = 0;
    /// Equal for traces whose samples have the same times, as those of one channel do.
    [[nodiscard]] virtual const void* timesIdentity() const { return this; }
    [[nodiscard]] virtual double number(std::size_t position) const = 0;
    /// How many samples from `position` on lie side by side, up to `most`; at least one while position < size().
    [[nodiscard]] virtual std::size_t sideBySide(std::size_t position, std::size_t most) const = 0;
    /// The times of samples from `position` on, as many as lie side by side and the span takes. @return how many, as sideBySide() tells
    virtual std::size_t readTimes(std::size_t position, std::span<double> times) const = 0;
    /// The numbers of samples from `position` on: of as many as readTimes() told, or fewer.
    virtual void readNumbers(std::size_t position, std::span<double> numbers) const = 0;
    /// Memory that the trace itself takes beside its samples.
    [[nodiscard]] virtual std::size_t bytes() const { return 0; }

    /// Where samples may lie whose time is in [from, to], in stored order.
    [[nodiscard]] virtual std::vector<PositionRange> rangesIn(double /*from*/, double /*to*/) const { return {{0, size()}}; }

    /// Calls `visit` with a TraceRun for all samples, in stored order. When `visit` returns a bool, false ends the walk.
    /// @return false when it was ended
    template <typename Visitor> bool forEachRun(Visitor visit) const { return forEachRun({0, size()}, visit); }
    template <typename Visitor> bool forEachRun(const PositionRange& range, Visitor visit) const;
    /// Calls `visit` with TraceNumbers for all samples, in stored order.
    template <typename Visitor> void forEachNumbers(Visitor visit) const;
    /// Calls `visit` with time and number of every sample, in stored order.
    template <typename Visitor> void forEachSample(Visitor visit) const
    {
        forEachRun([&visit](const TraceRun& run) {
            for (std::size_t i = 0; i < run.times.size(); ++i)
                visit(run.times[i], run.numbers[i]);
        });
    }
    /// The same for those whose time lies in [from, to].
    template <typename Visitor> void forEachSampleIn(double from, double to, Visitor visit) const;

private:
    const DecodingContext mContext;
    const std::string mGroup;
    const ProfileParameter mParameter;
    const ValueDecoder mDecoder;
};

template <typename Visitor> bool Trace::forEachRun(const PositionRange& range, Visitor visit) const
{
    double times[kRun];
    double numbers[kRun];
    for (std::size_t position = range.first; position < range.last;) {
        const std::size_t count = readTimes(position, std::span(times).first(std::min(kRun, range.last - position)));
        readNumbers(position, {numbers, count});
        const TraceRun run{position, {times, count}, {numbers, count}};
        if constexpr (std::is_void_v<decltype(visit(run))>) {
            visit(run);
        } else if (!visit(run)) {
            return false;
        }
        position += count;
    }
    return true;
}

template <typename Visitor> void Trace::forEachNumbers(Visitor visit) const
{
    double numbers[kRun];
    for (std::size_t position = 0, count = 0; position < size(); position += count) {
        count = sideBySide(position, kRun);
        readNumbers(position, {numbers, count});
        visit(TraceNumbers{position, {numbers, count}});
    }
}

template <typename Visitor> void Trace::forEachSampleIn(double from, double to, Visitor visit) const
{
    for (const PositionRange& range : rangesIn(from, to)) {
        forEachRun(range, [&](const TraceRun& run) {
            for (std::size_t i = 0; i < run.times.size(); ++i) {
                if (run.times[i] >= from && run.times[i] <= to)
                    visit(run.times[i], run.numbers[i]);
            }
        });
    }
}

} // namespace ZARN
