#include "report/ReportGraph.h"

#include "analysis/EventList.h"
#include "analysis/Incident.h"
#include "report/ReportText.h"

namespace ZARN {

namespace {

constexpr const char* kMain[] = {"EngineSpeedA", "ManifoldPressureA", "ThrottleA", "FuelA", "Altitude", "GroundSpeed"};
constexpr int kMostStrips = 10;

} // namespace

ReportGraph::ReportGraph(const ReportSubject& subject, const std::vector<Incident>& incidents, const EventList& limits)
    : mLoaded(subject.loaded), mGraph(subject, kMostStrips)
{
    mGraph.compare();
    for (const char* key : kMain)
        add(mLoaded.context.model().ofZarnType(key).name);
    for (const int state : {eThresholdLimit, eThresholdWarning}) { // what was worst first: there is room for some only
        for (const Incident& incident : incidents) {
            for (const Episode& episode : incident.episodes) {
                if (episode.state == state && episode.kind == EEpisodeKind::eLimit)
                    add(episode.parameter);
            }
        }
    }
    for (const int state : {eThresholdLimit, eThresholdWarning}) {
        for (const Event& event : limits.events()) {
            if (event.state == state && event.time >= mLoaded.startTime && event.time <= mLoaded.endTime)
                add(limits.source(event).parameter);
        }
    }
    mGraph.setWindow({mLoaded.startTime, mLoaded.endTime});
}

void ReportGraph::add(const std::string& name)
{
    const ProfileParameter* pParameter = name.empty() || !mTaken.insert(name).second ? nullptr : mLoaded.context.model().find(name);
    if (!pParameter || !mGraph.canShow(*pParameter))
        return;
    if (mGraph.isFull())
        ++mLeftOut;
    else if (mGraph.add(*pParameter, {mLoaded.startTime, mLoaded.endTime}))
        mNames << reportText(name);
}

} // namespace ZARN
