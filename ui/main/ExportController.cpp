#include "ui/main/ExportController.h"

#include "app/Property.h"
#include "app/SafeFile.h"
#include "card/CardContainer.h"
#include "card/PowerUp.h"
#include "export/ExportGpx.h"
#include "export/ExportKml.h"
#include "export/ui/DialogExportCsv.h"
#include "export/ui/DialogExportKml.h"
#include "export/ui/ExportProgress.h"
#include "export/ui/ExportTarget.h"
#include "profile/Profile.h"
#include "report/FlightReport.h"
#include "ui/main/CardController.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>

#include <algorithm>

namespace ZARN {

ExportController::ExportController(const Session& session, CardController& cards, ShownSpan graphSpan, QWidget* pWindow)
    : QObject(pWindow), mSession(session), mCards(cards), mGraphSpan(std::move(graphSpan)), mpWindow(pWindow)
{
}

bool ExportController::hasData()
{
    if (mCards.hasData())
        return true;
    say(QMessageBox::Information, tr("ZARN Warning"), tr("No data of this card is loaded."), tr("Choose a power cycle in the card browser first."));
    return false;
}

QString ExportController::fileName(int flight, const QString& suffix) const
{
    const QString card = mSession.container.name().isEmpty() ? QStringLiteral("ZARN") : mSession.container.name();
    const auto cycle = mSession.container.loadedCycleNumber();
    if (!cycle)
        return card + suffix;
    // All at once: what a name contains is never taken for the next mark.
    const QString number = QString::number(*cycle);
    return (flight > 0 ? tr("%1 cycle %2 flight %3").arg(card, number, QString::number(flight)) : tr("%1 cycle %2").arg(card, number)) + suffix;
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
        const auto time = [](double seconds) { return CardContainer::time(seconds).left(8); };
        parts.push_back({tr("What the graph shows, %1 to %2").arg(time(shown->start), time(shown->end)),
                         tr("%1 from %2").arg(fileName(0, {}), time(shown->start).replace(':', '-')) + suffix, shown});
    }
    return parts;
}

void ExportController::exportKml()
{
    if (!hasData())
        return;
    mKmlOptions.fileName = fileName(0, ".kml").toStdString();
    if (!DialogExportKml(mSession, mpWindow).getOptions(mKmlOptions, parts(".kml")))
        return;
    ExportKml exporter(mSession.console, mSession.profile, mSession.profile.selection(), PowerUp::ofLoaded(mSession.container));
    bool isPathMissing = false;
    const auto work = [&](Progress& progress) {
        const bool written = exporter.exportData(mSession.container.recordData(), mKmlOptions, progress);
        isPathMissing = written && !exporter.hasPosition();
        return written;
    };
    if (!run(QString::fromStdString(mKmlOptions.directory + "/" + mKmlOptions.fileName), work))
        fail(tr("ZARN Warning"), tr("Exporting KML file failed !"), exporter.error());
    else if (isPathMissing)
        say(QMessageBox::Information, tr("ZARN Warning"), tr("No position was recorded: the KML file holds no flight path."));
}

void ExportController::exportCsv()
{
    if (!hasData())
        return;
    mCsvOptions.directory = QString::fromStdString(mSession.property.getString("CsvExportDir", "."));
    mCsvOptions.fileName = fileName(0, ".csv");
    if (!DialogExportCsv(mSession, mpWindow).getOptions(mCsvOptions, parts(".csv")))
        return;
    ExportCsv exporter(mSession.profile, mSession.profile.selection());
    const auto work = [&](Progress& progress) { return exporter.exportData(mSession.container.recordData(), mCsvOptions, progress); };
    if (!run(mCsvOptions.directory + "/" + mCsvOptions.fileName, work))
        fail(tr("ZARN Viewer Warning"), tr("Exporting CSV file failed !"), exporter.error());
}

void ExportController::exportGpx()
{
    if (!hasData())
        return;
    const QString path = askFile("GpxExportDir", tr("Save GPX Export"), selectionName(".gpx"), tr("GPX Files (*.gpx)"));
    if (path.isEmpty())
        return;
    ExportGpx exporter;
    const auto work = [&](Progress& progress) {
        SafeFile file(QFile::encodeName(path).toStdString());
        return exporter.exportData(mSession.container.loaded(), file, progress);
    };
    if (!run(path, work))
        fail(tr("ZARN Warning"), tr("Exporting GPX file failed !"), exporter.error());
}

void ExportController::writeReport()
{
    if (!hasData())
        return;
    const QString path = askFile("ReportDir", tr("Save Flight Report"), selectionName(".pdf"), tr("PDF Files (*.pdf)"));
    if (path.isEmpty())
        return;
    FlightReport report(mSession.container.loaded());
    const ReportOptions paper{QLocale::system().measurementSystem() == QLocale::ImperialUSSystem};
    const auto work = [&](Progress& progress) {
        SafeFile file(QFile::encodeName(path).toStdString());
        return report.write(file, paper, progress);
    };
    if (!run(path, work))
        fail(tr("ZARN Warning"), tr("Writing the flight report failed !"), report.error());
}

QString ExportController::askFile(const char* setting, const QString& title, const QString& name, const QString& filter)
{
    const QString folder = QString::fromStdString(mSession.property.getString(setting, "."));
    QFileDialog dialog(mpWindow, title, folder, filter);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QFileInfo(name).suffix()); // part of the name when the dialog asks whether to replace a file
    dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const QString path = dialog.selectedFiles().constFirst();
    const QFileInfo file(path);
    if (const QString problem = ExportTarget(mSession.container, file.absolutePath(), file.fileName()).recordProblem(); !problem.isEmpty()) {
        say(QMessageBox::Critical, tr("ZARN Warning"), problem);
        return {};
    }
    mSession.property.setString(setting, file.absolutePath().toStdString());
    mSession.property.writeXmlFile();
    return path;
}

bool ExportController::run(const QString& path, const std::function<bool(Progress&)>& work)
{
    ExportProgress progress(tr("Writing %1 ...").arg(QFileInfo(path).fileName()), mpWindow);
    mCards.hold(true);
    const bool written = work(progress);
    mCards.hold(false);
    if (written)
        Q_EMIT signalWritten(path);
    return written || progress.isCancelled();
}

void ExportController::fail(const QString& title, const QString& text, const std::string& reason)
{
    say(QMessageBox::Critical, title, text, QString::fromStdString(reason));
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
