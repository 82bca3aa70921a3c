#pragma once

#include "report/PaperPages.h"
#include "report/ReportDocument.h"

#include <QCoreApplication>

namespace ZARN {

class SafeFile;

/// Writes a report as PDF: pages of vector graphics.
class PaperReport {
    Q_DECLARE_TR_FUNCTIONS(ZARN::FlightReport)

public:
    /// @param document must outlive it
    PaperReport(const ReportDocument& document, bool isLetter);

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

    void title(const QString& text);
    void sign(EVerdict verdict, double x, double size);
    /// One below the other from there on, going on with the next page.
    void lines(double x, const QStringList& lines, const CanvasText& style);
    [[nodiscard]] QStringList wrapped(const QString& text, double width, const CanvasText& style, qsizetype most) const;
    /// The width of each column in points, such that a row fits the page.
    [[nodiscard]] std::vector<double> widths(const std::vector<ReportColumn>& columns) const;
    void row(const std::vector<ReportColumn>& columns, const std::vector<double>& widths, qsizetype number);
    /// What has to stay on one page with a heading.
    [[nodiscard]] double leastRoom(const ReportBlock& block) const;
    void drawPicture(const ReportPicture& picture, double height);

    const ReportDocument& mDocument;
    const bool mIsLetter;
    PaperPages mPages;
    std::size_t mPlace = 0; ///< of the block that is put
};

} // namespace ZARN
