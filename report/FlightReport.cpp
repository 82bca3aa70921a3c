#include "report/FlightReport.h"

#include "analysis/LimitEvents.h"
#include "analysis/WarningEvents.h"
#include "app/Numeric.h"
#include "app/Revision.h"
#include "app/SafeFile.h"
#include "card/CardContainer.h"
#include "card/FlightFigures.h"
#include "report/ReportFaults.h"
#include "report/ReportGraph.h"
#include "report/ReportMap.h"
#include "report/ReportPages.h"

#include <QBuffer>
#include <QPdfWriter>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kResolution = 72; // a pixel of the canvas, by which pens are as wide as they say, is a point
constexpr std::size_t kFlightsSideBySide = 4;
constexpr qsizetype kMostRows = 60;    // of one table of events
constexpr double kGraphHeight = 440.0; // points
constexpr double kMapHeight = 440.0;

QString text(const std::string& bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

QString date(const QDateTime& dateTime, const QString& none)
{
    return dateTime.isValid() ? dateTime.toString("yyyy-MM-dd hh:mm:ss") : none;
}

} // namespace

bool FlightReport::write(SafeFile& file, const ReportOptions& options, Progress& progress)
{
    mError.clear();
    if (!file.open()) {
        mError = file.error();
        return false;
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(options.isLetter ? QPageSize::Letter : QPageSize::A4));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(kResolution);
    writer.setTitle(tr("Flight report") + ", " + mLoaded.card);
    writer.setCreator(text(Revision::getRevisionString()));
    ReportPages pages(writer, footer());
    if (!writePages(pages, progress))
        return false;
    pages.finish();
    if (file.write({buffer.data().constData(), static_cast<std::size_t>(buffer.data().size())}) && file.commit())
        return true;
    mError = file.error();
    return false;
}

bool FlightReport::writePages(ReportPages& pages, Progress& progress)
{
    const auto isWanted = [&](int percent) {
        progress.setProgress(percent);
        return !progress.isCancelled();
    };
    pages.title(tr("Flight report"));
    writeHead(pages);
    writeUnit(pages);
    writeFlights(pages);
    if (!isWanted(10))
        return false;
    const EventList limits = limitEvents(*mLoaded.pRecord, mLoaded.context);
    writeEvents(pages, limits, tr("Exceeded limits"), tr("No limit was exceeded."), {tr("ok"), tr("warning"), tr("limit")});
    if (!isWanted(30))
        return false;
    const EventList lamps = warningEvents(*mLoaded.pRecord, mLoaded.context);
    writeEvents(pages, lamps, tr("Warning lamps"), tr("No warning lamp was lit."), {tr("dark"), tr("yellow"), tr("red")});
    if (!isWanted(45))
        return false;
    writeFaults(pages);
    if (!isWanted(60))
        return false;
    writeGraph(pages, limits);
    if (!isWanted(85))
        return false;
    writeMap(pages, limits);
    return isWanted(100);
}

QString FlightReport::footer() const
{
    return text(Revision::getRevisionString()) + "  " + mLoaded.card;
}

void FlightReport::writeHead(ReportPages& pages) const
{
    int number = 0;
    const auto chosen = flights(number);
    const bool isFlight = mLoaded.flight.valid && !chosen.empty();
    const ProfileModel& model = mLoaded.context.model();
    const QString cycle = mLoaded.cycle ? QString::number(*mLoaded.cycle) : tr("single files");
    pages.pairs({{tr("Card"), mLoaded.card},
                 {tr("Date, as recorded"), date(mLoaded.powerUp, tr("no clock"))},
                 {tr("Power cycle"), isFlight ? tr("%1, flight %2").arg(cycle, QString::number(number)) : cycle},
                 {tr("From"), CardContainer::time(mLoaded.startTime)},
                 {tr("Profile"), text(model.name)},
                 {tr("To"), CardContainer::time(mLoaded.endTime)},
                 {tr("Variant"), model.variant.empty() ? QStringLiteral("-") : text(model.variant)}});
    pages.line(tr("Times count from the unit's power-up."), true);
}

void FlightReport::writeUnit(ReportPages& pages) const
{
    if (!mLoaded.unit)
        return;
    const RecordInfo& unit = *mLoaded.unit;
    pages.heading(tr("Engine unit"));
    pages.pairs({{tr("ECU serial number"), QString::number(unit.ecuSerialNumber)},
                 {tr("Engine serial number"), text(unit.engineSerial)},
                 {tr("ECU type"), text(unit.ecuType)},
                 {tr("Engine type"), text(unit.engineType)},
                 {tr("Software A"), text(unit.softwarePartA)},
                 {tr("EMU software"), text(unit.emuSoftwareVersion)},
                 {tr("Software B"), text(unit.softwarePartB)}});
}

std::vector<RecordFlight> FlightReport::flights(int& firstNumber) const
{
    firstNumber = 1;
    if (!mLoaded.cycle || !mLoaded.flight.valid)
        return mLoaded.flights;
    firstNumber = std::max(mLoaded.flightNumber, 1);
    return {mLoaded.flight};
}

