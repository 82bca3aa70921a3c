#include "report/PaperReport.h"

#include "app/SafeFile.h"
#include "report/PaperStyle.h"
#include "report/ReportText.h"
#include "ui/overview/model/VerdictSign.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <numeric>

namespace ZARN {

namespace {

using namespace PaperStyle;

constexpr int kResolution = 72; // a pixel of the canvas, by which pens are as wide as they say, is a point
constexpr double kNarrowest = 20.0;
constexpr double kSign = 11.0; // of an incident
constexpr double kTimes = 42.0;
constexpr qsizetype kMostLines = 3; // of a cell
constexpr qsizetype kLongText = 40; // lines of a paragraph

CanvasText style(bool bold = false, const QColor& colour = colours().ink, double size = kText)
{
    return {size, colour, bold};
}

QSizeF pageSize(bool isLetter, bool isLandscape)
{
    const QSizeF size = QPageSize(isLetter ? QPageSize::Letter : QPageSize::A4).size(QPageSize::Point);
    return isLandscape ? size.transposed() : size;
}

} // namespace

PaperReport::PaperReport(const ReportDocument& document, bool isLetter)
    : mDocument(document), mIsLetter(isLetter), mPages(pageSize(isLetter, document.isLandscape), document.head, document.creator)
{
}

bool PaperReport::write(SafeFile& file, Progress& progress)
{
    title(mDocument.title);
    for (mPlace = 0; mPlace < mDocument.blocks.size(); ++mPlace)
        std::visit([this](const auto& block) { put(block); }, mDocument.blocks[mPlace]);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(mIsLetter ? QPageSize::Letter : QPageSize::A4));
    writer.setPageOrientation(mDocument.isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    writer.setPageMargins(QMarginsF());
    writer.setResolution(kResolution);
    writer.setTitle(printable(mDocument.title + ", " + mDocument.head));
    writer.setCreator(mDocument.creator);
    //: number of a page, and how many there are
    const QString pageOf = tr("%1 of %2");
    return mPages.write(writer, pageOf, progress) &&
           file.write({buffer.data().constData(), static_cast<std::size_t>(buffer.data().size())});
}

QStringList PaperReport::wrapped(const QString& text, double width, const CanvasText& style, qsizetype most) const
{
    return PaperCanvas::wrapped(printable(text), width, style, most);
}

void PaperReport::lines(double x, const QStringList& lines, const CanvasText& style)
{
    for (const QString& line : lines) {
        mPages.reserve(kLine);
        mPages.text(x, line, style, mPages.right() - x);
        mPages.advance(kLine);
    }
}

void PaperReport::title(const QString& text)
{
    mPages.text(mPages.left(), text, style(true, colours().accent, 20.0), mPages.width());
    mPages.advance(28.0);
}

void PaperReport::sign(EVerdict verdict, double x, double size)
{
    mPages.draw([verdict, place = QRectF(x, mPages.y(), size, size)](QPainter& painter, PaperCanvas&) {
        VerdictSign::paint(painter, verdict, place);
    });
}

double PaperReport::leastRoom(const ReportBlock& block) const
{
    if (const auto* pPicture = std::get_if<ReportPicture>(&block))
        return pPicture->height;
    if (const auto* pIncident = std::get_if<ReportIncident>(&block))
        return 3 * kLine + pIncident->graph.height;
    if (const auto* pTable = std::get_if<ReportTable>(&block))
        return kLine * static_cast<double>(std::min<qsizetype>(pTable->columns.front().cells.size() + 1, 4));
    return kLine;
}

void PaperReport::put(const ReportHeading& heading)
{
    // With it goes what it is the heading of, quiet lines before that included.
    double least = 30.0;
    for (std::size_t next = mPlace + 1; next < mDocument.blocks.size(); ++next) {
        least += leastRoom(mDocument.blocks[next]);
        if (!std::holds_alternative<ReportParagraph>(mDocument.blocks[next]))
            break;
    }
    mPages.reserve(std::min(least, mPages.mostRoom()));
    mPages.advance(mPages.isAtTop() ? 0.0 : 12.0);
    mPages.text(mPages.left(), heading.text, style(true, colours().accent, 11.0), mPages.width());
    mPages.advance(15.0);
    mPages.rule(mPages.y() - 1);
    mPages.advance(3.0);
}

void PaperReport::put(const ReportParagraph& paragraph)
{
    const QColor& colour = paragraph.kind == ReportParagraph::eQuiet   ? colours().quiet
                           : paragraph.kind == ReportParagraph::eAlert ? colours().alert
                                                                       : colours().ink;
    const CanvasText text = style(paragraph.kind == ReportParagraph::eAlert, colour);
    lines(mPages.left(), wrapped(paragraph.text, mPages.width(), text, kLongText), text);
}

void PaperReport::put(const ReportVerdict& verdict)
{
    constexpr double kLarge = 34.0;
    const double x = mPages.left() + kLarge + kGap;
    mPages.reserve(kLarge);
    const double top = mPages.y();
    sign(verdict.verdict, mPages.left(), kLarge);
    mPages.text(x, verdict.word, style(true, colours().ink, 16.0), mPages.right() - x);
    mPages.advance(22.0);
    lines(x, wrapped(verdict.sentence, mPages.right() - x, style(false, colours().ink, 10.0), 2), style(false, colours().ink, 10.0));
    mPages.advance(std::max(0.0, top + kLarge - mPages.y()) + 6.0);
}

void PaperReport::put(const ReportFigures& figures)
{
    constexpr double kHeight = 32.0;
    mPages.reserve(kHeight);
    const double share = mPages.width() / static_cast<double>(std::max<std::size_t>(figures.entries.size(), 1));
    double x = mPages.left();
    for (const auto& [name, value] : figures.entries) {
        mPages.text(x, value, style(true, colours().ink, 14.0), share - kGap);
        mPages.advance(18.0);
        mPages.text(x, name, style(false, colours().quiet), share - kGap);
        mPages.advance(-18.0);
        x += share;
    }
    mPages.advance(kHeight);
}

void PaperReport::put(const ReportPairs& pairs)
{
    const double half = mPages.width() / 2;
    double indent = 0.0;
    for (const ReportPair& entry : pairs.entries)
        indent = std::max(indent, PaperCanvas::size(entry.name, style()).width() + kGap);
    for (std::size_t i = 0; i < pairs.entries.size(); i += 2) {
        std::vector<QStringList> values;
        for (std::size_t j = i; j < std::min(i + 2, pairs.entries.size()); ++j)
            values.push_back(wrapped(pairs.entries[j].value, half - indent - kGap, style(), kMostLines));
        const qsizetype count = std::max(values.front().size(), values.back().size());
        mPages.reserve(kLine * static_cast<double>(count));
        const double top = mPages.y();
        for (std::size_t j = 0; j < values.size(); ++j) {
            const double x = mPages.left() + (j == 0 ? 0.0 : half);
            mPages.text(x, pairs.entries[i + j].name, style(false, colours().quiet), indent);
            lines(x + indent, values[j], style());
            mPages.advance(top - mPages.y());
        }
        mPages.advance(kLine * static_cast<double>(count));
    }
}

void PaperReport::drawPicture(const ReportPicture& picture, double height)
{
    mPages.reserve(height);
    const QRectF place(mPages.left(), mPages.y(), mPages.width(), height);
    mPages.draw([&picture, place](QPainter& painter, PaperCanvas&) {
        painter.save();
        painter.translate(place.topLeft());
        picture.draw(painter, place.size());
        painter.restore();
    });
    mPages.advance(height + 2.0);
}

void PaperReport::put(const ReportPicture& picture)
{
    const bool fits = mPages.room() >= picture.height;
    if (picture.takesPage)
        drawPicture(picture, (fits ? mPages.room() : mPages.mostRoom()) - kLine / 2);
    else
        drawPicture(picture, std::min(picture.height, mPages.mostRoom()));
}

void PaperReport::put(const ReportIncident& incident)
{
    const double x = mPages.left() + kSign + 6.0;
    const double text = x + kTimes;
    const QStringList what = wrapped(incident.what, mPages.right() - text, style(true), kLongText);
    const QString rest = incident.rest.startsWith(", ") ? incident.rest.mid(2) : incident.rest;
    const QStringList more =
        rest.isEmpty() ? QStringList() : wrapped(rest, mPages.right() - text, style(false, colours().quiet), kLongText);
    const double graph = incident.graph.draw ? incident.graph.height + 5.0 : 0.0;
    mPages.reserve(std::min(kLine * static_cast<double>(what.size() + more.size()) + graph + 6.0, mPages.mostRoom()));
    sign(incident.verdict, mPages.left(), kSign);
    mPages.text(x, incident.time, style(), kTimes);
    lines(text, what, style(true));
    lines(text, more, style(false, colours().quiet));
    mPages.advance(3.0);
    if (incident.graph.draw)
        drawPicture(incident.graph, incident.graph.height);
    mPages.advance(2.0);
}

std::vector<double> PaperReport::widths(const std::vector<ReportColumn>& columns) const
{
    std::vector<double> widths;
    for (const ReportColumn& column : columns) {
        double width = PaperCanvas::size(column.title, style(true)).width();
        for (const QString& text : column.cells)
            width = std::max(width, PaperCanvas::size(printable(text), style()).width());
        widths.push_back(width);
    }
    const double room = mPages.width() - kGap * static_cast<double>(columns.size() - 1);
    for (double all = 0; (all = std::accumulate(widths.begin(), widths.end(), 0.0)) > room;) {
        double& widest = *std::max_element(widths.begin(), widths.end());
        if (widest <= kNarrowest)
            break;
        widest = std::max(kNarrowest, widest - std::min(all - room, widest / 8)); // the widest ones share the loss
    }
    return widths;
}

/// @param number -1: the titles
void PaperReport::row(const std::vector<ReportColumn>& columns, const std::vector<double>& widths, qsizetype number)
{
    const bool isTitle = number < 0;
    std::vector<QStringList> cells;
    qsizetype count = 1;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        cells.push_back(wrapped(isTitle ? columns[i].title : columns[i].cells.value(number), widths[i], style(isTitle), kMostLines));
        count = std::max(count, cells.back().size());
    }
    const double height = kLine * static_cast<double>(count);
    if (const std::size_t pages = mPages.count(); !isTitle) {
        mPages.reserve(height);
        if (mPages.count() != pages)
            row(columns, widths, -1); // the titles again on every page
    }
    const double top = mPages.y();
    double x = mPages.left();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        CanvasText text = style(isTitle, isTitle ? colours().quiet : colours().ink);
        text.align = (columns[i].isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignTop;
        for (const QString& line : cells[i]) {
            mPages.text(columns[i].isNumber ? x + widths[i] : x, line, text, widths[i]);
            mPages.advance(kLine);
        }
        mPages.advance(top - mPages.y());
        x += widths[i] + kGap;
    }
    mPages.advance(height);
}

void PaperReport::put(const ReportTable& table)
{
    if (table.columns.empty())
        return;
    const std::vector<double> shares = widths(table.columns);
    mPages.reserve(2 * kLine);
    row(table.columns, shares, -1);
    for (qsizetype i = 0; i < table.columns.front().cells.size(); ++i)
        row(table.columns, shares, i);
    mPages.advance(4.0);
}

} // namespace ZARN
