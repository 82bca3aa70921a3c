#include "ui/main/NormalRangeController.h"

#include "app/FileName.h"
#include "card/CardContainer.h"
#include "card/PowerUp.h"
#include "project/RecordSession.h"
#include "store/CycleIdentity.h"
#include "store/NormalBands.h"
#include "ui/logbook/model/LogbookWorker.h"

#include <QFileInfo>

namespace ZARN {

NormalRangeController::NormalRangeController(const Session& session, RecordSession& record, LogbookWorker& worker, QObject* pParent)
    : QObject(pParent), mSession(session), mRecord(record), mWorker(worker)
{
    connect(&mRecord, &RecordSession::recordChanged, this, &NormalRangeController::slotRecord);
    connect(&mWorker, &LogbookWorker::signalChanged, this, &NormalRangeController::ask);
}

void NormalRangeController::slotRecord()
{
    const unsigned version = mRecord.version().record + mRecord.version().flights;
    if (std::exchange(mShown, version) == version)
        return;
    mRecord.setNormal({});
    ask();
}

void NormalRangeController::ask()
{
    ++mAsked;
    const CardContainer& card = mSession.container;
    const RecordCycle* pCycle = mRecord.record() ? card.loadedCycle() : nullptr;
    if (!pCycle || pCycle->flights.empty() || !QFileInfo::exists(mWorker.path()))
        return;
    // A slow card has to be read for its identity.
    const auto pBands = std::make_shared<std::vector<NormalBand>>();
    const CycleHead head{{}, cycleEngine(card, *pCycle), *card.loadedCycleNumber(), pCycle->dateTime};
    const ShownRecording shown{head, PowerUp::of(*pCycle), {pCycle->files.front().get().startTime, pCycle->endTime}};
    mWorker.run(
        [pBands, shown, flights = pCycle->flights, paths = cyclePaths(*pCycle), path = encodeFileName(mWorker.path())] {
            ShownRecording known = shown;
            known.cycle.id = cycleIdentity(paths);
            StoreReader store(path);
            store.countOnce(known);
            if (store.error().empty() && !known.cycle.id.empty())
                *pBands = normalBands(store, known.cycle, flights);
            if (!store.error().empty()) // those of a part of the flights are none
                pBands->clear();
        },
        [this, pBands, asked = mAsked] {
            if (asked == mAsked)
                mRecord.setNormal(*pBands);
        });
}

} // namespace ZARN
