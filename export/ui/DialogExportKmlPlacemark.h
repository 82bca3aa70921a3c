#pragma once

#include "export/KmlExportOptions.h"

#include <QWizardPage>

class QCheckBox;
class QGroupBox;
class QLabel;
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
    /// What the user should know before the file is written, and how large it will be.
    void setOutlook(const QString& note, const QString& size);

Q_SIGNALS:
    void signalChanged();

private:
    QGroupBox* mpParameters;
    QSpinBox* mpInterval;
    ColourButton* mpColour;
    QGroupBox* mpErrors;
    QCheckBox* mpLimits;
    QCheckBox* mpWarnings;
    ColourButton* mpErrorColour;
    QLabel* mpSize;
    QLabel* mpNote;
};

} // namespace ZARN
