#include "export/KmlPath.h"

#include "app/Console.h"
#include "app/NumberText.h"
#include "trace/ChannelTrace.h"

#include <cmath>

namespace ZARN {

namespace {

constexpr double kMissingBelow = -999.0; // a coordinate below it counts as missing
constexpr double kNoFix = 0.0001;        // degrees of this magnitude or less
constexpr int kDebugDecimals = 6;
constexpr double KmlPoint::*kCoordinates[] = {&KmlPoint::latitude, &KmlPoint::longitude, &KmlPoint::altitude};

/// Lines for a verbose console, one a sample: gathered, since each piece that the console gets may be a system call.
class ConsoleLines {
public:
    explicit ConsoleLines(const Console& console) : mConsole(console) {}
    ~ConsoleLines() { flush(); }
    ConsoleLines(const ConsoleLines&) = delete;
    ConsoleLines& operator=(const ConsoleLines&) = delete;

    ConsoleLines& add(const char* label, double number)
    {
        char buffer[kNumberTextSize];
        mText.append(label).append(buffer, writeFixed(buffer, number, kDebugDecimals));
        return *this;
    }
    void endLine()
    {
        mText += '\n';
        if (mText.size() >= kFlushSize)
            flush();
    }

private:
    static constexpr std::size_t kFlushSize = 64 * 1024;

    void flush()
    {
        if (!mText.empty())
            mConsole.write(mText);
        mText.clear();
    }

    const Console& mConsole;
    std::string mText;
};

/// The values of a trace by slot.
/// @param isAngle whether the values are degrees of a position.
/// @param label names the values in the lines; null for no lines.
/// @return false when the user cancels.
bool collect(const Trace& trace, const KmlGrid& grid, bool isAngle, const char* label, ConsoleLines& lines, KmlSlots& slots,
             const ProgressSpan& progress)
{
    const bool isDone = trace.forEachRun([&](const TraceRun& run) {
        if (!progress.step(run.position, trace.size()))
            return false;
        for (std::size_t i = 0; i < run.times.size(); ++i) {
            if (label)
                lines.add("time ", run.times[i]).add(label, run.numbers[i]).endLine();
            const bool isMissing = isAngle && std::fabs(run.numbers[i]) <= kNoFix;
            slots.put(grid.slot(run.times[i]), isMissing ? KmlPoint::kMissing : run.numbers[i]);
        }
        return true;
    });
    slots.sort();
    return isDone;
}

} // namespace

bool KmlPath::build(const RecordData& data, const DecodingContext& context, const KmlGrid& grid, const Console& console,
                    const ProgressSpan& progress)
{
    mPoints.clear();
    CoordinateFilter filter;
    constexpr uint32_t identifiers[] = {kLatitudeIdentifier, kLongitudeIdentifier, kAltitudeIdentifier};
    constexpr const char* labels[] = {" lat ", " long ", nullptr};
    for (std::size_t i = 0; i < std::size(identifiers); ++i) {
        // The channel counts whether the profile declares it or not.
        const ProfileParameter& parameter = context.model().parameter(identifiers[i]);
        const ChannelTrace trace({}, parameter, context, data.channel(identifiers[i]), ENumber::eMetric, &filter);
        ConsoleLines lines(console);
        KmlSlots slots;
        const char* label = console.isVerbose() ? labels[i] : nullptr;
        if (!collect(trace, grid, labels[i] != nullptr, label, lines, slots, progress.part(i, std::size(identifiers))))
            return false;
        merge(slots, kCoordinates[i]);
    }
    fillForward();
    fillBackward(console);
    return true;
}

void KmlPath::merge(const KmlSlots& slots, double KmlPoint::*coordinate)
{
    std::vector<KmlPoint> merged;
    merged.reserve(std::max(mPoints.size(), slots.values().size()));
    auto old = mPoints.cbegin();
    for (const auto& [slot, value] : slots.values()) {
        while (old != mPoints.cend() && old->slot < slot)
            merged.push_back(*old++);
        merged.push_back(old != mPoints.cend() && old->slot == slot ? *old++ : KmlPoint{slot});
        merged.back().*coordinate = value;
    }
    merged.insert(merged.end(), old, mPoints.cend());
    mPoints.swap(merged);
}

void KmlPath::fillForward()
{
    for (std::size_t i = 1; i < mPoints.size(); ++i) {
        for (const auto coordinate : kCoordinates) {
            if (mPoints[i].*coordinate < kMissingBelow)
                mPoints[i].*coordinate = mPoints[i - 1].*coordinate;
        }
    }
}

void KmlPath::fillBackward(const Console& console)
{
    ConsoleLines lines(console);
    for (std::size_t i = mPoints.size(); i-- > 1;) {
        for (const auto coordinate : kCoordinates) {
            const double known = mPoints[i].*coordinate;
            if (!(mPoints[i - 1].*coordinate < kMissingBelow) || known < kMissingBelow)
                continue;
            mPoints[i - 1].*coordinate = known;
            if (coordinate == &KmlPoint::longitude && console.isVerbose())
                lines.add("new lons ", known).endLine();
        }
    }
}

bool KmlPath::hasPosition() const
{
    // A coordinate that is known anywhere has been filled in everywhere.
    return !mPoints.empty() && mPoints.front().latitude >= kMissingBelow && mPoints.front().longitude >= kMissingBelow;
}

const KmlPoint* KmlPath::at(int slot) const
{
    const auto above =
        std::upper_bound(mPoints.begin(), mPoints.end(), slot, [](int wanted, const KmlPoint& point) { return wanted < point.slot; });
    if (above != mPoints.begin())
        return &*(above - 1);
    return mPoints.empty() ? nullptr : &mPoints.front();
}

} // namespace ZARN
