#include "ui/main/ExportController.h"

#include "app/Property.h"
#include "app/SafeFile.h"
#include "app/Settings.h"
#include "app/TimeText.h"
#include "card/CardContainer.h"
#include "export/ExportGpx.h"
#include "export/ExportKml.h"
#include "export/ui/DialogExportCsv.h"
#include "export/ui/DialogExportKml.h"
#include "export/ui/ExportTarget.h"
#include "export/ui/ReportFileDialog.h"
#include "profile/Profile.h"
#include "project/DataName.h"
#include "project/RecordSession.h"
#include "report/FlightReport.h"
#include "ui/main/CardController.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>

#include <algorithm>
#include <memory>

namespace ZARN {

ExportController::ExportController(const Session& session, CardController& cards, ShownSpan graphSpan, QWidget* pWindow)
    : QObject(pWindow), mSession(session), mCards(cards), mGraphSpan(std::move(graphSpan)), mpWindow(pWindow), mProgress(pWindow)
{
}

bool ExportController::mayExport()
{
    if (mProgress.isRunning())
        return false;
    if (mCards.hasData())
        return true;
    say(QMessageBox::Information, tr("ZARN Warning"), tr("No data of this card is loaded."),
        tr("Choose a power cycle in the card browser first."));
    return false;
}

QString ExportController::fileName(int flight, const QString& suffix) const
{
    return dataName(mSession.container, flight) + suffix;
}

QString ExportController::selectionName(const QString& suffix) const
{
    return fileName(mSession.container.selectedFlightNumber(), suffix);
}

std::vector<ExportPart> ExportController::parts(const QString& suffix) const
{
    std::vector<ExportPart> parts{{tr("Everything that is loaded"), fileName(0, suffix), {}}};
    if (const int flight = mSession.container.selectedFlightNumber()) {
        const RecordFlight& selected = mSession.container.selectedFlight();
        parts.push_back({tr("Flight %1").arg(flight), fileName(flight, suffix), TimeSpan{selected.startTime, selected.endTime}});
    }
    if (std::optional<TimeSpan> shown = mGraphSpan()) {
        shown->start = std::max(shown->start, 0.0); // nothing is recorded before
        const auto time = [](double seconds) { return timeOfDayText(wholeMilliseconds(seconds), false); };
        const TimeReference times = TimeReference::of(mSession.property, mSession.container);
        parts.push_back({tr("What the graph shows, %1 to %2").arg(times.shortText(shown->start), times.shortText(shown->end)),
                         tr("%1 from %2").arg(fileName(0, {}), time(shown->start).replace(':', '-')) + suffix, shown});
    }
    return parts;
}

void ExportController::exportKml()
{
    if (!mayExport())
        return;
    mKmlOptions.fileName = fileName(0, ".kml").toStdString();
    if (!DialogExportKml(mSession, mpWindow).getOptions(mKmlOptions, parts(".kml")))
        return;
    const LoadedCard loaded = mSession.container.loaded();
    const auto pExporter = std::make_shared<ExportKml>(mSession.console, loaded.context, mSession.profile.selection(), loaded.powerUp);
    pExporter->setTracksOf(loaded);
    const auto work = [pExporter, loaded, options = mKmlOptions](Progress& progress) {
        return Outcome{pExporter->exportData(*loaded.pRecord, options, progress), pExporter->error()};
    };
    run(QString::fromStdString(mKmlOptions.directory + "/" + mKmlOptions.fileName), work,
        {tr("ZARN Warning"), tr("Exporting KML file failed !")}, [this, pExporter] {
            if (!pExporter->hasPosition())
                say(QMessageBox::Information, tr("ZARN Warning"), tr("No position was recorded: the KML file holds no flight path."));
        });
}

void ExportController::exportCsv()
{
    if (!mayExport())
        return;
    mCsvOptions.directory = Settings::kCsvExportDir.text(mSession.property);
    mCsvOptions.fileName = fileName(0, ".csv");
    if (!DialogExportCsv(mSession, mpWindow).getOptions(mCsvOptions, parts(".csv")))
        return;
    mCsvOptions.times = TimeReference::of(mSession.property, mSession.container);
    const auto work = [loaded = mSession.container.loaded(), selection = mSession.profile.selection(),
                       options = mCsvOptions](Progress& progress) {
        ExportCsv exporter(loaded.context, selection, loaded.powerUp);
        const bool written = exporter.exportData(*loaded.pRecord, options, progress);
        return Outcome{written, exporter.error()};
    };
    run(mCsvOptions.directory + "/" + mCsvOptions.fileName, work, {tr("ZARN Viewer Warning"), tr("Exporting CSV file failed !")});
}

void ExportController::exportGpx()
{
    if (!mayExport())
        return;
    const LoadedCard loaded = mSession.container.loaded();
    QFileDialog dialog(mpWindow, tr("Save GPX Export"), Settings::kGpxExportDir.text(mSession.property), tr("GPX Files (*.gpx)"));
    const bool isChoice = loaded.flightNumber == 0 && loaded.flights.size() > 1;
    const QString perFlight = tr("GPX Files, one track a flight (*.gpx)");
    if (isChoice)
        dialog.setNameFilters(dialog.nameFilters() << perFlight);
    if (isChoice && Settings::kGpxTrackPerFlight.get(mSession.property))
        dialog.selectNameFilter(perFlight);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("gpx"); // part of the name when the dialog asks whether to replace a file
    dialog.selectFile(selectionName(".gpx"));
    const QString path = askFile(Settings::kGpxExportDir, dialog);
    if (path.isEmpty())
        return;
    const auto tracks = isChoice && dialog.selectedNameFilter() == perFlight ? ExportGpx::eTrackPerFlight : ExportGpx::eOneTrack;
    if (isChoice) {
        Settings::kGpxTrackPerFlight.set(mSession.property, tracks == ExportGpx::eTrackPerFlight);
        mSession.property.writeXmlFile();
    }
    const auto work = [path, loaded, tracks](Progress& progress) {
        ExportGpx exporter;
        SafeFile file(QFile::encodeName(path).toStdString());
        const bool written = exporter.exportData(loaded, file, tracks, progress);
        return Outcome{written, exporter.error()};
    };
    run(path, work, {tr("ZARN Warning"), tr("Exporting GPX file failed !")});
}

void ExportController::writeReport(const RecordSession& record, const Comparison& comparison)
{
    if (!mayExport())
        return;
    const LoadedCard loaded = mSession.container.loaded();
    std::vector<ReportFileDialog::Part> parts{
        {loaded.cycle ? tr("The whole power cycle") : tr("Everything that is loaded"), fileName(0, {})}};
    for (int flight = 1; loaded.cycle && flight <= static_cast<int>(loaded.flights.size()); ++flight)
        parts.push_back({tr("Flight %1").arg(flight), fileName(flight, {})});
    ReportFileDialog dialog(tr("Save Flight Report"), Settings::kReportDir.text(mSession.property), std::move(parts), loaded.flightNumber,
                            mpWindow);
    const QString path = askFile(Settings::kReportDir, dialog);
    if (path.isEmpty())
        return;
    const auto format = FlightReport::formatOf(path);
    if (!format)
        return say(QMessageBox::Critical, tr("ZARN Warning"), tr("A report is a PDF or an HTML file: its name ends in .pdf or .html."));
    const ReportOptions options{QLocale::system().measurementSystem() == QLocale::ImperialUSSystem, *format};
    ReportSubject subject{loaded.withFlight(dialog.part()), record.notes(), TimeReference::wanted(mSession.property), comparison};
    if (Settings::kGraphNormal.get(mSession.property))
        subject.normal = record.normal();
    const auto work = [path, options, subject](Progress& progress) {
        FlightReport report(subject);
        SafeFile file(QFile::encodeName(path).toStdString());
        const bool written = report.write(file, options, progress);
        return Outcome{written, report.error()};
    };
    run(path, work, {tr("ZARN Warning"), tr("Writing the flight report failed !")});
}

QString ExportController::askFile(const TextSetting& setting, QFileDialog& dialog)
{
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const QString path = dialog.selectedFiles().constFirst();
    const QFileInfo file(path);
    if (const QString problem = ExportTarget(mSession.container, file.absolutePath(), file.fileName()).recordProblem();
        !problem.isEmpty()) {
        say(QMessageBox::Critical, tr("ZARN Warning"), problem);
        return {};
    }
    setting.set(mSession.property, file.absolutePath());
    mSession.property.writeXmlFile();
    return path;
}

void ExportController::run(const QString& path, const Work& work, const Failure& failure, const std::function<void()>& whenWritten)
{
    const auto pOutcome = std::make_shared<Outcome>();
    const auto whenDone = [this, path, failure, whenWritten, pOutcome] {
        if (pOutcome->written) {
            Q_EMIT signalWritten(path);
            if (whenWritten)
                whenWritten();
        } else if (const QString& thrown = mProgress.error(); !thrown.isEmpty() || !mProgress.isCancelled()) {
            say(QMessageBox::Critical, failure.title, failure.text, thrown.isEmpty() ? QString::fromStdString(pOutcome->error) : thrown);
        }
    };
    const auto onThread = [work, pOutcome](Progress& progress) { *pOutcome = work(progress); };
    mProgress.start(tr("Writing %1 ...").arg(QFileInfo(path).fileName()), onThread, whenDone);
}

void ExportController::say(QMessageBox::Icon icon, const QString& title, const QString& text, const QString& information)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok, mpWindow);
    box.setInformativeText(information);
    for (QLabel* pLabel : box.findChildren<QLabel*>()) // a path in either may hold what looks like markup
        pLabel->setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace ZARN
