#include "trace/HeldValues.h"

namespace ZARN {

HeldOperand::HeldOperand(const RecordData& data, const DecodingContext& context, const ProfileParameter& parameter,
                         CoordinateFilter& filter)
    : mpChannel(channelOf(data, context, parameter)), mTrace({}, parameter, context, mpChannel, ENumber::eDisplay, &filter)
{
    read();
}

void HeldOperand::read()
{
    mPosition += mRun.size();
    mNext = 0;
    mRun = {};
    mTicks = kEnd;
    if (!mpChannel || mPosition >= mpChannel->entries.size())
        return;
    mRun = mpChannel->entries.run(mPosition, Trace::kRun);
    mTicks = mRun.front().ticks;
    mTrace.readNumbers(mPosition, std::span(mNumbers).first(mRun.size()));
}

} // namespace ZARN
