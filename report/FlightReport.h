#pragma once

#include "app/Progress.h"
#include "card/LoadedCard.h"

#include <QCoreApplication>

namespace ZARN {

class EventList;
class ReportPages;
class SafeFile;

/// How a report is printed.
struct ReportOptions {
    bool isLetter = false; ///< A4 otherwise
};

/// The loaded cycle or flight on paper, as a PDF of vector graphics: the unit's identity, what flew with its tow statistic, exceeded
/// limits, warning lamps, faults, the main parameters over time, the flight path on the map. Needs the QGuiApplication, but no screen, and
/// may be written on any thread.
class FlightReport {
    Q_DECLARE_TR_FUNCTIONS(ZARN::FlightReport)

public:
    explicit FlightReport(LoadedCard loaded) : mLoaded(std::move(loaded)) {}

    /// Opens the file, writes to it and commits it. @return false when it could not be written whole, or was cancelled; the old
    /// file, if any, is then untouched.
    bool write(SafeFile& file, const ReportOptions& options, Progress& progress = nullProgress());
    /// Why the last report failed: "NAME: reason"; empty after one that was cancelled.
    [[nodiscard]] const std::string& error() const { return mError; }

private:
    bool writePages(ReportPages& pages, Progress& progress);
    void writeHead(ReportPages& pages) const;
    void writeUnit(ReportPages& pages) const;
    void writeFlights(ReportPages& pages) const;
    void writeFigures(ReportPages& pages, const std::vector<RecordFlight>& flights, std::size_t first) const;
    void writeEvents(ReportPages& pages, const EventList& list, const QString& heading, const QString& nothing, const QStringList& states) const;
    void writeFaults(ReportPages& pages) const;
    void writeGraph(ReportPages& pages, const EventList& limits) const;
    void writeMap(ReportPages& pages, const EventList& limits) const;

    /// The flights that the report is about: the selected one, or all of the cycle; and their numbers, from 1.
    [[nodiscard]] std::vector<RecordFlight> flights(int& firstNumber) const;
    [[nodiscard]] bool isInside(double time) const { return time >= mLoaded.startTime && time <= mLoaded.endTime; }
    [[nodiscard]] QString footer() const;

    const LoadedCard mLoaded;
    std::string mError;
};

} // namespace ZARN
