#pragma once

#include "card/record/RecordData.h"
#include "profile/Selection.h"
#include "trace/Trace.h"

#include <functional>
#include <memory>

namespace ZARN {

/// How positions are decoded.
enum class EFixes {
    eInPass, ///< each judged by those before it
    eAlone   ///< each by itself: for few of many samples
};

/// The traces of a record under a profile, in the profile's order: devices as groups, parameters in them. Making it is one pass over
/// the positions, in that order. Refers to the record.
class TraceSet {
public:
    using Wanted = std::function<bool(const ProfileDevice&, const ProfileParameter&)>;

    TraceSet() = default;
    explicit TraceSet(std::vector<std::unique_ptr<const Trace>> traces) : mTraces(std::move(traces)) {}
    /// @param pData null: no trace has samples
    /// @param wanted which parameters are there, with samples or without
    TraceSet(const RecordData* pData, const DecodingContext& context, ENumber kind, const Wanted& wanted, EFixes fixes = EFixes::eInPass);

    /// All parameters, or those whose name is selected; the selection must outlive what is returned.
    [[nodiscard]] static Wanted all();
    [[nodiscard]] static Wanted selected(const Selection& selection);

    [[nodiscard]] std::size_t size() const { return mTraces.size(); }
    [[nodiscard]] const Trace& operator[](std::size_t place) const { return *mTraces[place]; }
    [[nodiscard]] const std::vector<std::unique_ptr<const Trace>>& traces() const { return mTraces; }
    /// Memory that the traces themselves take.
    [[nodiscard]] std::size_t bytes() const;

    /// The trace of a single parameter, each fix of a position by itself.
    [[nodiscard]] static std::unique_ptr<const Trace> one(const RecordData& data, const DecodingContext& context, const ProfileParameter& parameter,
                                                          ENumber kind);
    /// The same as one of several of a pass, positions advancing the filter.
    [[nodiscard]] static std::unique_ptr<const Trace> one(const RecordData& data, const DecodingContext& context, const ProfileParameter& parameter,
                                                          ENumber kind, CoordinateFilter& filter,
                                                          double latestTime = std::numeric_limits<double>::infinity());

private:
    std::vector<std::unique_ptr<const Trace>> mTraces;
};

} // namespace ZARN
