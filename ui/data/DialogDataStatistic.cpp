#include "ui/data/DialogDataStatistic.h"

#include "app/Numeric.h"
#include "card/CardContainer.h"

#include <QMenu>
#include <QTextEdit>
#include <QTime>
#include <QVBoxLayout>

#include <memory>

namespace ZARN {

namespace {

/// A duration in seconds as a time of day; wraps after 24 hours.
QString durationText(double seconds)
{
    return QTime(0, 0).addSecs(saturatingCast<int>(seconds)).toString("hh:mm:ss");
}

} // namespace

DialogDataStatistic::DialogDataStatistic(const Session& session, QWidget* pParent)
    : QWidget(pParent), mSession(session), mpEdit(new QTextEdit)
{
    mpEdit->setReadOnly(true);
    mpEdit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    mpEdit->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(mpEdit, &QTextEdit::customContextMenuRequested, this, &DialogDataStatistic::showMenu);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(mpEdit);
    setFocusProxy(mpEdit);
    updateRecord(nullptr);
}

void DialogDataStatistic::updateRecord(RecordData* pRecord)
{
    mpRecord = pRecord;
    const RecordFlight& flight = mSession.container.selectedFlight();
    if (!pRecord || !flight.valid) {
        mText = tr("<br><br><b>No flight selected</b>");
    } else {
        mText = "<table>";
        addFlight(flight);
        mText += "</table>";
    }
    mpEdit->setHtml(mText);
}

void DialogDataStatistic::showMenu(const QPoint& point)
{
    const std::unique_ptr<QMenu> menu(mpEdit->createStandardContextMenu(point));
    menu->addSeparator();
    menu->addAction(tr("Flight Report..."), this, &DialogDataStatistic::signalReport)->setEnabled(mpRecord != nullptr);
    menu->exec(mpEdit->viewport()->mapToGlobal(point));
}

void DialogDataStatistic::addLine(const QString& label, const QString& value)
{
    mText += QString("<tr><td>%1  :  </td><td><b>%2</b></td></tr>").arg(label, value);
}

void DialogDataStatistic::addFlight(const RecordFlight& flight)
{
    addLine(tr("Flight Time"), durationText(flight.landingTime - flight.takeOffTime));
    addLine(tr("Total Fuel Lane A"), QString("%1 l").arg(flight.fuelA));
    addLine(tr("Total Fuel Lane B"), QString("%1 l").arg(flight.fuelB));
    addLine(tr("Total Fuel"), QString("%1 l").arg(flight.totalFuel));
    addLine(tr("Minimum Alt"), QString("%1 m").arg(flight.minAltitude));
    addLine(tr("Maximum Alt"), QString("%1 m").arg(flight.maxAltitude));
    addLine(tr("Total Climb"), QString("%1 m").arg(flight.totalClimb));
    addLine(tr("Average Climb Rate"), QString("%1 m/s").arg(flight.averageClimbRate));
    addLine(tr("Average Descend Rate"), QString("%1 m/s").arg(flight.averageDescendRate));
    addLine(tr("Max Ground Speed"), QString("%1 km/h").arg(flight.maxGroundSpeed));
    addLine(tr("Time / 100m"), durationText(flight.timePer100m));
    addLine(tr("Fuel / 100m"), QString("%1 l").arg(flight.fuelPer100m));
    addLine(tr("Take Off Distance"), QString("%1 m").arg(flight.takeOffDistance));
    addLine(tr("Take Off Distance 15m"), QString("%1 m").arg(flight.takeOffDistance15m));
}

} // namespace ZARN
