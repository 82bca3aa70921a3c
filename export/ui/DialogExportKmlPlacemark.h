#pragma once

#include "export/KmlExportOptions.h"

#include <QWizardPage>

class QCheckBox;
class QGroupBox;
class QSpinBox;

namespace ZARN {

class ColourButton;

/// The KML wizard's third page: the placemarks of selected parameters, of limit exceedances and of warning lamps.
class DialogExportKmlPlacemark : public QWizardPage {
    Q_OBJECT

public:
    explicit DialogExportKmlPlacemark(QWidget* pParent = nullptr);

    void show(const KmlExportOptions& options);
    void store(KmlExportOptions& options) const;

private:
    QGroupBox* mpParameters;
    QSpinBox* mpInterval;
    ColourButton* mpColour;
    QGroupBox* mpErrors;
    QCheckBox* mpLimits;
    QCheckBox* mpWarnings;
    ColourButton* mpErrorColour;
};

} // namespace ZARN
