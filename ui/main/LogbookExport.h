#pragma once

#include "export/CsvForm.h"
#include "export/ui/ExportProgress.h"
#include "project/Session.h"
#include "store/LogbookReader.h"

namespace ZARN {

/// Writes what the logbook shows to files: its table as CSV or PDF, its notes as CSV. Asks for the file, shows the progress, and says what
/// failed. Owned by the logbook's controller.
class LogbookExport : public QObject {
    Q_OBJECT

public:
    /// @param store path of the file
    LogbookExport(const Session& session, QString store, QWidget* pWindow);

    /// What flights are, and what they come to, for people.
    struct Words {
        QString title;
        QString totals;
    };

    /// @param flights in the order in which they are shown
    void exportFlights(QWidget* pParent, const std::vector<int64_t>& flights, const Words& words);
    void exportNotes(QWidget* pParent, const std::vector<LogbookNote>& notes);

Q_SIGNALS:
    void signalWritten(const QString& path);

private:
    using Write = std::function<std::string(const std::string& path, Progress& progress)>;

    QString askFile(QWidget* pParent, const QString& title, const QString& name, const QStringList& filters);
    static void tell(QWidget* pParent, const QString& problem);
    void run(QWidget* pParent, const QString& path, const Write& write);
    [[nodiscard]] CsvForm form() const;

    Session mSession;
    const QString mStore;
    ExportProgress mProgress;
};

} // namespace ZARN
