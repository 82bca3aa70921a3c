#include "card/record/CanFrame.h"
#include "fuzz/Input.h"
#include "fuzz/Require.h"
#include "live/FrameReader.h"

#include <QCanBusFrame>

// Frames of every kind with stamps and times that the input chooses, as an interface may deliver them.

using namespace ZARN;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    Input input(pData, size);
    FrameReader reader;
    LiveRecords records;
    uint64_t frames = 0;
    int64_t host = 0;
    while (!input.empty()) {
        const uint8_t form = input.byte();
        const std::string payload = input.text(form & 0x80 ? 64 : 8);
        QCanBusFrame frame(input.number<uint32_t>() & 0x3FFFFFFF, QByteArray::fromStdString(payload));
        frame.setFrameType(static_cast<QCanBusFrame::FrameType>(form % 6));
        frame.setExtendedFrameFormat(form & 0x08);
        frame.setFlexibleDataRateFormat(form & 0x10);
        frame.setTimeStamp({input.number<int64_t>() >> (form & 0x20 ? 0 : 40), input.number<int64_t>() >> (form & 0x40 ? 0 : 40)});
        if (frame.frameType() == QCanBusFrame::ErrorFrame)
            frame.setError(QCanBusFrame::FrameErrors(QFlag(input.number<int32_t>() & QCanBusFrame::AnyError)));
        host += input.number<uint32_t>(); // never jumps back
        const std::size_t before = records.size();
        reader.read(frame, host, records);
        ++frames;
        REQUIRE(records.size() <= before + 1);
        if (records.size() == before)
            continue;
        const LiveRecord& record = records.back();
        Payload expected{};
        std::copy(payload.begin(), payload.end(), expected.begin());
        const CanFrame kept = CanFrame::of(record.identifier, record.record).value();
        REQUIRE(frame.frameType() == QCanBusFrame::DataFrame && kept.identifier == frame.frameId() && kept.payload == expected);
        REQUIRE(kept.isExtended == frame.hasExtendedFrameFormat());
        REQUIRE(record.identifier & kShortFlag ? kept.length == payload.size() : payload.size() >= 4);
        REQUIRE(before == 0 || record.record.ticks > records[before - 1].record.ticks);
    }
    const LiveCounts& counts = reader.counts();
    REQUIRE(counts.frames == records.size());
    REQUIRE(counts.frames + counts.remote + counts.errors + counts.losses + counts.fd == frames);
    return 0;
}
