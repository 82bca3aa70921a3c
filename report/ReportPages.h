#pragma once

#include "report/PaperCanvas.h"

#include <QPainter>
#include <QPdfWriter>

#include <vector>

namespace ZARN {

/// One column of a table in a report: its title and what stands below it.
struct ReportColumn {
    QString title;
    bool isNumber = false; ///< aligned to the right
    QStringList cells;
};

/// The pages of a report on a PDF writer: everything is set from the top down, in points, and goes on with the next page where
/// there is no room. A page ends with a footer.
class ReportPages {
public:
    /// @param footer stands below every page, with the page's number.
    ReportPages(QPdfWriter& writer, const QString& footer);

    [[nodiscard]] PaperCanvas& canvas() { return mCanvas; }
    [[nodiscard]] QPainter& painter() { return mPainter; }
    [[nodiscard]] int pageCount() const { return mPage; }

    void title(const QString& text);
    /// @param room what has to follow on the same page, in points.
    void heading(const QString& text, double room = 40.0);
    void line(const QString& text, bool isQuiet = false);
    /// Names and what they stand for, in two columns of pairs.
    void pairs(const std::vector<std::pair<QString, QString>>& entries);
    void table(const std::vector<ReportColumn>& columns);
    void gap(double points) { mY += points; }
    /// A place across the page for a drawing, on a page of its own when this one has no room for it.
    [[nodiscard]] QRectF place(double height);
    /// What is left of this page.
    [[nodiscard]] double room() const { return mBottom - mY; }
    void finish();

private:
    void beginPage();
    void endPage();
    void reserve(double height);
    void text(double x, const QString& text, double size, const QColor& colour, bool bold = false, Qt::Alignment align = Qt::AlignLeft);
    /// As much of a text from elsewhere as has room there, in one line.
    [[nodiscard]] QString cell(const QString& text, double width, bool bold = false) const;
    /// The width of each column in points, cut so that a row fits the page.
    [[nodiscard]] std::vector<double> widths(const std::vector<ReportColumn>& columns) const;
    void row(const std::vector<ReportColumn>& columns, const std::vector<double>& widths, qsizetype number);

    QPdfWriter& mWriter;
    QPainter mPainter;
    PaperCanvas mCanvas;
    QString mFooter;
    double mRight;
    double mBottom;
    double mY = 0.0;
    int mPage = 0;
};

} // namespace ZARN
