#pragma once

#include "export/ExportCsv.h"
#include "export/KmlExportOptions.h"
#include "project/Session.h"

#include <QObject>

class QWidget;

namespace ZARN {

/// Exports the loaded data: asks for the file, takes the other options from the settings, and says when it failed. Owned by the
/// main window.
class ExportController : public QObject {
    Q_OBJECT

public:
    ExportController(const Session& session, QWidget* pWindow);

    void exportKml();
    void exportCsv();

Q_SIGNALS:
    /// A file was written.
    void signalWritten(const QString& path);

private:
    bool askFile(const char* key, const QString& title, const QString& suggestion, const QString& filter, QString& directory, QString& name);
    void fail(const QString& title, const QString& text, const std::string& reason);

    Session mSession;
    QWidget* mpWindow;
    CsvExportOptions mCsvOptions;
    KmlExportOptions mKmlOptions;
};

} // namespace ZARN
