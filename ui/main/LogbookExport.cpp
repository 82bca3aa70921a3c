#include "ui/main/LogbookExport.h"

#include "app/FileName.h"
#include "app/Property.h"
#include "app/Revision.h"
#include "app/SafeFile.h"
#include "app/Settings.h"
#include "export/ui/ExportTarget.h"
#include "profile/Profile.h"
#include "report/PaperReport.h"
#include "report/ReportText.h"
#include "ui/logbook/model/LogbookCsv.h"
#include "ui/logbook/model/LogbookModel.h"

#include <QFileDialog>
#include <QLocale>
#include <QMessageBox>

namespace ZARN {

namespace {

/// The flights as a document: what they come to, and the table.
ReportDocument documentOf(const std::vector<LogbookEntry>& entries, const LogbookExport::Words& words, const LogbookUnits& units, const QStringList& hidden)
{
    ReportDocument document;
    //: code of the language that this is translated to
    document.language = LogbookExport::tr("en");
    document.title = LogbookExport::tr("Logbook");
    document.head = words.title;
    document.isLandscape = true;
    document.creator = reportText(Revision::getRevisionString());
    ReportTable table{LogbookExport::tr("Flights"), {}};
    for (int column = 0; column < LogbookModel::eColumns; ++column) {
        if (hidden.contains(LogbookModel::key(column)))
            continue;
        table.columns.push_back({LogbookModel::title(column, units), LogbookModel::isNumber(column), {}, column == LogbookModel::eDate});
        for (const LogbookEntry& entry : entries)
            table.columns.back().cells << printable(LogbookModel::text(entry, column, units));
    }
    document.add(ReportParagraph{words.totals + "."});
    document.add(std::move(table));
    return document;
}

std::string writePdf(SafeFile& file, const ReportDocument& document, bool isLetter, Progress& progress)
{
    const bool isWritten = file.open() && PaperReport(document, isLetter).write(file, progress) && !progress.isCancelled() && file.commit();
    return isWritten ? std::string() : file.error();
}

} // namespace

LogbookExport::LogbookExport(const Session& session, QString store, QWidget* pWindow)
    : QObject(pWindow), mSession(session), mStore(std::move(store)), mProgress(pWindow)
{
}

CsvForm LogbookExport::form() const
{
    const auto separator = static_cast<char>(Settings::kCsvLimiter.get(mSession.property));
    return CsvForm::of(Settings::kCsvLocale.text(mSession.property), separator).value_or(CsvForm{separator});
}

QString LogbookExport::askFile(QWidget* pParent, const QString& title, const QString& name, const QStringList& filters)
{
    QFileDialog dialog(pParent, title, Settings::kLogbookDir.text(mSession.property));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(QFileInfo(name).suffix());
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
        dialog.setDefaultSuffix(filter.contains("*.pdf") ? "pdf" : "csv");
        const QStringList chosen = dialog.selectedFiles();
        if (!chosen.isEmpty())
            dialog.selectFile(QFileInfo(chosen.first()).completeBaseName() + "." + dialog.defaultSuffix());
    });
    dialog.selectFile(name);
    if (mProgress.isRunning() || dialog.exec() != QDialog::Accepted)
        return {};
    const QString path = dialog.selectedFiles().constFirst();
    const QFileInfo file(path);
    if (const QString problem = ExportTarget(mSession.container, file.absolutePath(), file.fileName()).recordProblem();
        !problem.isEmpty()) {
        tell(pParent, problem);
        return {};
    }
    Settings::kLogbookDir.set(mSession.property, QFileInfo(path).absolutePath());
    mSession.property.writeXmlFile();
    return path;
}

void LogbookExport::exportFlights(QWidget* pParent, const std::vector<int64_t>& flights, const Words& words)
{
    const QString path = askFile(pParent, tr("Export logbook"), tr("Logbook") + ".csv", {tr("CSV Files (*.csv)"), tr("PDF Files (*.pdf)")});
    if (path.isEmpty())
        return;
    const QStringList hidden = Settings::kLogbookHidden.text(mSession.property).split(',');
    const bool isLetter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    run(pParent, path,
        [flights, words, isLetter, store = encodeFileName(mStore), form = form(), hidden, units = LogbookUnits(mSession.profile.context())](const std::string& name, Progress& progress) {
            LogbookReader reader(store);
            std::vector<LogbookEntry> entries = reader.entries(flights);
            if (!reader.error().empty())
                return reader.error();
            std::erase_if(entries, [](const LogbookEntry& entry) { return entry.flight == 0; }); // gone meanwhile
            SafeFile file(name);
            if (QString::fromStdString(name).endsWith(".pdf", Qt::CaseInsensitive))
                return writePdf(file, documentOf(entries, words, units, hidden), isLetter, progress);
            return LogbookCsv(form).writeFlights(file, entries, units) ? std::string() : file.error();
        });
}

void LogbookExport::exportNotes(QWidget* pParent, const std::vector<LogbookNote>& notes)
{
    const QString path = askFile(pParent, tr("Export notes"), tr("Notes") + ".csv", {tr("CSV Files (*.csv)")});
    if (path.isEmpty())
        return;
    run(pParent, path, [notes, form = form()](const std::string& name, Progress&) {
        SafeFile file(name);
        return LogbookCsv(form).writeNotes(file, notes) ? std::string() : file.error();
    });
}

void LogbookExport::run(QWidget* pParent, const QString& path, const Write& write)
{
    const auto pError = std::make_shared<std::string>();
    mProgress.start(
        tr("Writing %1 ...").arg(QFileInfo(path).fileName()),
        [write, pError, name = encodeFileName(path)](Progress& progress) { *pError = write(name, progress); },
        [this, pParent, path, pError] {
            const QString error = mProgress.error().isEmpty() ? QString::fromStdString(*pError) : mProgress.error();
            if (error.isEmpty() && !mProgress.isCancelled())
                Q_EMIT signalWritten(path);
            if (error.isEmpty() || mProgress.isCancelled())
                return;
            tell(pParent, tr("The file could not be written.") + "\n" + error);
        },
        pParent);
}

void LogbookExport::tell(QWidget* pParent, const QString& problem)
{
    QMessageBox box(QMessageBox::Critical, tr("ZARN Warning"), problem, QMessageBox::Ok, pParent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace ZARN
