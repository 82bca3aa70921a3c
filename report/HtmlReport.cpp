#include "report/HtmlReport.h"

#include "app/Progress.h"
#include "app/SafeFile.h"
#include "app/StyleHandler.h"
#include "report/HtmlStyle.h"
#include "report/ReportText.h"
#include "ui/canvas/CanvasFont.h"
#include "ui/canvas/ColourTable.h"
#include "ui/overview/model/VerdictSign.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <cmath>
#include <new>

namespace ZARN {

namespace {

constexpr double kWidth = 515.0; // of pictures, in points
constexpr double kDots = 2.5;    // pixels a point: sharp on a dense screen

/// Fit to stand between tags and in an attribute with double quotes.
QByteArray escaped(const QString& text)
{
    return printable(text).toHtmlEscaped().toUtf8();
}

QByteArray fontFace(bool bold)
{
    return "@font-face{font-family:\"ZARN Text\";font-weight:" + QByteArray(bold ? "700" : "400") + ";src:url(data:font/otf;base64," +
           canvasFontFile(bold).toBase64() + ") format(\"opentype\")}\n";
}

const char* kindOf(ReportParagraph::EKind kind)
{
    return kind == ReportParagraph::eQuiet ? "quiet" : kind == ReportParagraph::eAlert ? "alert" : "plain";
}

} // namespace

bool HtmlReport::write(SafeFile& file, Progress& progress)
{
    begin();
    for (std::size_t i = 0; i < mDocument.blocks.size(); ++i) {
        std::visit([this](const auto& block) { put(block); }, mDocument.blocks[i]);
        progress.setProgress(static_cast<int>(50 + 50 * i / mDocument.blocks.size()));
        if (progress.isCancelled() || !file.write({mText.constData(), static_cast<std::size_t>(mText.size())}))
            return false;
        mText.clear();
    }
    mText += mIsInSection ? "</section>\n" : "";
    mText += "</main>\n<footer>" + escaped(mDocument.creator) + "</footer>\n</body>\n</html>\n";
    return file.write({mText.constData(), static_cast<std::size_t>(mText.size())});
}

void HtmlReport::begin()
{
    const QByteArray title = escaped(mDocument.title), head = escaped(mDocument.head);
    mText = "<!DOCTYPE html>\n<html lang=\"" + escaped(mDocument.language) + "\">\n<head>\n<meta charset=\"utf-8\">\n";
    mText += HtmlStyle::kPolicy;
    mText += "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<meta name=\"generator\" content=\"" +
             escaped(mDocument.creator) + "\">\n<title>" + title + ", " + head + "</title>\n<style>\n";
    mText += fontFace(false) + fontFace(true) +
             StyleHandler::insert(HtmlStyle::kSheet, ColourTable::builtIn().variables(ColourTable::ePaper)).toUtf8();
    mText += "</style>\n</head>\n<body>\n<header><h1>" + title + "</h1><p>" + head + "</p></header>\n<main>\n";
}

void HtmlReport::put(const ReportHeading& heading)
{
    mText += mIsInSection ? "</section>\n<section>\n" : "<section>\n";
    mText += "<h2>" + escaped(heading.text) + "</h2>\n";
    mIsInSection = true;
}

void HtmlReport::put(const ReportParagraph& paragraph)
{
    if (!paragraph.text.isEmpty())
        mText += "<p class=\"" + QByteArray(kindOf(paragraph.kind)) + "\">" + escaped(paragraph.text) + "</p>\n";
}

void HtmlReport::put(const ReportVerdict& verdict)
{
    mText += "<div class=\"verdict\">";
    sign(verdict.verdict, 48, QString()); // the word stands beside it
    mText += "<div><p class=\"word\">" + escaped(verdict.word) + "</p><p>" + escaped(verdict.sentence) + "</p></div></div>\n";
}

void HtmlReport::put(const ReportPairs& pairs)
{
    mText += "<dl class=\"pairs\">\n";
    for (const auto& [name, value] : pairs.entries)
        mText += "<div><dt>" + escaped(name) + "</dt><dd>" + escaped(value) + "</dd></div>\n";
    mText += "</dl>\n";
}

void HtmlReport::put(const ReportFigures& figures)
{
    mText += "<dl class=\"figures\">\n";
    for (const auto& [name, value] : figures.entries)
        mText += "<div><dt>" + escaped(name) + "</dt><dd>" + escaped(value) + "</dd></div>\n";
    mText += "</dl>\n";
}

void HtmlReport::put(const ReportIncident& incident)
{
    mText += "<article><p class=\"incident\">";
    sign(incident.verdict, 18, incident.state);
    mText += "<span class=\"time\">" + escaped(incident.time) + "</span><span class=\"sentence\"><strong>" + escaped(incident.what) +
             "</strong>" + escaped(incident.rest) + "</span></p>\n";
    if (incident.graph.draw)
        put(incident.graph);
    mText += "</article>\n";
}

void HtmlReport::putRow(const std::vector<ReportColumn>& columns, qsizetype number)
{
    mText += "<tr>";
    for (const ReportColumn& column : columns) {
        const bool isHead = number < 0 || column.isHead;
        mText += isHead ? "<th scope=" : "<td";
        if (isHead)
            mText += number < 0 ? "\"col\"" : "\"row\"";
        mText += column.isNumber ? " class=\"number\">" : ">";
        mText += escaped(number < 0 ? column.title : column.cells.value(number)) + (isHead ? "</th>" : "</td>");
    }
    mText += "</tr>\n";
}

void HtmlReport::put(const ReportTable& table)
{
    if (table.columns.empty())
        return;
    mText += "<div class=\"wide\"><table>\n<caption>" + escaped(table.text) + "</caption>\n<thead>\n";
    putRow(table.columns, -1);
    mText += "</thead>\n<tbody>\n";
    for (qsizetype i = 0; i < table.columns.front().cells.size(); ++i)
        putRow(table.columns, i);
    mText += "</tbody>\n</table></div>\n";
}

void HtmlReport::put(const ReportPicture& picture)
{
    mText += "<figure>";
    image({kWidth, picture.height}, picture.text, picture.draw);
    mText += "</figure>\n";
}

void HtmlReport::sign(EVerdict verdict, int size, const QString& text)
{
    image({static_cast<double>(size), static_cast<double>(size)}, text, [verdict](QPainter& painter, const QSizeF& place) {
        VerdictSign::paint(painter, verdict, {QPointF(), place});
    });
}

void HtmlReport::image(const QSizeF& size, const QString& text, const ReportDrawing& draw)
{
    // The toolkit paints on an image without memory, and saves nothing of it, without a word.
    QImage image((size * kDots).toSize(), QImage::Format_RGB32);
    if (image.isNull())
        throw std::bad_alloc();
    image.setDevicePixelRatio(kDots);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter, size);
    painter.end();
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        throw std::bad_alloc();
    mText += "<img width=\"" + QByteArray::number(std::lround(size.width())) + "\" height=\"" +
             QByteArray::number(std::lround(size.height())) + "\" alt=\"" + escaped(text) + "\" src=\"data:image/png;base64," +
             png.toBase64() + "\">";
}

} // namespace ZARN
