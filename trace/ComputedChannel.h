#pragma once

#include "card/record/RecordData.h"
#include "profile/DecodingContext.h"
#include "trace/Formula.h"

namespace ZARN {

/// The channel that holds the samples of a parameter: the recorded one, or for a computed parameter one that is made when it is asked for
/// first. Null without samples, as for a formula that names what the profile does not have. Refers to the record.
[[nodiscard]] std::shared_ptr<const RecordChannel> channelOf(const RecordData& data, const DecodingContext& context,
                                                             const ProfileParameter& parameter);
/// The recorded channel of an identifier, whether the profile declares it or not.
[[nodiscard]] std::shared_ptr<const RecordChannel> recordedChannel(const RecordData& data, uint32_t identifier);

/// Evaluates a formula, as often as any of its operands has a sample, in order of time: each of the others as it was last. Begins when every
/// one of them has had a sample. Operands are metric. `visit` gets the ticks of the time and the value.
void evaluate(Formula& formula, const RecordData& data, const DecodingContext& context, const std::function<void(uint64_t ticks, double value)>& visit);

} // namespace ZARN
