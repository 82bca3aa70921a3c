#include "ui/main/WidgetCycleSummary.h"

#include "app/Numeric.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include <cmath>

namespace ZARN {

namespace {

constexpr const char* kContext = "ZARN::WidgetCycleSummary";

/// A line of the statistic. The unit is that of the parameter with the key, less "/h" where the line is a quantity of a flow, with the
/// suffix added; without a key it is the suffix alone.
struct Figure {
    const char* label;
    double RecordFlight::*value;
    int decimals;
    const char* key;
    const char* suffix;
};

constexpr Figure kFigures[] = {
    {QT_TRANSLATE_NOOP("ZARN::WidgetCycleSummary", "Lowest altitude"), &RecordFlight::minAltitude, 0, "Altitude", ""},
    {QT_TRANSLATE_NOOP("ZARN::WidgetCycleSummary", "Highest altitude"), &RecordFlight::maxAltitude, 0, "Altitude", ""},
    {QT_TRANSLATE_NOOP("ZARN::WidgetCycleSummary", "Total climb"), &RecordFlight::totalClimb, 0, "Altitude", ""},
    {QT_TRANSLATE_NOOP("ZARN::WidgetCycleSummary", "Average climb rate"), &RecordFlight::averageClimbRate, 1, "Altitude", "/s"},
    {QT_TRANSLATE_NOOP("ZARN::WidgetCycleSummary", "Average descent rate"), &RecordFlight::averageDescendRate, 1, "Altitude", "/s"},
    {QT_TRANSLATE_NOOP("ZARN::WidgetCycleSummary", "Highest ground speed"), &RecordFlight::maxGroundSpeed, 0, "GroundSpeed", ""},
    {QT_TRANSLATE_NOOP("ZARN::WidgetCycleSummary", "Take-off distance"), &RecordFlight::takeOffDistance, 0, nullptr, "m"},
    {QT_TRANSLATE_NOOP("ZARN::WidgetCycleSummary", "Take-off distance over 15 m"), &RecordFlight::takeOffDistance15m, 0, nullptr, "m"},
    {QT_TRANSLATE_NOOP("ZARN::WidgetCycleSummary", "Fuel, lane A"), &RecordFlight::fuelA, 2, "FuelA", ""},
    {QT_TRANSLATE_NOOP("ZARN::WidgetCycleSummary", "Fuel, lane B"), &RecordFlight::fuelB, 2, "FuelB", ""},
    {QT_TRANSLATE_NOOP("ZARN::WidgetCycleSummary", "Fuel, total"), &RecordFlight::totalFuel, 2, "FuelA", ""},
};

QString durationText(double seconds)
{
    return CardContainer::time(seconds).left(8); // hh:mm:ss
}

QString timeText(const QDateTime& dateTime, double secondsLater)
{
    return dateTime.isValid() ? dateTime.addMSecs(saturatingCast<qint64>(secondsLater * 1000)).toString("HH:mm:ss") : QString("-");
}

} // namespace

WidgetCycleSummary::WidgetCycleSummary(const CardContainer& container, const Profile& profile, QWidget* pParent)
    : QWidget(pParent), mContainer(container), mProfile(profile), mpHeading(new QLabel), mpText(new QLabel), mpFlights(new QTableWidget)
{
    mpHeading->setObjectName("heading");
    mpText->setObjectName("quiet");
    for (QLabel* pLabel : {mpHeading, mpText}) {
        pLabel->setTextFormat(Qt::PlainText);
        pLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    mpFlights->setObjectName("flights");
    mpFlights->setEditTriggers(QAbstractItemView::NoEditTriggers);
    mpFlights->setAlternatingRowColors(true);
    mpFlights->setShowGrid(false);
    mpFlights->horizontalHeader()->setDefaultSectionSize(130);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(8, 4, 0, 0);
    pLayout->setSpacing(10);
    pLayout->addWidget(mpHeading);
    pLayout->addWidget(mpText);
    pLayout->addWidget(mpFlights, 1);
    pLayout->addStretch(); // keeps the lines at the top while no table stands below them
}

void WidgetCycleSummary::showData()
{
    const RecordCycle* pCycle = mContainer.loadedCycle();
    QString heading = pCycle ? pCycle->name : tr("Record files");
    if (pCycle && heading.isEmpty())
        heading = tr("Cycle without a start");
    mpHeading->setText(heading);
    mpText->setText(describe(pCycle));
    showFlights(pCycle);
}

QString WidgetCycleSummary::describe(const RecordCycle* pCycle) const
{
    const QDateTime start = pCycle ? pCycle->dateTime : mContainer.dateTime();
    QStringList parts;
    parts.append(start.isValid() ? start.toString("d.M.yyyy HH:mm:ss") : tr("Unknown Date"));
    parts.append(tr("Duration %1").arg(durationText(pCycle ? pCycle->endTime : mContainer.endTime())));
    parts.append(tr("Records: %1").arg(mContainer.recordData().count()));
    if (pCycle)
        parts.append(tr("Flights: %1").arg(pCycle->flights.size()));
    return parts.join(QString("  ·  "));
}

QString WidgetCycleSummary::unitOf(const char* key) const
{
    const QString unit = QString::fromStdString(mProfile.getParameterFromZarnType(key).unit);
    return QLatin1String(key).startsWith(QLatin1String("Fuel")) && unit.endsWith("/h") ? unit.chopped(2) : unit;
}

void WidgetCycleSummary::showFlights(const RecordCycle* pCycle)
{
    mpFlights->clear();
    mpFlights->setVisible(pCycle && !pCycle->flights.empty());
    if (!pCycle)
        return;
    QStringList labels{tr("Take-off"), tr("Landing")};
    for (const Figure& figure : kFigures) {
        const QString unit = (figure.key ? unitOf(figure.key) : QString()) + figure.suffix;
        labels.append(QString("%1 [%2]").arg(QCoreApplication::translate(kContext, figure.label), unit));
    }
    mpFlights->setRowCount(static_cast<int>(labels.size()));
    mpFlights->setColumnCount(static_cast<int>(pCycle->flights.size()));
    mpFlights->setVerticalHeaderLabels(labels);
    QStringList names;
    for (const RecordFlight& flight : pCycle->flights) {
        const int column = static_cast<int>(names.size());
        names.append(tr("Flight %1").arg(column + 1));
        QStringList texts{timeText(pCycle->dateTime, flight.takeOffTime), timeText(pCycle->dateTime, flight.landingTime)};
        for (const Figure& figure : kFigures) {
            const double value = flight.*figure.value;
            texts.append(std::isfinite(value) ? QString::number(value, 'f', figure.decimals) : QString("-"));
        }
        for (int row = 0; row < texts.size(); ++row) {
            auto* pItem = new QTableWidgetItem(texts[row]);
            pItem->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            mpFlights->setItem(row, column, pItem);
        }
    }
    mpFlights->setHorizontalHeaderLabels(names);
}

} // namespace ZARN
