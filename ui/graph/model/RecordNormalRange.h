#pragma once

#include "card/NormalBand.h"
#include "ui/graph/model/GraphModel.h"

#include <functional>
#include <vector>

namespace ZARN {

class Property;
class Trace;

/// Where the parameters of a record lay in earlier flights of its engine: fills the slots of a graph with it while the user wants to see it.
/// Graph and settings are not owned.
class RecordNormalRange {
public:
    /// Calls for each trace that has a slot.
    using ForEach = std::function<void(const std::function<void(int slot, const Trace& trace)>& visit)>;

    RecordNormalRange(Property& property, GraphModel& model, ForEach forEach) : mProperty(property), mModel(model), mForEach(std::move(forEach))
    {
    }

    void set(std::vector<NormalBand> bands);
    /// Whether there is something to show.
    [[nodiscard]] bool isKnown() const { return !mBands.empty(); }
    [[nodiscard]] bool isOn() const { return mModel.settings().normalOn; }
    void setOn(bool on);
    /// What happened in the record, its phases among it; null while it is not known.
    void setCourse(const std::shared_ptr<const CycleCourse>& pCourse);
    /// The slots show other traces, or others are wanted.
    void fill();

private:
    Property& mProperty;
    GraphModel& mModel;
    ForEach mForEach;
    std::vector<NormalBand> mBands;
};

} // namespace ZARN
