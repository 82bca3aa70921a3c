#include "analysis/FaultWords.h"

namespace ZARN {

namespace {

constexpr const char* kLaneCheckKey = "LaneCheck";
constexpr double kMargin = 1.0; // seconds

void addChecks(const Trace& words, uint32_t mask, std::vector<TimeSpan>& spans)
{
    double last = 0.0;
    bool isSet = false;
    words.forEachSample([&](double time, double word) {
        if (time > kLatestTime)
            return;
        last = time;
        if (((static_cast<uint32_t>(word) & mask) != 0) == isSet)
            return;
        isSet = !isSet;
        if (isSet)
            spans.push_back({time - kMargin, time});
        else
            spans.back().end = time + kMargin;
    });
    if (isSet)
        spans.back().end = last + kMargin;
}

} // namespace

std::unique_ptr<const Trace> faultWords(const RecordData& data, const DecodingContext& context, const FaultMatrix& matrix)
{
    ProfileParameter word;
    word.name = matrix.name;
    word.id = matrix.id;
    word.dataType = eBLong;
    word.startByte = FaultMatrix::kFirstByte;
    word.endBit = FaultMatrix::kBits - 1;
    return TraceSet::one(data, context, word, ENumber::eMetric);
}

std::vector<TimeSpan> laneChecks(const RecordData& data, const DecodingContext& context)
{
    std::vector<TimeSpan> spans;
    for (const FaultMatrix& matrix : context.model().errorMatrices) {
        for (const auto& [bit, fault] : matrix.bits) {
            if (fault.zarnDataType == kLaneCheckKey)
                addChecks(*faultWords(data, context, matrix), 1U << bit, spans);
        }
    }
    return spans;
}

} // namespace ZARN