void FlightReport::writeFlights(ReportPages& pages) const
{
    int number = 0;
    const std::vector<RecordFlight> all = flights(number);
    pages.heading(tr("Flights and tow statistic"), 100.0);
    if (all.empty())
        pages.line(tr("No flight was found."));
    for (std::size_t first = 0; first < all.size(); first += kFlightsSideBySide) {
        pages.gap(first > 0 ? 6.0 : 0.0);
        writeFigures(pages,
                     {all.begin() + static_cast<std::ptrdiff_t>(first),
                      all.begin() + static_cast<std::ptrdiff_t>(std::min(all.size(), first + kFlightsSideBySide))},
                     first + static_cast<std::size_t>(number));
    }
}

void FlightReport::writeFigures(ReportPages& pages, const std::vector<RecordFlight>& flights, std::size_t first) const
{
    std::vector<ReportColumn> columns{{tr("Flight"), false, {tr("Take-off, clock"), tr("Take-off"), tr("Landing")}}};
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
    columns.front().cells.append(QStringList(std::begin(labels), std::end(labels)));
    const QDateTime powerUp = mLoaded.powerUp;
    for (const RecordFlight& flight : flights) {
        QStringList cells{date(powerUp.addSecs(saturatingCast<qint64>(flight.takeOffTime)), tr("no clock")), CardContainer::time(flight.takeOffTime),
                          CardContainer::time(flight.landingTime)};
        for (int figure = 0; figure < eFigureCount; ++figure)
            cells.append(flightFigureText(flight, static_cast<EFlightFigure>(figure), EFigureText::eFixed));
        columns.push_back({QString::number(first++), true, cells});
    }
    pages.table(columns);
}

void FlightReport::writeEvents(ReportPages& pages, const EventList& list, const QString& heading, const QString& nothing,
                               const QStringList& states) const
{
    pages.heading(heading);
    std::vector<ReportColumn> columns{{tr("Time"), false, {}}, {tr("Group"), false, {}}, {tr("Parameter"), false, {}},
                                      {tr("Value"), true, {}}, {tr("Unit"), false, {}},  {tr("State"), false, {}}};
    int more = 0;
    for (const Event& event : list.events()) {
        if (!isInside(event.time))
            continue;
        if (columns.front().cells.size() == kMostRows) {
            ++more;
            continue;
        }
        const EventSource& source = list.source(event);
        const QString state = states.value(event.state, QString::number(event.state));
        const QStringList cells{
            CardContainer::time(event.time), text(source.group), text(source.parameter), text(event.value), text(source.unit), state};
        for (std::size_t i = 0; i < columns.size(); ++i)
            columns[i].cells << cells[static_cast<qsizetype>(i)];
    }
    if (columns.front().cells.isEmpty())
        return pages.line(nothing);
    pages.table(columns);
    if (more > 0)
        pages.line(tr("and %n more", nullptr, more), true);
}

void FlightReport::writeFaults(ReportPages& pages) const
{
    pages.heading(tr("Faults"));
    std::vector<ReportColumn> columns{{tr("Matrix"), false, {}}, {tr("Bit"), true, {}},   {tr("Kind"), false, {}}, {tr("Fault"), false, {}},
                                      {tr("First"), false, {}},  {tr("Last"), false, {}}, {tr("Times"), true, {}}};
    const QStringList kinds{"", tr("Info"), tr("Warning"), tr("Fault")};
    for (const ReportFault& fault : presentFaults(mLoaded.context.model(), *mLoaded.pRecord, mLoaded.startTime, mLoaded.endTime)) {
        const QStringList cells{text(fault.pMatrix->name),   QString::number(fault.bit),       kinds.value(fault.pBit->errorType),
                                text(fault.pBit->name),      CardContainer::time(fault.first), CardContainer::time(fault.last),
                                QString::number(fault.times)};
        for (std::size_t i = 0; i < columns.size(); ++i)
            columns[i].cells << cells[static_cast<qsizetype>(i)];
    }
    if (mLoaded.context.model().errorMatrices.empty())
        return pages.line(tr("The profile declares no faults."));
    columns.front().cells.isEmpty() ? pages.line(tr("No fault was present.")) : pages.table(columns);
}

void FlightReport::writeGraph(ReportPages& pages, const EventList& limits) const
{
    ReportGraph graph(mLoaded, limits);
    pages.heading(tr("Main parameters"), graph.isEmpty() ? 20.0 : kGraphHeight);
    if (graph.isEmpty())
        return pages.line(tr("None of them was recorded."));
    if (graph.leftOut() > 0)
        pages.line(tr("Not shown: %n more that exceeded a limit", nullptr, graph.leftOut()), true);
    graph.draw(pages.canvas(), pages.place(std::max(kGraphHeight, pages.room() - 10.0)));
}

void FlightReport::writeMap(ReportPages& pages, const EventList& limits) const
{
    ReportMap map(mLoaded);
    pages.heading(tr("Flight path"), map.isEmpty() ? 20.0 : kMapHeight);
    if (map.isEmpty())
        return pages.line(tr("No position was recorded."));
    pages.line(tr("Green: begin. Black: end. Orange: exceeded limits, how many at a place. Grey lines: degrees and minutes."), true);
    map.draw(pages.painter(), pages.canvas(), pages.place(std::max(kMapHeight, pages.room() - 10.0)), limits);
}

} // namespace ZARN
