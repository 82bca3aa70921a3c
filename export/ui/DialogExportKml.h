#pragma once

#include "export/KmlExportOptions.h"
#include "export/ui/ExportPart.h"
#include "project/Session.h"

#include <QWizard>

#include <vector>

namespace ZARN {

class DialogExportKmlOptions;
class DialogExportKmlPath;
class DialogExportKmlPlacemark;
class ExportOutlook;

/// The wizard of the KML export.
class DialogExportKml : public QWizard {
    Q_OBJECT

public:
    explicit DialogExportKml(const Session& session, QWidget* pParent = nullptr);

    /// Asks the user for the options, beginning with what the settings have and the file name given. @param parts of the data that can be
    /// exported. @return whether the user accepts: then the options are the user's, and the settings remember all but the file name and the part.
    bool getOptions(KmlExportOptions& options, const std::vector<ExportPart>& parts = {});
    void accept() override;

private:
    void slotChanged();
    /// What is chosen now.
    [[nodiscard]] KmlExportOptions chosen() const;
    [[nodiscard]] ExportOutlook outlook() const;

    Session mSession;
    DialogExportKmlPath* mpPath;
    DialogExportKmlOptions* mpOptions;
    DialogExportKmlPlacemark* mpPlacemark;
};

} // namespace ZARN
