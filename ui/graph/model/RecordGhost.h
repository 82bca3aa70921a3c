#pragma once

#include "project/Session.h"
#include "ui/graph/model/GhostCycle.h"
#include "ui/graph/model/GraphModel.h"
#include "ui/graph/model/RecordNormalRange.h"

#include <functional>

namespace ZARN {

class Trace;

/// What the graph of a record is compared with: fills the ghost's traces for the slots of those that are shown, and lays it on the record.
/// Graph and session are not owned.
class RecordGhost {
public:
    /// Calls for each trace of a record that has a slot.
    using ForEach = std::function<void(const RecordData* pRecord, const std::function<void(int slot, const Trace& trace)>& visit)>;

    RecordGhost(const Session& session, GraphModel& model, const ForEach& forEach)
        : mSession(session), mModel(model), mForEach(forEach),
          mNormal(session.property, model, [forEach](const auto& visit) { forEach(nullptr, visit); })
    {
    }

    /// Another cycle behind the traces; null for none. Laid on this one by their take-offs, of the ghost's flight of that number (from 1,
    /// 0: the first), else by the starts of their engines.
    void set(std::shared_ptr<const GhostCycle> pCycle, int flight);
    [[nodiscard]] const std::shared_ptr<const GhostCycle>& cycle() const { return mpCycle; }
    // False where one of the two has no such moment.
    bool alignTakeOff(int flight);
    bool alignEngineStart();

    /// Where earlier flights lay.
    [[nodiscard]] RecordNormalRange& normal() { return mNormal; }

    /// The slots show other traces. @param isWanted whether there is a record to compare with
    void fill(bool isWanted);
    /// Another flight of the record may be selected.
    void follow();

private:
    /// Of the selected flight, or the first that the ghost's flight, counted from 0, can be laid behind.
    [[nodiscard]] std::optional<double> takeOff(std::size_t ghostFlight) const;

    [[nodiscard]] bool isItself() const;
    [[nodiscard]] bool isOwnFlight() const;

    const Session mSession;
    GraphModel& mModel;
    ForEach mForEach;
    RecordNormalRange mNormal;
    std::shared_ptr<const GhostCycle> mpCycle;
    std::optional<int> mFlight; ///< the flight of the ghost whose take-off was laid on ours
    double mTakeOff = 0.0;      ///< ours then
    bool mIsWanted = false;
};

} // namespace ZARN
