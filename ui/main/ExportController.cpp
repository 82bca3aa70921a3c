#include "ui/main/ExportController.h"

#include "app/Property.h"
#include "card/CardContainer.h"
#include "export/ExportKml.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QWidget>

namespace ZARN {

ExportController::ExportController(const Session& session, QWidget* pWindow) : QObject(pWindow), mSession(session), mpWindow(pWindow) {}

bool ExportController::askFile(const char* key, const QString& title, const QString& suggestion, const QString& filter, QString& directory,
                               QString& name)
{
    const QString start = QString::fromStdString(mSession.property.getString(key, "."));
    const QString path = QFileDialog::getSaveFileName(mpWindow, title, start + "/" + suggestion, filter, nullptr, QFileDialog::DontUseNativeDialog);
    if (path.isEmpty())
        return false;
    directory = QFileInfo(path).absolutePath();
    name = QFileInfo(path).fileName();
    mSession.property.setString(key, directory.toStdString());
    mSession.property.writeXmlFile();
    return true;
}

void ExportController::exportKml()
{
    mKmlOptions.read(mSession.property);
    QString directory;
    QString name;
    if (!askFile("KmlExportDir", tr("Save KML Export"), mSession.container.name() + ".kml", tr("KML Files (*.kml)"), directory, name))
        return;
    mKmlOptions.directory = directory.toStdString();
    mKmlOptions.fileName = name.toStdString();
    const RecordCycle* pCycle = mSession.container.loadedCycle();
    ExportKml exporter(mSession.console, mSession.profile, pCycle ? pCycle->dateTime : QDateTime());
    if (exporter.exportData(mSession.container.recordData(), mKmlOptions))
        Q_EMIT signalWritten(directory + "/" + name);
    else
        fail(tr("ZARN Warning"), tr("Exporting KML file failed !"), exporter.error());
}

void ExportController::exportCsv()
{
    const Property& property = mSession.property;
    const int separator = property.getInt("CsvLimiter", ';');
    mCsvOptions.separator = separator == ',' ? ',' : separator == '\t' ? '\t' : ';';
    mCsvOptions.resolution = property.getInt("CsvResolution", 100) == 10 ? 10 : 100;
    mCsvOptions.allParameters = property.getSwitch("CsvAllParameter", true);
    QString& directory = mCsvOptions.directory;
    QString& name = mCsvOptions.fileName;
    if (!askFile("CsvExportDir", tr("Save CSV Export"), "ExportZarn.csv", tr("CSV Files (*.csv)"), directory, name))
        return;
    ExportCsv exporter(mSession.profile);
    if (exporter.exportData(mSession.container.recordData(), mCsvOptions))
        Q_EMIT signalWritten(directory + "/" + name);
    else
        fail(tr("ZARN Viewer Warning"), tr("Exporting CSV file failed !"), exporter.error());
}

void ExportController::fail(const QString& title, const QString& text, const std::string& reason)
{
    QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Ok, mpWindow);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(QString::fromStdString(reason));
    box.exec();
}

} // namespace ZARN
