#pragma once

#include "app/Progress.h"
#include "report/ReportSubject.h"

#include <QCoreApplication>

namespace ZARN {

class EventList;
class ReportMap;
class SafeFile;
struct Incident;
struct ReportDocument;

enum class EReportFormat { ePdf, eHtml };

/// How a report is written.
struct ReportOptions {
    bool isLetter = false; ///< the paper; A4 otherwise
    EReportFormat format = EReportFormat::ePdf;
};

/// The loaded cycle or flight as a document, on paper or as a page for a browser: whether the engine was all right and what happened, then
/// the unit's identity, what flew with its tow statistic, exceeded limits, warning lamps, faults, the main parameters over time, the flight
/// path on the map. Needs the QGuiApplication, but no screen, and may be written on any thread.
class FlightReport {
    Q_DECLARE_TR_FUNCTIONS(ZARN::FlightReport)

public:
    explicit FlightReport(ReportSubject subject) : mSubject(std::move(subject)) {}

    /// The format that a file of that name has: the one of its suffix, PDF without one; none for the suffix of something else.
    [[nodiscard]] static std::optional<EReportFormat> formatOf(const QString& fileName);

    /// Opens the file, writes to it and commits it. @return false when it could not be written whole, or was cancelled; the old
    /// file, if any, is then untouched.
    bool write(SafeFile& file, const ReportOptions& options, Progress& progress = nullProgress());
    /// Why the last report failed: "NAME: reason"; empty after one that was cancelled.
    [[nodiscard]] const std::string& error() const { return mError; }

    FlightReport(const FlightReport&) = delete;
    FlightReport& operator=(const FlightReport&) = delete;

private:
    bool fill(ReportDocument& document, Progress& progress);
    void addGraph(ReportDocument& document, const std::vector<Incident>& incidents, const EventList& limits) const;
    static void addMap(ReportDocument& document, const std::shared_ptr<ReportMap>& pMap);
    [[nodiscard]] QString head() const;

    ReportSubject mSubject;
    const LoadedCard& mLoaded = mSubject.loaded;
    std::string mError;
};

} // namespace ZARN
