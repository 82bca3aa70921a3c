#pragma once

#include "export/ExportCsv.h"
#include "export/ui/ExportPart.h"
#include "project/Session.h"

#include <QWizard>

#include <vector>

namespace ZARN {

class DialogExportCsvOptions;
class DialogExportCsvPath;
class ExportOutlook;

/// The wizard of the CSV export.
class DialogExportCsv : public QWizard {
    Q_OBJECT

public:
    explicit DialogExportCsv(const Session& session, QWidget* pParent = nullptr);

    /// Asks the user for the options, beginning with these and, over them, what the settings have. @param parts of the data that can be
    /// exported. @return whether the user accepts: then the options are the user's, and the settings remember all but the file name and the part.
    bool getOptions(CsvExportOptions& options, const std::vector<ExportPart>& parts = {});
    void accept() override;

private:
    void slotChanged();
    /// What is chosen now.
    [[nodiscard]] CsvExportOptions chosen() const;
    [[nodiscard]] ExportOutlook outlook() const;
    void loadSettings();
    void saveSettings() const;

    Session mSession;
    DialogExportCsvPath* mpPath;
    DialogExportCsvOptions* mpOptions;
};

} // namespace ZARN
