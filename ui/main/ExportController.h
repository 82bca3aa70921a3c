#pragma once

#include "export/ExportCsv.h"
#include "export/KmlExportOptions.h"
#include "export/ui/ExportPart.h"
#include "export/ui/ExportProgress.h"
#include "project/Session.h"

#include <QMessageBox>
#include <QObject>

#include <functional>
#include <vector>

class QFileDialog;
class QWidget;

namespace ZARN {

class CardController;
class RecordSession;
struct Comparison;

/// Exports the loaded data of the card that is shown: asks for the options, shows the progress, and says when it failed. Owned by the main
/// window.
class ExportController : public QObject {
    Q_OBJECT

public:
    using ShownSpan = std::function<std::optional<TimeSpan>()>;

    /// @param graphSpan tells what the graph shows
    ExportController(const Session& session, CardController& cards, ShownSpan graphSpan, QWidget* pWindow);

    void exportKml();
    void exportCsv();
    void exportGpx();
    /// @param comparison what the graph compares the loaded data with
    void writeReport(const RecordSession& record, const Comparison& comparison);

Q_SIGNALS:
    /// A file was written.
    void signalWritten(const QString& path);

private:
    /// What became of a file: the reason is empty when it was written, or the user ended it.
    struct Outcome {
        bool written = false;
        std::string error;
    };
    using Work = std::function<Outcome(Progress&)>;
    /// What is said when a file could not be written.
    struct Failure {
        QString title;
        QString text;
    };

    /// Whether no export is running, and records are loaded, and of the card that is shown. Tells the user when there are none.
    bool mayExport();
    /// Names card, cycle and flight.
    [[nodiscard]] QString fileName(int flight, const QString& suffix) const;
    [[nodiscard]] QString selectionName(const QString& suffix) const;
    [[nodiscard]] std::vector<ExportPart> parts(const QString& suffix) const;
    /// Does the work on a thread of its own, which works on what it holds itself: the windows go on, and may load something else.
    void run(const QString& path, const Work& work, const Failure& failure, const std::function<void()>& whenWritten = {});
    /// Asks for a file, whose folder the setting is to remember. @return its path; empty when the user cancels.
    QString askFile(const TextSetting& setting, QFileDialog& dialog);
    void say(QMessageBox::Icon icon, const QString& title, const QString& text, const QString& information = {});

    Session mSession;
    CardController& mCards;
    ShownSpan mGraphSpan;
    QWidget* mpWindow;
    CsvExportOptions mCsvOptions;
    KmlExportOptions mKmlOptions;
    ExportProgress mProgress;
};

} // namespace ZARN
