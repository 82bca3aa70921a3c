#include "ui/data/DataViewList.h"

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
    return {pView, pView, [pView](DialogData& area) {
                if constexpr (requires { &View::signalTime; })
                    QObject::connect(pView, &View::signalTime, &area, [&area, pView](double time) { area.moveFrom(*pView, time); });
                if constexpr (requires { &View::signalEvents; })
                    QObject::connect(pView, &View::signalEvents, &area, &DialogData::slotEvents);
                if constexpr (requires { &View::signalMoment; })
                    QObject::connect(pView, &View::signalMoment, &area, &DialogData::showMoment);
                if constexpr (requires { &View::signalCurves; }) {
                    QObject::connect(pView, &View::signalCurves, &area, &DialogData::signalCurves);
                    QObject::connect(pView, &View::signalMarker, &area, &DialogData::signalMarker);
                }
                if constexpr (requires { &View::signalReport; })
                    QObject::connect(pView, &View::signalReport, &area, &DialogData::signalReport);
                if constexpr (requires { &View::signalSettings; })
                    QObject::connect(pView, &View::signalSettings, &area, &DialogData::updateSettings);
                if constexpr (requires { &View::signalLayout; })
                    QObject::connect(pView, &View::signalLayout, &area, &DialogData::signalLayout);
                if constexpr (requires { &View::signalCourse; })
                    QObject::connect(pView, &View::signalCourse, &area, &DialogData::setCourse);
                if constexpr (requires { &View::signalTicks; })
                    QObject::connect(pView, &View::signalTicks, &area, &DialogData::signalTicks);
            }};
}

constexpr DataViewTab kTabs[] = {{"view-table", QT_TRANSLATE_NOOP("ZARN::DialogData", "Data")},
                                 {"view-graph", QT_TRANSLATE_NOOP("ZARN::DialogData", "Graph")},
                                 {"view-faults", QT_TRANSLATE_NOOP("ZARN::DialogData", "Fault Matrix")},
                                 {"view-limits", QT_TRANSLATE_NOOP("ZARN::DialogData", "Limit/Warning")},
                                 {"view-lamps", QT_TRANSLATE_NOOP("ZARN::DialogData", "Warning Lamps")},
                                 {"view-statistic", QT_TRANSLATE_NOOP("ZARN::DialogData", "Tow Statistic")}};
static_assert(std::size(kTabs) == eViewMap);

} // namespace

const DataViewTab& DataViewList::tab(EDataView which)
{
    return kTabs[which];
}

DataViewList DataViewList::create(const Session& session, const QString& dataPath)
{
    return {{entry(new DialogDataTable(session)), entry(new DialogDataGraph(session)), entry(new DialogDataErrorMatrix(session)),
             entry(new DialogDataLimit(session)), entry(new DialogDataWarning(session)), entry(new DialogDataStatistic(session)),
             entry(new DialogDataMap(session, dataPath))},
            [session] { return TimeReference::of(session.property, session.container); }};
}

} // namespace ZARN
