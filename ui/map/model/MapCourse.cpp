#include "ui/map/model/MapCourse.h"

#include "trace/TraceSet.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>

namespace ZARN {

namespace {

constexpr double kLeastGap = 5.0;       // seconds
constexpr double kUsualSteps = 5.0;     // times the usual distance of two fixes
constexpr double kSmallestValue = 1e-5; // exact zeros are a receiver without a fix

} // namespace

std::vector<TimeSpan> MapCourse::receptionGaps(const LoadedCard& loaded)
{
    const ProfileParameter& latitude = loaded.context.model().ofZarnType("Latitude");
    if (latitude.name.empty())
        return {};
    std::vector<double> times;
    TraceSet::one(*loaded.pRecord, loaded.context, latitude, ENumber::eDisplay)->forEachSample([&times](double time, double value) {
        if (std::fabs(value) > kSmallestValue)
            times.push_back(time);
    });
    std::ranges::sort(times);
    std::vector<double> steps;
    std::adjacent_difference(times.begin(), times.end(), std::back_inserter(steps));
    if (steps.size() < 2)
        return {};
    const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
    std::nth_element(steps.begin() + 1, middle, steps.end());
    const double least = std::max(kLeastGap, kUsualSteps * *middle);
    std::vector<TimeSpan> result;
    for (std::size_t i = 1; i < times.size(); ++i) {
        if (times[i] - times[i - 1] > least)
            result.push_back({times[i - 1], times[i]});
    }
    return result;
}

MapCourse MapCourse::of(const LoadedCard& loaded)
{
    MapCourse result{CycleCourse::of(loaded), receptionGaps(loaded), nullptr};
    if (loaded.flightNumber > 0) {
        FlightPath whole;
        whole.build(*loaded.pRecord, loaded.context);
        result.pWhole = whole.shared();
    }
    return result;
}

MapCourseFinder::MapCourseFinder(QObject* pParent) : QObject(pParent)
{
    connect(&mTask, &LatestTask::signalFinished, this, [this] {
        if (mTask.error().isEmpty() && mpFound)
            Q_EMIT signalFound(mpFound);
    });
}

void MapCourseFinder::start(LoadedCard loaded)
{
    mTask.start(
        [this, loaded = std::move(loaded)](Progress& /*progress*/) { mpFound = std::make_shared<const MapCourse>(MapCourse::of(loaded)); });
}

} // namespace ZARN
