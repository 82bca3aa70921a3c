#include "report/ReportPages.h"

#include "ui/canvas/CanvasFont.h"

#include <algorithm>
#include <numeric>

namespace ZARN {

namespace {

constexpr double kMargin = 40.0; // points
constexpr double kText = 8.0;
constexpr double kLine = 11.5;
constexpr int kGap = 2; // characters between two columns
constexpr double kPointsPerInch = 72.0;
const QColor kInk(20, 33, 46);
const QColor kQuiet(74, 91, 107);
const QColor kRule(180, 191, 202);
const QColor kAccent(18, 88, 143);

QString shortened(const QString& text, int characters)
{
    return text.size() <= characters ? text : text.left(std::max(characters - 1, 0)) + QChar(0x2026);
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
    mCanvas.text({kMargin, y}, shortened(mFooter, 100), {7.0, kQuiet, false, Qt::AlignLeft | Qt::AlignTop, false});
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
    this->text(kMargin, shortened(plain(text), static_cast<int>((mRight - kMargin) / canvasAdvance(kText))), kText, isQuiet ? kQuiet : kInk);
    mY += kLine;
}

void ReportPages::pairs(const std::vector<std::pair<QString, QString>>& entries)
{
    const double half = (mRight - kMargin) / 2;
    qsizetype longest = 0;
    for (const auto& [name, value] : entries)
        longest = std::max(longest, name.size());
    const double indent = canvasAdvance(kText) * static_cast<double>(longest + kGap);
    const int most = static_cast<int>((half - indent) / canvasAdvance(kText)) - 1;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const double x = kMargin + (i % 2 == 0 ? 0.0 : half);
        if (i % 2 == 0)
            reserve(kLine);
        text(x, entries[i].first, kText, kQuiet);
        text(x + indent, shortened(plain(entries[i].second), most), kText, kInk);
        if (i % 2 == 1 || i + 1 == entries.size())
            mY += kLine;
    }
}

std::vector<int> ReportPages::widths(const std::vector<ReportColumn>& columns) const
{
    std::vector<int> widths;
    for (const ReportColumn& column : columns) {
        qsizetype width = column.title.size();
        for (const QString& cell : column.cells)
            width = std::max(width, cell.size());
        widths.push_back(static_cast<int>(std::min<qsizetype>(width, 200)));
    }
    const int room = static_cast<int>((mRight - kMargin) / canvasAdvance(kText)) - kGap * static_cast<int>(columns.size() - 1);
    while (std::accumulate(widths.begin(), widths.end(), 0) > room) {
        int& widest = *std::max_element(widths.begin(), widths.end());
        if (widest <= 1)
            break;
        --widest;
    }
    return widths;
}

void ReportPages::row(const std::vector<ReportColumn>& columns, const std::vector<int>& widths, qsizetype number)
{
    double x = kMargin;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const bool isTitle = number < 0;
        const QString cell = shortened(plain(isTitle ? columns[i].title : columns[i].cells.value(number)), widths[i]);
        const double width = canvasAdvance(kText) * widths[i];
        text(columns[i].isNumber ? x + width : x, cell, kText, isTitle ? kQuiet : kInk, isTitle, columns[i].isNumber ? Qt::AlignRight : Qt::AlignLeft);
        x += width + canvasAdvance(kText) * kGap;
    }
    mY += kLine;
}

void ReportPages::table(const std::vector<ReportColumn>& columns)
{
    if (columns.empty())
        return;
    const std::vector<int> characters = widths(columns);
    reserve(2 * kLine);
    row(columns, characters, -1);
    for (qsizetype i = 0; i < columns.front().cells.size(); ++i) {
        const int page = mPage;
        reserve(kLine);
        if (mPage != page)
            row(columns, characters, -1); // the titles again on every page
        row(columns, characters, i);
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
