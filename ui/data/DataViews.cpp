#include "ui/data/DataViews.h"

#include "ui/data/DialogData.h"
#include "ui/data/DialogDataErrorMatrix.h"
#include "ui/data/DialogDataLimit.h"
#include "ui/data/DialogDataStatistic.h"
#include "ui/data/DialogDataTable.h"
#include "ui/data/DialogDataWarning.h"

namespace ZARN {

namespace {

template <typename View> DataViewEntry entry(View* pView)
{
    return {pView, pView};
}

class PlainFrame : public QWidget, public DataView {
public:
    void updateProfile() override {}
    void updateRecord(RecordData*) override {}
    void setTime(double) override {}
};

} // namespace

DataViews DataViews::create(const Session& session, const QString& /*dataPath*/)
{
    auto* pTable = new DialogDataTable(session);
    auto* pLimits = new DialogDataLimit(session);
    auto* pWarnings = new DialogDataWarning(session);
    DataViews views;
    views.entries = {entry(pTable),    entry(new PlainFrame),  entry(new DialogDataErrorMatrix(session)), entry(pLimits),
                     entry(pWarnings), entry(new DialogDataStatistic(session)), entry(new PlainFrame)};
    views.connectTo = [=](DialogData& area) {
        QObject::connect(pTable, &DialogDataTable::signalTime, &area, &DialogData::slotTableTime);
        QObject::connect(pLimits, &DialogDataLimit::signalTime, &area, &DialogData::slotLimitTime);
        QObject::connect(pWarnings, &DialogDataWarning::signalTime, &area, &DialogData::slotWarningTime);
    };
    return views;
}

} // namespace ZARN
