#include "report/ReportFaults.h"

#include "analysis/FaultEpisodes.h"
#include "analysis/FaultScan.h"
#include "analysis/FaultWords.h"

#include <map>

namespace ZARN {

namespace {

class FaultList {
public:
    FaultList(const LoadedCard& loaded, const FaultMatrix& matrix) : mLoaded(loaded), mMatrix(matrix) {}

    void add(const FaultStretches& stretches)
    {
        for (const FaultStretch& stretch : stretches.all) {
            const FaultBit& fault = mMatrix.bits.at(stretch.bit);
            const bool counts = stretch.isWatched && FaultEpisodes::isJudged(fault);
            const auto [first, last] = std::minmax(stretch.on, stretch.off);
            if (mLoaded.flightNumber > 0 && (last < mLoaded.flight.startTime || first > mLoaded.flight.endTime))
                continue;
            ReportFault none{&mMatrix, stretch.bit, &fault, counts, first, last, 0};
            ReportFault& found = mFound.try_emplace({stretch.bit, !counts}, none).first->second;
            found.first = std::min(found.first, first);
            found.last = std::max(found.last, last);
            ++found.times;
        }
    }

    void appendTo(std::vector<ReportFault>& faults) const
    {
        for (const auto& [key, fault] : mFound)
            faults.push_back(fault);
    }

private:
    const LoadedCard& mLoaded;
    const FaultMatrix& mMatrix;
    std::map<std::pair<int, bool>, ReportFault> mFound;
};

} // namespace

std::vector<ReportFault> presentFaults(const LoadedCard& loaded, const EngineRunning& engine)
{
    const auto isInfo = [](const FaultBit& fault) { return fault.errorType == eErrorInfo; };
    const std::vector<TimeSpan> checks = laneChecks(*loaded.pRecord, loaded.context);
    const WatchedTimes watched(engine, checks), always{EngineRunning()};
    std::vector<ReportFault> faults;
    for (const FaultMatrix& matrix : loaded.context.model().errorMatrices) {
        const auto pWords = faultWords(*loaded.pRecord, loaded.context, matrix);
        FaultList list(loaded, matrix);
        list.add(faultStretches(*pWords, matrix.mask(FaultEpisodes::isJudged), watched));
        list.add(faultStretches(*pWords, matrix.mask(isInfo), always));
        list.appendTo(faults);
    }
    return faults;
}

} // namespace ZARN
