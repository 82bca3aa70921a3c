#include "app/Progress.h"
#include "card/record/CanFrame.h"
#include "card/record/CandumpFile.h"
#include "card/record/RecordData.h"
#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"

#include <algorithm>
#include <vector>

// Reads the input as a log of a CAN bus; or makes a log of frames that the input chooses, of which it is known what must be read.

namespace {

using namespace ZARN;

constexpr std::size_t kMemoryLimit = 64 << 20;
constexpr uint64_t kYear = 365 * 86'400 * uint64_t(1'000'000'000);

struct Frame {
    uint64_t nanoseconds = 0;
    CanFrame frame;
};

struct Reading {
    RecordInfo info;
    RecordData data{kMemoryLimit};
};

void read(const std::string& text, Reading& reading)
{
    const MemoryFile memory(reinterpret_cast<const uint8_t*>(text.data()), text.size());
    CandumpFile file(silence(), nullProgress());
    file.readRecordInfo(memory.path());
    reading.info = file.recordInfo();
    REQUIRE(file.readRecordData(reading.data));
    REQUIRE(reading.info.samples == reading.data.count());
    REQUIRE(reading.data.count() == 0 || file.recordInfo().startTime <= file.recordInfo().endTime);
}

/// A line of a frame that the input chooses, or of something that is no frame of data. @return whether a frame was added.
std::string makeLine(Input& input, std::vector<Frame>& frames)
{
    const uint8_t form = input.byte();
    Frame frame;
    const uint64_t seconds = form & 1 ? 1'700'000'000 + input.number<uint16_t>() : input.number<uint16_t>();
    const uint32_t fraction = input.number<uint32_t>() % 1'000'000'000;
    frame.nanoseconds = seconds * 1'000'000'000 + fraction;
    frame.frame.isExtended = (form & 2) != 0;
    frame.frame.identifier = input.number<uint32_t>() % (form & 2 ? 0x20000000 : 0x800);
    frame.frame.length = input.byte() % 9;
    char line[128];
    int used = std::snprintf(line, sizeof line, form & 2 ? "(%llu.%09u) can%d %08X#" : "(%llu.%09u) can%d %03X#",
                             static_cast<unsigned long long>(seconds), fraction, form & 4 ? 1 : 0, frame.frame.identifier);
    if ((form & 0x30) == 0x30)
        return std::string(line) + (form & 8 ? "R" : "#0" + std::string(24, 'A'));
    for (std::size_t i = 0; i < frame.frame.length; ++i) {
        frame.frame.payload[i] = input.byte();
        used += std::snprintf(line + used, sizeof line - static_cast<std::size_t>(used), form & 8 ? "%02x" : "%02X", frame.frame.payload[i]);
    }
    frames.push_back(frame);
    return std::string(line) + (form & 0x40 ? " R" : "") + (form & 0x80 ? "\r" : "");
}

void requireFrames(Input input)
{
    std::vector<Frame> frames;
    std::string text;
    while (!input.empty() && frames.size() < 60)
        text += makeLine(input, frames) + "\n";
    Reading reading;
    read(text, reading);
    REQUIRE(reading.data.count() == frames.size());
    if (frames.empty())
        return;
    const auto lowest = std::min_element(frames.begin(), frames.end(), [](auto& a, auto& b) { return a.nanoseconds < b.nanoseconds; });
    const uint64_t start = lowest->nanoseconds >= kYear ? lowest->nanoseconds : 0;
    REQUIRE(reading.info.dateTime.isValid() == (start > 0));
    const bool hasStandard = std::any_of(frames.begin(), frames.end(), [](const Frame& frame) { return !frame.frame.isExtended; });
    std::size_t next = 0;
    reading.data.forEachInOrder([&](uint32_t identifier, const StoredRecord& record) {
        const Frame& frame = frames[next++];
        const CanFrame sent = CanFrame::of(identifier, record).value();
        REQUIRE(sent.identifier == frame.frame.identifier && sent.payload == frame.frame.payload);
        REQUIRE(sent.isExtended == (sent.identifier > 0x7FF || (frame.frame.isExtended && hasStandard)));
        REQUIRE(identifier & kShortFlag ? sent.length == frame.frame.length : frame.frame.length >= 4);
        REQUIRE(record.ticks == ((frame.nanoseconds - start) * 8 + 125) / 250); // of 31.25 ns
    });
    REQUIRE(next == frames.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    Input input(pData, size);
    if (input.byte() % 2 == 0) {
        Reading reading;
        read(std::string(reinterpret_cast<const char*>(input.rest()), input.left()), reading);
    } else {
        requireFrames(input);
    }
    return 0;
}
