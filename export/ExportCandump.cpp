#include "export/ExportCandump.h"

#include "card/CardContainer.h"
#include "card/PowerUp.h"
#include "card/record/CanFrame.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>

namespace ZARN {

namespace {

constexpr uint64_t kTicksPerMicrosecond = 32;
constexpr uint64_t kMicroseconds = 1'000'000; // of a second

/// The clock at time 0 in microseconds since 1970; 0 without a clock.
uint64_t clockOf(const CardContainer& container)
{
    const RecordCycle* pCycle = container.loadedCycle();
    if (pCycle && !pCycle->files.empty() && pCycle->files.front().get().clockStart != 0)
        return pCycle->files.front().get().clockStart / 1000;
    const QDateTime powerUp = PowerUp::ofLoaded(container);
    return powerUp.isValid() ? static_cast<uint64_t>(std::max<qint64>(powerUp.toMSecsSinceEpoch(), 0)) * 1000 : 0;
}

std::string lineOf(const CanFrame& frame, uint64_t ticks, uint64_t clock)
{
    const uint64_t stamp = clock + ticks / kTicksPerMicrosecond + (ticks % kTicksPerMicrosecond * 2 >= kTicksPerMicrosecond ? 1 : 0);
    const Payload& data = frame.payload;
    char text[96];
    const int length = std::snprintf(text, sizeof text, "(%" PRIu64 ".%06" PRIu64 ") zarn0 %0*" PRIX32 "#%02X%02X%02X%02X%02X%02X%02X%02X",
                                     stamp / kMicroseconds, stamp % kMicroseconds, frame.isExtended ? 8 : 3, frame.identifier, data[0], data[1],
                                     data[2], data[3], data[4], data[5], data[6], data[7]);
    return std::string(text, static_cast<std::size_t>(length) - 2 * (data.size() - frame.length)) + '\n';
}

} // namespace

bool ExportCandump::exportData(const CardContainer& container, std::optional<TimeSpan> span, SafeFile& file)
{
    mError.clear();
    mLeftOut = 0;
    const uint64_t clock = clockOf(container);
    bool isGood = file.open();
    container.recordData().forEachInOrder([&](uint32_t identifier, const StoredRecord& record) {
        if (!isGood || (span && !span->holds(record.time())))
            return;
        if (const auto frame = CanFrame::of(identifier, record))
            isGood = file.write(lineOf(*frame, record.ticks, clock));
        else
            ++mLeftOut;
    });
    isGood = isGood && file.commit();
    if (!isGood)
        mError = file.error();
    return isGood;
}

} // namespace ZARN
