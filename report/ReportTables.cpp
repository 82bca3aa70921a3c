#include "report/ReportTables.h"

#include "analysis/EventList.h"
#include "app/TimeText.h"
#include "card/FlightFigures.h"
#include "card/record/HeaderField.h"
#include "report/ReportFaults.h"
#include "report/ReportText.h"

namespace ZARN {

namespace {

constexpr std::size_t kFlightsSideBySide = 4;
constexpr std::size_t kMostFlights = 40;
constexpr std::size_t kMostRows = 60;    // of one table of events
constexpr std::size_t kMostFaults = 200; // of the table of faults

void addRow(ReportTable& table, const QStringList& cells)
{
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        table.columns[i].cells << cells[static_cast<qsizetype>(i)];
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
    document.add(ReportHeading{tr("Engine unit")});
    ReportPairs pairs;
    for (const HeaderField& field : HeaderField::all())
        pairs.entries.push_back({field.title(), reportText(field.text(*mLoaded.unit))});
    document.add(std::move(pairs));
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
        const QDateTime takeOff = mLoaded.powerUp.addMSecs(wholeMilliseconds(flight.takeOffTime));
        QStringList cells{reportDate(takeOff, tr("no clock")), mTimes.textAt(flight.takeOffTime), mTimes.textAt(flight.landingTime)};
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
    EventList inside = list;
    inside.crop({mLoaded.startTime, mLoaded.endTime});
    const std::vector<const Event*> shown = inside.weightiest(kMostRows);
    const auto more = static_cast<int>(inside.events().size() - shown.size());
    for (const Event* pEvent : shown) {
        const EventSource& source = inside.source(*pEvent);
        addRow(table, {mTimes.textAt(pEvent->time), reportText(source.group), reportText(source.parameter), reportText(pEvent->value),
                       reportText(source.unit), states.value(pEvent->state, QString::number(pEvent->state))});
    }
    add(document, std::move(table), nothing, more,
        more == 0 ? tr("All of them, those too which the verdict does not count: of starting, stopping and lane checks.")
                  : tr("Not all of them: what was recorded comes before formulas, what is worse before the rest. Those too which the verdict "
                       "does not count: of starting, stopping and lane checks."));
}

void ReportTables::addFaults(ReportDocument& document, const EngineRunning& engine) const
{
    document.add(ReportHeading{tr("Faults")});
    ReportTable table{tr("Faults"),
                      {{tr("Matrix")},
                       {tr("Bit"), true},
                       {tr("Kind")},
                       {tr("Counts")},
                       {tr("Fault"), false, {}, true},
                       {tr("First")},
                       {tr("Last")},
                       {tr("Times"), true}}};
    const QStringList kinds{"", tr("Info"), tr("Warning"), tr("Fault")};
    const std::vector<ReportFault> faults = presentFaults(mLoaded, engine);
    const std::size_t room = std::min(faults.size(), kMostFaults);
    const int more = static_cast<int>(faults.size() - room);
    for (const ReportFault& fault : std::span(faults).first(room)) {
        addRow(table, {reportText(fault.pMatrix->name), QString::number(fault.bit), kinds.value(fault.pBit->errorType),
                       fault.counts ? tr("yes") : tr("no"), reportText(fault.pBit->name), mTimes.textAt(fault.first), mTimes.textAt(fault.last),
                       QString::number(fault.times)});
    }
    const bool hasFaults = !mLoaded.context.model().errorMatrices.empty();
    add(document, std::move(table), hasFaults ? tr("No fault was present.") : tr("The profile declares no faults."), more);
}

} // namespace ZARN
