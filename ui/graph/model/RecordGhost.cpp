#include "ui/graph/model/RecordGhost.h"

#include "card/CardContainer.h"
#include "trace/Trace.h"
#include "ui/graph/model/TraceSlot.h"

#include <algorithm>
#include <utility>

namespace ZARN {

void RecordGhost::fill(bool isWanted)
{
    mIsWanted = isWanted;
    const auto setValues = [this](int slot, const ValueRange<double>& values) {
        mModel.traces().edit(slot, [&values](GraphParameter& trace) { trace.ghostValues = values; });
    };
    const auto slots = static_cast<int>(mModel.traces().all().size());
    for (int slot = 0; slot < slots; ++slot)
        setValues(slot, {});
    if (!mpCycle || !mIsWanted || isItself())
        return mModel.scenery().setGhost(nullptr);
    auto pGhost = std::make_shared<Ghost>();
    pGhost->name = mpCycle->name;
    pGhost->pCycle = mpCycle;
    pGhost->traces.setCount(slots);
    mForEach(mpCycle->loaded.pRecord.get(), [&](int slot, const Trace& trace) {
        describeSlot(pGhost->traces, slot, trace);
        fillSlot(pGhost->traces, slot, trace, mpCycle->part.start, mpCycle->part.end);
        setValues(slot, pGhost->traces.at(slot)->samples.extremes());
    });
    mModel.scenery().setGhost(std::move(pGhost));
}

void RecordGhost::set(std::shared_ptr<const GhostCycle> pCycle, int flight)
{
    mpCycle = std::move(pCycle);
    mFlight.reset();
    mModel.scenery().setGhostShift(0.0);
    fill(mIsWanted);
    if (mpCycle && !alignTakeOff(flight))
        alignEngineStart();
}

std::optional<double> RecordGhost::takeOff(std::size_t ghostFlight) const
{
    const RecordCycle* pCycle = mSession.container.loadedCycle();
    if (!pCycle || pCycle->flights.empty())
        return {};
    if (mSession.container.selectedFlightNumber() > 0)
        return mSession.container.selectedFlight().takeOffTime;
    // A flight of this very record is not laid on itself.
    const bool isItself = ghostFlight == 0 && pCycle->flights.size() > 1 && isOwnFlight();
    return pCycle->flights[isItself ? 1 : 0].takeOffTime;
}

/// A flight of the record that is now the one in front.
bool RecordGhost::isItself() const
{
    const int selected = mSession.container.selectedFlightNumber();
    return selected > 0 && mFlight == selected && isOwnFlight();
}

bool RecordGhost::isOwnFlight() const
{
    return mpCycle->part != GhostCycle::kAll && mpCycle->loaded.pRecord == mSession.container.loaded().pRecord;
}

bool RecordGhost::alignTakeOff(int flight)
{
    const auto place = static_cast<std::size_t>(std::max(flight, 1) - 1);
    const std::optional<double> own = mpCycle ? takeOff(place) : std::nullopt;
    if (!own || place >= mpCycle->takeOffs.size())
        return false;
    mModel.scenery().setGhostShift(*own - mpCycle->takeOffs[place]);
    mFlight = flight;
    mTakeOff = *own;
    return true;
}

bool RecordGhost::alignEngineStart()
{
    const std::optional<double> own = mpCycle && mpCycle->engineStart ? firstEngineStart(mSession.container.loaded()) : std::nullopt;
    mFlight.reset();
    if (own)
        mModel.scenery().setGhostShift(*own - *mpCycle->engineStart);
    return own.has_value();
}

void RecordGhost::follow()
{
    if (mpCycle && mFlight && takeOff(static_cast<std::size_t>(std::max(*mFlight, 1) - 1)) != mTakeOff)
        alignTakeOff(*mFlight);
}

} // namespace ZARN
