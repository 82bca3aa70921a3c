#include "report/FlightReport.h"

#include "analysis/LimitEvents.h"
#include "analysis/WarningEvents.h"
#include "app/Revision.h"
#include "app/SafeFile.h"
#include "report/HtmlReport.h"
#include "report/PaperReport.h"
#include "report/ReportComparison.h"
#include "report/ReportFront.h"
#include "report/ReportGraph.h"
#include "report/ReportMap.h"
#include "report/ReportTables.h"
#include "report/ReportText.h"

#include <QFileInfo>

namespace ZARN {

namespace {

constexpr double kGraphHeight = 440.0; // points
constexpr double kMapHeight = 440.0;
constexpr double kSmallMap = 160.0; // of an aircraft that stood

} // namespace

std::optional<EReportFormat> FlightReport::formatOf(const QString& fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (suffix.isEmpty() || suffix == "pdf")
        return EReportFormat::ePdf;
    if (suffix == "html" || suffix == "htm")
        return EReportFormat::eHtml;
    return {};
}

bool FlightReport::write(SafeFile& file, const ReportOptions& options, Progress& progress)
{
    mError.clear();
    ReportDocument document;
    const bool isOpen = file.open();
    if (!isOpen || !fill(document, progress)) {
        mError = file.error();
        return false;
    }
    const bool isWritten = options.format == EReportFormat::eHtml ? HtmlReport(document).write(file, progress)
                                                                  : PaperReport(document, options.isLetter).write(file, progress);
    if (isWritten && !progress.isCancelled() && file.commit())
        return true;
    mError = file.error();
    return false;
}

QString FlightReport::head() const
{
    const ProfileModel& model = mLoaded.context.model();
    QStringList parts{mLoaded.card};
    parts << (mLoaded.cycle ? tr("power cycle %1").arg(*mLoaded.cycle) : tr("single files"));
    if (mLoaded.flightNumber > 0)
        parts << tr("flight %1").arg(mLoaded.flightNumber);
    parts << tr("profile %1").arg(reportText(model.name));
    if (!model.variant.empty())
        parts << tr("variant %1").arg(reportText(model.variant));
    return parts.join(", ");
}

bool FlightReport::fill(ReportDocument& document, Progress& progress)
{
    const auto isWanted = [&](int percent) {
        progress.setProgress(percent);
        return !progress.isCancelled();
    };
    //: code of the language that this is translated to
    document.language = tr("en");
    document.title = tr("Flight report");
    document.head = head();
    document.creator = reportText(Revision::getRevisionString());
    const ReportFront front(mSubject);
    mSubject.phases = front.phases();
    front.addTo(document);
    if (!isWanted(20))
        return false;
    const ReportTables tables(mSubject);
    tables.addUnit(document);
    tables.addFlights(document);
    const EventList limits = limitEvents(*mLoaded.pRecord, mLoaded.context);
    tables.addEvents(document, limits, tr("Exceeded limits"), tr("No limit was exceeded."), {tr("ok"), tr("warning"), tr("limit")});
    if (!isWanted(30))
        return false;
    const EventList lamps = warningEvents(*mLoaded.pRecord, mLoaded.context);
    tables.addEvents(document, lamps, tr("Warning lamps"), tr("No warning lamp was lit."), {tr("dark"), tr("yellow"), tr("red")});
    if (!isWanted(35))
        return false;
    tables.addFaults(document, front.engine());
    if (!isWanted(40))
        return false;
    const auto pMap = std::make_shared<ReportMap>(mLoaded, limits);
    if (pMap->isSmall())
        addMap(document, pMap);
    addGraph(document, front.incidents(), limits); // takes what is left of a page
    if (!pMap->isSmall())
        addMap(document, pMap);
    return isWanted(50);
}

void FlightReport::addGraph(ReportDocument& document, const std::vector<Incident>& incidents, const EventList& limits) const
{
    const auto pGraph = std::make_shared<ReportGraph>(mSubject, incidents, limits);
    document.add(ReportHeading{tr("Main parameters")});
    if (pGraph->isEmpty())
        return document.add(ReportParagraph{tr("None of them was recorded.")});
    if (pGraph->leftOut() > 0)
        document.add(ReportParagraph{tr("Not shown: %n more that exceeded a limit", nullptr, pGraph->leftOut()), ReportParagraph::eQuiet});
    if (pGraph->hasNormal())
        document.add(ReportParagraph{tr("Shaded: where nine of ten samples of the earlier flights of this engine lay, by phase of flight."),
                                     ReportParagraph::eQuiet});
    document.add(ReportPicture{tr("Over time: %1").arg(pGraph->names().join(", ")), kGraphHeight, true,
                               [pGraph](QPainter& painter, const QSizeF& size) {
                                   PaperCanvas canvas(painter);
                                   pGraph->draw(canvas, {QPointF(), size});
                               }});
    ReportComparison::addTo(document, mSubject, *pGraph);
}

void FlightReport::addMap(ReportDocument& document, const std::shared_ptr<ReportMap>& pMap)
{
    document.add(ReportHeading{tr("Flight path")});
    if (pMap->isEmpty())
        return document.add(ReportParagraph{tr("No position was recorded.")});
    const QString text = tr("Green: begin. Black: end. Orange: exceeded limits, how many at a place. Grey lines: degrees and minutes.");
    document.add(ReportParagraph{text, ReportParagraph::eQuiet});
    document.add(ReportPicture{tr("Map of the flight path"), pMap->isSmall() ? kSmallMap : kMapHeight, !pMap->isSmall(),
                               [pMap](QPainter& painter, const QSizeF& size) {
                                   PaperCanvas canvas(painter);
                                   pMap->draw(painter, canvas, {QPointF(), size});
                               }});
}

} // namespace ZARN
