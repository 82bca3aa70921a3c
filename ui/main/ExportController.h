#pragma once

#include "export/ExportCsv.h"
#include "export/KmlExportOptions.h"
#include "project/Session.h"

#include <QObject>

#include <functional>

class QWidget;

namespace ZARN {

class CardController;

/// Exports the loaded data: asks for the options, shows the progress, and says when it failed. Owned by the main window.
class ExportController : public QObject {
    Q_OBJECT

public:
    ExportController(const Session& session, CardController& cards, QWidget* pWindow);

    void exportKml();
    void exportCsv();
    void exportGpx();
    void writeReport();

Q_SIGNALS:
    /// A file was written.
    void signalWritten(const QString& path);

private:
    /// Does the work under the eyes of the user, loading being put off meanwhile. @param work returns whether it succeeded.
    /// @return whether it did, or was cancelled.
    bool run(const QString& path, const std::function<bool(Progress&)>& work);
    /// Asks for a file in the folder that the setting remembers. @return its path; empty when the user cancels.
    QString askFile(const char* setting, const QString& title, const QString& name, const QString& filter);
    void fail(const QString& title, const QString& text, const std::string& reason);

    Session mSession;
    CardController& mCards;
    QWidget* mpWindow;
    CsvExportOptions mCsvOptions;
    KmlExportOptions mKmlOptions;
};

} // namespace ZARN
