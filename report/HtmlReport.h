#pragma once

#include "report/ReportDocument.h"

#include <QByteArray>

namespace ZARN {

class Progress;
class SafeFile;

/// Writes a report as one HTML file that needs nothing else: fonts and pictures inside, no scripts. Every text is escaped.
class HtmlReport {
public:
    /// @param document must outlive it
    explicit HtmlReport(const ReportDocument& document) : mDocument(document) {}

    /// Appends all of it to a file. @return false when that failed or was cancelled
    bool write(SafeFile& file, Progress& progress);

private:
    void put(const ReportHeading& heading);
    void put(const ReportParagraph& paragraph);
    void put(const ReportVerdict& verdict);
    void put(const ReportPairs& pairs);
    void put(const ReportFigures& figures);
    void put(const ReportIncident& incident);
    void put(const ReportTable& table);
    void put(const ReportPicture& picture);

    void begin();
    void putRow(const std::vector<ReportColumn>& columns, qsizetype number);
    void sign(EVerdict verdict, int size, const QString& text);
    void image(const QSizeF& size, const QString& text, const ReportDrawing& draw);

    const ReportDocument& mDocument;
    QByteArray mText; ///< what is not yet written
    bool mIsInSection = false;
};

} // namespace ZARN
