#pragma once

#include "export/KmlExportOptions.h"
#include "project/Session.h"

#include <QWizard>

namespace ZARN {

class DialogExportKmlOptions;
class DialogExportKmlPath;
class DialogExportKmlPlacemark;

/// The wizard of the KML export.
class DialogExportKml : public QWizard {
    Q_OBJECT

public:
    explicit DialogExportKml(const Session& session, QWidget* pParent = nullptr);

    /// Asks the user for the options, beginning with what the settings have and the file name given. @return whether the user accepts:
    /// then the options are the user's, and the settings remember all but the file name.
    bool getOptions(KmlExportOptions& options);

private:
    Session mSession;
    DialogExportKmlPath* mpPath;
    DialogExportKmlOptions* mpOptions;
    DialogExportKmlPlacemark* mpPlacemark;
};

} // namespace ZARN
