#pragma once

#include <QCoreApplication>

namespace ZARN {

class ReportGraph;
struct ReportDocument;
struct ReportSubject;

/// The main parameters beside those of the flight or cycle that the recording is compared with, over the time that both have.
class ReportComparison {
    Q_DECLARE_TR_FUNCTIONS(ZARN::FlightReport)

public:
    /// Nothing where nothing is compared.
    static void addTo(ReportDocument& document, const ReportSubject& subject, const ReportGraph& graph);
};

} // namespace ZARN
