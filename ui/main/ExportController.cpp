#include "ui/main/ExportController.h"

#include "app/Property.h"
#include "app/SafeFile.h"
#include "card/CardContainer.h"
#include "export/ExportGpx.h"
#include "export/ExportKml.h"
#include "export/ui/DialogExportCsv.h"
#include "export/ui/DialogExportKml.h"
#include "export/ui/ExportProgress.h"
#include "report/FlightReport.h"
#include "ui/main/CardController.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>

namespace ZARN {

ExportController::ExportController(const Session& session, CardController& cards, QWidget* pWindow)
    : QObject(pWindow), mSession(session), mCards(cards), mpWindow(pWindow)
{
}

void ExportController::exportKml()
{
    mKmlOptions.fileName = (mSession.container.name() + ".kml").toStdString();
    if (!DialogExportKml(mSession, mpWindow).getOptions(mKmlOptions))
        return;
    const RecordCycle* pCycle = mSession.container.loadedCycle();
    ExportKml exporter(mSession.console, mSession.profile, pCycle ? pCycle->dateTime : QDateTime());
    const auto work = [&](Progress& progress) { return exporter.exportData(mSession.container.recordData(), mKmlOptions, progress); };
    if (!run(QString::fromStdString(mKmlOptions.directory + "/" + mKmlOptions.fileName), work))
        fail(tr("ZARN Warning"), tr("Exporting KML file failed !"), exporter.error());
}

void ExportController::exportCsv()
{
    mCsvOptions.directory = QString::fromStdString(mSession.property.getString("CsvExportDir", "."));
    mCsvOptions.fileName = "ExportZarn.csv";
    if (!DialogExportCsv(mSession, mpWindow).getOptions(mCsvOptions))
        return;
    ExportCsv exporter(mSession.profile);
    const auto work = [&](Progress& progress) { return exporter.exportData(mSession.container.recordData(), mCsvOptions, progress); };
    if (!run(mCsvOptions.directory + "/" + mCsvOptions.fileName, work))
        fail(tr("ZARN Viewer Warning"), tr("Exporting CSV file failed !"), exporter.error());
}

void ExportController::exportGpx()
{
    const QString path = askFile("GpxExportDir", tr("Save GPX Export"), mSession.container.name() + ".gpx", tr("GPX Files (*.gpx)"));
    if (path.isEmpty())
        return;
    ExportGpx exporter(mSession.profile);
    const auto work = [&](Progress& progress) {
        SafeFile file(QFile::encodeName(path).toStdString());
        return exporter.exportData(mSession.container, file, progress);
    };
    if (!run(path, work))
        fail(tr("ZARN Warning"), tr("Exporting GPX file failed !"), exporter.error());
}

void ExportController::writeReport()
{
    const QString path = askFile("ReportDir", tr("Save Flight Report"), mSession.container.name() + ".pdf", tr("PDF Files (*.pdf)"));
    if (path.isEmpty())
        return;
    FlightReport report(mSession.container, mSession.profile);
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
    mSession.property.setString(setting, QFileInfo(path).absolutePath().toStdString());
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
    QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Ok, mpWindow);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(QString::fromStdString(reason));
    box.exec();
}

} // namespace ZARN
