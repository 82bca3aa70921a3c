#include "report/ReportFaults.h"

#include "analysis/FaultTimeline.h"

#include <array>

namespace ZARN {

namespace {

constexpr int kBits = 32;

void addFaults(const FaultMatrix& matrix, const RecordChannel& channel, double from, double to, std::vector<ReportFault>& faults)
{
    std::array<ReportFault, kBits> found{};
    uint32_t before = 0;
    for (const RecordEntry& entry : channel.entries) {
        if (entry.time < from || entry.time > to)
            continue;
        const uint32_t word = faultWord(entry.payload);
        for (const auto& [bit, fault] : matrix.bits) {
            if (bit < 0 || bit >= kBits || !(word >> bit & 1U))
                continue;
            ReportFault& entryOfBit = found[static_cast<std::size_t>(bit)];
            if (entryOfBit.times == 0)
                entryOfBit.first = entry.time;
            entryOfBit.times += !(before >> bit & 1U);
            entryOfBit.last = entry.time;
        }
        before = word;
    }
    for (const auto& [bit, fault] : matrix.bits) {
        if (bit < 0 || bit >= kBits || fault.errorType == eErrorNone || found[static_cast<std::size_t>(bit)].times == 0)
            continue;
        ReportFault entry = found[static_cast<std::size_t>(bit)];
        entry.pMatrix = &matrix;
        entry.bit = bit;
        entry.pBit = &fault;
        faults.push_back(entry);
    }
}

} // namespace

std::vector<ReportFault> presentFaults(const ProfileModel& model, const RecordData& data, double from, double to)
{
    std::vector<ReportFault> faults;
    for (const FaultMatrix& matrix : model.errorMatrices) {
        if (const RecordChannel* pChannel = data.channel(static_cast<uint32_t>(matrix.id)))
            addFaults(matrix, *pChannel, from, to, faults);
    }
    return faults;
}

} // namespace ZARN
