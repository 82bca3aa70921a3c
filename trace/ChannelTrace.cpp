#include "trace/ChannelTrace.h"

#include "card/record/TimeKernels.h"

#include <algorithm>

namespace ZARN {

ChannelTrace::ChannelTrace(std::string group, const ProfileParameter& parameter, const DecodingContext& context,
                           std::shared_ptr<const RecordChannel> pChannel, ENumber kind, CoordinateFilter* pFilter, double latestTime)
    : Trace(std::move(group), parameter, context), mpChannel(std::move(pChannel)), mpEntries(mpChannel ? &mpChannel->entries : nullptr), mKind(kind)
{
    if (mpEntries && pFilter && parameter.isPosition() && kind != ENumber::eInteger)
        decodePositions(*pFilter, latestTime);
}

void ChannelTrace::decodeEach(std::span<const StoredRecord> records, double* pOut) const
{
    const std::size_t step = parameter().isPosition() ? 1 : records.size();
    for (std::size_t first = 0; first < records.size(); first += step) {
        CoordinateFilter filter;
        decode(records.subspan(first, step), pOut + first, filter);
    }
}

void ChannelTrace::decodePositions(CoordinateFilter& filter, double latestTime)
{
    if (mKind == ENumber::eText)
        mTextPositions.reserve(mpEntries->size());
    else
        mPositions.reserve(mpEntries->size());
    const auto isLate = [latestTime](const StoredRecord& record) { return record.time() > latestTime; };
    double numbers[kRun];
    for (std::size_t chunk = 0; chunk < mpEntries->chunkCount(); ++chunk) {
        for (std::span<const StoredRecord> rest = mpEntries->chunk(chunk); !rest.empty();) {
            const bool late = isLate(rest.front());
            const auto run = rest.first(std::min(rest.size(), kRun));
            const auto end = std::ranges::find_if(run, [&](const StoredRecord& record) { return isLate(record) != late; });
            const auto count = static_cast<std::size_t>(end - run.begin());
            std::fill_n(numbers, count, std::numeric_limits<double>::quiet_NaN());
            if (!late)
                decode(run.first(count), numbers, filter);
            std::for_each_n(numbers, count, [this](double number) { hold(number); });
            rest = rest.subspan(count);
        }
    }
}

void ChannelTrace::hold(double number)
{
    if (mKind == ENumber::eText)
        mTextPositions.push_back(static_cast<float>(number));
    else
        mPositions.push_back(number);
}

void ChannelTrace::decode(std::span<const StoredRecord> records, double* pOut, CoordinateFilter& filter) const
{
    if (mKind == ENumber::eInteger) {
        for (const StoredRecord& record : records)
            *pOut++ = ValueDecoder::integer(record.payload, parameter());
    } else if (mKind == ENumber::eText) {
        decoder().textValues(records, pOut, filter);
    } else if (!decoder().isNumeric()) {
        std::fill_n(pOut, records.size(), 0.0);
    } else {
        decoder().values(records, pOut, filter);
        if (mKind == ENumber::eDisplay)
            std::for_each_n(pOut, records.size(), [this](double& number) { number = decoder().toDisplayUnit(number); });
    }
}

std::vector<PositionRange> ChannelTrace::rangesIn(double from, double to) const
{
    return mpChannel ? mpChannel->rangesIn(from, to) : std::vector<PositionRange>();
}

double ChannelTrace::number(std::size_t position) const
{
    double number = 0;
    readNumbers(position, {&number, 1});
    return number;
}

std::size_t ChannelTrace::sideBySide(std::size_t position, std::size_t most) const
{
    return mpEntries->run(position, most).size();
}

std::size_t ChannelTrace::readTimes(std::size_t position, std::span<double> times) const
{
    const std::span<const StoredRecord> records = mpEntries->run(position, times.size());
    recordTimes(records, times.data());
    return records.size();
}

void ChannelTrace::readNumbers(std::size_t position, std::span<double> numbers) const
{
    if (!mTextPositions.empty())
        std::copy_n(mTextPositions.begin() + static_cast<std::ptrdiff_t>(position), numbers.size(), numbers.begin());
    else if (!mPositions.empty())
        std::copy_n(mPositions.begin() + static_cast<std::ptrdiff_t>(position), numbers.size(), numbers.begin());
    else
        decodeEach(mpEntries->run(position, numbers.size()), numbers.data());
}

} // namespace ZARN
