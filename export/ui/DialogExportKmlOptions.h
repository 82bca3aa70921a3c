#pragma once

#include "export/KmlExportOptions.h"

#include <QWizardPage>

class QCheckBox;
class QGroupBox;
class QLabel;
class QSpinBox;

namespace ZARN {

class ColourButton;

/// The KML wizard's second page: the path.
class DialogExportKmlOptions : public QWizardPage {
    Q_OBJECT

public:
    /// @param hasClock whether times can be told of what is exported
    explicit DialogExportKmlOptions(bool hasClock, QWidget* pParent = nullptr);

    void show(const KmlExportOptions& options);
    void store(KmlExportOptions& options) const;

private:
    QSpinBox* mpTimeStamp;
    QSpinBox* mpLineWidth;
    ColourButton* mpLineColour;
    QGroupBox* mpPolygon;
    ColourButton* mpPolygonColour;
    QCheckBox* mpTrack;
    QLabel* mpNoClock;
};

} // namespace ZARN
