#include "report/ReportTables.h"

#include "analysis/EventList.h"
#include "app/Numeric.h"
#include "card/CardContainer.h"
#include "card/FlightFigures.h"
#include "report/ReportFaults.h"
#include "report/ReportText.h"

namespace ZARN {

namespace {

constexpr std::size_t kFlightsSideBySide = 4;
constexpr std::size_t kMostFlights = 40;
constexpr qsizetype kMostRows = 60;    // of one table of events
constexpr qsizetype kMostFaults = 200; // of the table of faults

/// Appends a row to a table. @return false when it has as many as it may have
bool addRow(ReportTable& table, const QStringList& cells, qsizetype most)
{
    if (table.columns.front().cells.size() == most)
        return false;
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        table.columns[i].cells << cells[static_cast<qsizetype>(i)];
    return true;
}

} // namespace

void ReportTables::add(ReportDocument& document, ReportTable table, const QString& nothing, int more, const QString& note)
{
    if (table.columns.front().cells.isEmpty())
        return document.add(ReportParagraph{nothing});
    if (!note.isEmpty())
        document.add(ReportParagraph{note, ReportParagraph::eQuiet});
    document.add(std::move(table));
    if (more > 0)
        document.add(ReportParagraph{tr("and %n more", nullptr, more), ReportParagraph::eAlert});
}

void ReportTables::addUnit(ReportDocument& document) const
{
    if (!mLoaded.unit)
        return;
    const RecordInfo& unit = *mLoaded.unit;
    document.add(ReportHeading{tr("Engine unit")});
    document.add(ReportPairs{{{tr("ECU serial number"), QString::number(unit.ecuSerialNumber)},
                              {tr("Engine serial number"), reportText(unit.engineSerial)},
                              {tr("ECU type"), reportText(unit.ecuType)},
                              {tr("Engine type"), reportText(unit.engineType)},
                              {tr("Software A"), reportText(unit.softwarePartA)},
                              {tr("EMU software"), reportText(unit.emuSoftwareVersion)},
                              {tr("Software B"), reportText(unit.softwarePartB)}}});
}

std::vector<RecordFlight> ReportTables::flights(int& firstNumber) const
{
    firstNumber = 1;
    if (!mLoaded.cycle || !mLoaded.flight.valid)
        return mLoaded.flights;
    firstNumber = std::max(mLoaded.flightNumber, 1);
    return {mLoaded.flight};
}

void ReportTables::addFlights(ReportDocument& document) const
{
    int number = 0;
    const std::vector<RecordFlight> all = flights(number);
    document.add(ReportHeading{tr("Flights and tow statistic")});
    if (all.empty())
        document.add(ReportParagraph{tr("No flight was found.")});
    const std::size_t shown = std::min(all.size(), kMostFlights);
    for (std::size_t first = 0; first < shown; first += kFlightsSideBySide)
        document.add(figures(all, first, std::min(shown, first + kFlightsSideBySide), number));
    if (shown < all.size())
        document.add(ReportParagraph{tr("and %n more", nullptr, static_cast<int>(all.size() - shown)), ReportParagraph::eAlert});
}

ReportTable ReportTables::figures(const std::vector<RecordFlight>& flights, std::size_t first, std::size_t last, int firstNumber) const
{
    ReportTable table{tr("Flights and tow statistic"),
                      {{tr("Flight"), false, {tr("Take-off, clock"), tr("Take-off"), tr("Landing")}, true}}};
    const QString labels[eFigureCount] = {tr("Flight time"),
                                          tr("Fuel, lane A"),
                                          tr("Fuel, lane B"),
                                          tr("Fuel, total"),
                                          tr("Lowest altitude"),
                                          tr("Highest altitude"),
                                          tr("Total climb"),
                                          tr("Average climb rate"),
                                          tr("Average descent rate"),
                                          tr("Highest ground speed"),
                                          tr("Time for 100 m of climb"),
                                          tr("Fuel for 100 m of climb"),
                                          tr("Take-off distance"),
                                          tr("Take-off distance, 15 m")};
    table.columns.front().cells.append(QStringList(std::begin(labels), std::end(labels)));
    for (std::size_t i = first; i < last; ++i) {
        const RecordFlight& flight = flights[i];
        const QDateTime takeOff = mLoaded.powerUp.addSecs(saturatingCast<qint64>(flight.takeOffTime));
        QStringList cells{reportDate(takeOff, tr("no clock")), CardContainer::time(flight.takeOffTime),
                          CardContainer::time(flight.landingTime)};
        for (int figure = 0; figure < eFigureCount; ++figure)
            cells.append(flightFigureText(flight, static_cast<EFlightFigure>(figure), EFigureText::eFixed));
        table.columns.push_back({QString::number(firstNumber + static_cast<int>(i)), true, cells});
    }
    return table;
}

void ReportTables::addEvents(ReportDocument& document, const EventList& list, const QString& heading, const QString& nothing,
                             const QStringList& states) const
{
    document.add(ReportHeading{heading});
    ReportTable table{heading,
                      {{tr("Time"), false, {}, true}, {tr("Group")}, {tr("Parameter")}, {tr("Value"), true}, {tr("Unit")}, {tr("State")}}};
    int more = 0;
    for (const Event& event : list.events()) {
        if (!isInside(event.time))
            continue;
        const EventSource& source = list.source(event);
        const QString state = states.value(event.state, QString::number(event.state));
        const bool hasRoom = addRow(table,
                                    {CardContainer::time(event.time), reportText(source.group), reportText(source.parameter),
                                     reportText(event.value), reportText(source.unit), state},
                                    kMostRows);
        more += hasRoom ? 0 : 1;
    }
    add(document, std::move(table), nothing, more,
        tr("All of them, those too which the verdict does not count: of starting, stopping and lane checks."));
}

void ReportTables::addFaults(ReportDocument& document) const
{
    document.add(ReportHeading{tr("Faults")});
    ReportTable table{tr("Faults"),
                      {{tr("Matrix")},
                       {tr("Bit"), true},
                       {tr("Kind")},
                       {tr("Fault"), false, {}, true},
                       {tr("First")},
                       {tr("Last")},
                       {tr("Times"), true}}};
    const QStringList kinds{"", tr("Info"), tr("Warning"), tr("Fault")};
    int more = 0;
    for (const ReportFault& fault : presentFaults(mLoaded.context.model(), *mLoaded.pRecord, mLoaded.startTime, mLoaded.endTime)) {
        const bool hasRoom = addRow(table,
                                    {reportText(fault.pMatrix->name), QString::number(fault.bit), kinds.value(fault.pBit->errorType),
                                     reportText(fault.pBit->name), CardContainer::time(fault.first), CardContainer::time(fault.last),
                                     QString::number(fault.times)},
                                    kMostFaults);
        more += hasRoom ? 0 : 1;
    }
    const bool hasFaults = !mLoaded.context.model().errorMatrices.empty();
    add(document, std::move(table), hasFaults ? tr("No fault was present.") : tr("The profile declares no faults."), more);
}

} // namespace ZARN
