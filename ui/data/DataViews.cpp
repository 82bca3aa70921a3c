#include "ui/data/DataViews.h"

#include "ui/data/DialogData.h"
#include "ui/data/DialogDataErrorMatrix.h"
#include "ui/data/DialogDataLimit.h"
#include "ui/data/DialogDataStatistic.h"
#include "ui/data/DialogDataTable.h"
#include "ui/data/DialogDataWarning.h"
#include "ui/graph/DialogDataGraph.h"
#include "ui/map/DialogDataMap.h"

namespace ZARN {

namespace {

template <typename View> DataViewEntry entry(View* pView)
{
    return {pView, pView};
}

} // namespace

DataViews DataViews::create(const Session& session, const QString& dataPath)
{
    auto* pTable = new DialogDataTable(session);
    auto* pGraph = new DialogDataGraph(session);
    auto* pLimits = new DialogDataLimit(session);
    auto* pWarnings = new DialogDataWarning(session);
    auto* pStatistic = new DialogDataStatistic(session);
    auto* pMap = new DialogDataMap(session, dataPath);
    auto* pFaults = new DialogDataErrorMatrix(session);
    DataViews views;
    views.entries = {entry(pTable), entry(pGraph), entry(pFaults), entry(pLimits), entry(pWarnings), entry(pStatistic), entry(pMap)};
    views.connectTo = [=](DialogData& area) {
        QObject::connect(pTable, &DialogDataTable::signalTime, &area, &DialogData::slotTableTime);
        QObject::connect(pGraph, &DialogDataGraph::signalCursor, &area, &DialogData::slotCursor);
        QObject::connect(pFaults, &DialogDataErrorMatrix::signalTime, &area, &DialogData::slotFaultTime);
        QObject::connect(pLimits, &DialogDataLimit::signalTime, &area, &DialogData::slotLimitTime);
        QObject::connect(pWarnings, &DialogDataWarning::signalTime, &area, &DialogData::slotWarningTime);
        QObject::connect(pMap, &DialogDataMap::signalTime, &area, &DialogData::slotMapTime);
        QObject::connect(pGraph, &DialogDataGraph::signalReport, &area, &DialogData::signalReport);
        QObject::connect(pStatistic, &DialogDataStatistic::signalReport, &area, &DialogData::signalReport);
    };
    views.shareEvents = [=] { pMap->setEvents(pLimits->events(), pWarnings->events()); };
    return views;
}

} // namespace ZARN
