#pragma once

#include "card/record/RecordData.h"
#include "profile/Profile.h"
#include "trace/Trace.h"

#include <functional>
#include <memory>

namespace ZARN {

/// The traces of a record under a profile, in the profile's order: devices as groups, parameters in them. Making it is one pass over
/// the positions, in that order. Refers to record and profile.
class TraceSet {
public:
    using Wanted = std::function<bool(const ProfileDevice&, const ProfileParameter&)>;

    TraceSet() = default;
    explicit TraceSet(std::vector<std::unique_ptr<const Trace>> traces) : mTraces(std::move(traces)) {}
    /// @param pData null: no trace has samples
    /// @param filter position filter of the pass, reset first
    /// @param wanted which parameters are there, with samples or without
    TraceSet(const RecordData* pData, const Profile& profile, ENumber kind, CoordinateFilter& filter, const Wanted& wanted);

    /// All parameters, or those whose name is selected.
    [[nodiscard]] static Wanted all();
    [[nodiscard]] static Wanted selected(const Profile& profile);

    [[nodiscard]] std::size_t size() const { return mTraces.size(); }
    [[nodiscard]] const Trace& operator[](std::size_t place) const { return *mTraces[place]; }
    [[nodiscard]] const std::vector<std::unique_ptr<const Trace>>& traces() const { return mTraces; }
    /// Memory that the traces themselves take.
    [[nodiscard]] std::size_t bytes() const;

    /// The trace of a single parameter, its positions advancing the filter where they are any.
    [[nodiscard]] static std::unique_ptr<const Trace> one(const RecordData& data, const Profile& profile, const ProfileParameter& parameter,
                                                          ENumber kind, CoordinateFilter& filter,
                                                          double latestTime = std::numeric_limits<double>::infinity());

private:
    std::vector<std::unique_ptr<const Trace>> mTraces;
};

} // namespace ZARN
