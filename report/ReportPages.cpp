#include "report/ReportPages.h"

#include <algorithm>
#include <numeric>

namespace ZARN {

namespace {

constexpr double kMargin = 40.0; // points
constexpr double kText = 8.0;
constexpr double kLine = 11.5;
constexpr double kGap = 12.0; // between two columns
constexpr double kNarrowest = 20.0;
constexpr double kPointsPerInch = 72.0;
const QColor kInk(20, 33, 46);
const QColor kQuiet(74, 91, 107);
const QColor kRule(180, 191, 202);
const QColor kAccent(18, 88, 143);

CanvasText style(bool bold)
{
    return {kText, kInk, bold};
}

/// What a file says, in one line of characters that can be set.
QString plain(QString text)
{
    std::replace_if(text.begin(), text.end(), [](QChar c) { return !c.isPrint(); }, QChar(' '));
    return text;
}

} // namespace

ReportPages::ReportPages(QPdfWriter& writer, const QString& footer)
    : mWriter(writer), mPainter(&writer), mCanvas(mPainter), mFooter(plain(footer))
{
    const double scale = writer.resolution() / kPointsPerInch;
    mPainter.scale(scale, scale);
    mRight = writer.width() / scale - kMargin;
    mBottom = writer.height() / scale - kMargin - 2 * kLine;
    beginPage();
}

void ReportPages::beginPage()
{
    ++mPage;
    mY = kMargin;
}

void ReportPages::endPage()
{
    const double y = mBottom + kLine;
    mCanvas.lines(std::vector<QPointF>{{kMargin, y - 3}, {mRight, y - 3}}, {kRule, 0.5});
    mCanvas.text({kMargin, y}, cell(mFooter, mRight - kMargin - 2 * kGap), {7.0, kQuiet, false, Qt::AlignLeft | Qt::AlignTop, false});
    mCanvas.text({mRight, y}, QString::number(mPage), {7.0, kQuiet, false, Qt::AlignRight | Qt::AlignTop, false});
}

void ReportPages::finish()
{
    endPage();
    mPainter.end();
}

void ReportPages::reserve(double height)
{
    if (mY + height <= mBottom || mY <= kMargin)
        return;
    endPage();
    mWriter.newPage();
    beginPage();
}

void ReportPages::text(double x, const QString& text, double size, const QColor& colour, bool bold, Qt::Alignment align)
{
    mCanvas.text({x, mY}, text, {size, colour, bold, align | Qt::AlignTop, false});
}

QString ReportPages::cell(const QString& text, double width, bool bold) const
{
    return mCanvas.shortened(plain(text), width + 0.01, style(bold)); // what was measured fits, however it was rounded
}

void ReportPages::title(const QString& text)
{
    this->text(kMargin, plain(text), 20.0, kAccent, true);
    mY += 28.0;
}

void ReportPages::heading(const QString& text, double room)
{
    reserve(30.0 + room);
    mY += mY > kMargin ? 12.0 : 0.0;
    this->text(kMargin, text, 11.0, kAccent, true);
    mY += 15.0;
    mCanvas.lines(std::vector<QPointF>{{kMargin, mY - 1}, {mRight, mY - 1}}, {kRule, 0.5});
    mY += 3.0;
}

void ReportPages::line(const QString& text, bool isQuiet)
{
    reserve(kLine);
    this->text(kMargin, cell(text, mRight - kMargin), kText, isQuiet ? kQuiet : kInk);
    mY += kLine;
}

void ReportPages::pairs(const std::vector<std::pair<QString, QString>>& entries)
{
    const double half = (mRight - kMargin) / 2;
    double indent = 0.0;
    for (const auto& [name, value] : entries)
        indent = std::max(indent, mCanvas.textSize(name, style(false)).width() + kGap);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const double x = kMargin + (i % 2 == 0 ? 0.0 : half);
        if (i % 2 == 0)
            reserve(kLine);
        text(x, entries[i].first, kText, kQuiet);
        text(x + indent, cell(entries[i].second, half - indent - kGap), kText, kInk);
        if (i % 2 == 1 || i + 1 == entries.size())
            mY += kLine;
    }
}

std::vector<double> ReportPages::widths(const std::vector<ReportColumn>& columns) const
{
    std::vector<double> widths;
    for (const ReportColumn& column : columns) {
        double width = mCanvas.textSize(column.title, style(true)).width();
        for (const QString& text : column.cells)
            width = std::max(width, mCanvas.textSize(plain(text), style(false)).width());
        widths.push_back(width);
    }
    const double room = mRight - kMargin - kGap * static_cast<double>(columns.size() - 1);
    for (double all = 0; (all = std::accumulate(widths.begin(), widths.end(), 0.0)) > room;) {
        double& widest = *std::max_element(widths.begin(), widths.end());
        if (widest <= kNarrowest)
            break;
        widest = std::max(kNarrowest, widest - std::min(all - room, widest / 8)); // the widest ones share the loss
    }
    return widths;
}

void ReportPages::row(const std::vector<ReportColumn>& columns, const std::vector<double>& widths, qsizetype number)
{
    double x = kMargin;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const bool isTitle = number < 0;
        const ReportColumn& column = columns[i];
        const QString shown = cell(isTitle ? column.title : column.cells.value(number), widths[i], isTitle);
        text(column.isNumber ? x + widths[i] : x, shown, kText, isTitle ? kQuiet : kInk, isTitle, column.isNumber ? Qt::AlignRight : Qt::AlignLeft);
        x += widths[i] + kGap;
    }
    mY += kLine;
}

void ReportPages::table(const std::vector<ReportColumn>& columns)
{
    if (columns.empty())
        return;
    const std::vector<double> shares = widths(columns);
    reserve(2 * kLine);
    row(columns, shares, -1);
    for (qsizetype i = 0; i < columns.front().cells.size(); ++i) {
        const int page = mPage;
        reserve(kLine);
        if (mPage != page)
            row(columns, shares, -1); // the titles again on every page
        row(columns, shares, i);
    }
}

QRectF ReportPages::place(double height)
{
    const double most = mBottom - kMargin;
    height = std::min(height, most);
    reserve(height);
    const QRectF place(kMargin, mY, mRight - kMargin, std::min(height, room()));
    mY += place.height() + 4.0;
    return place;
}

} // namespace ZARN
