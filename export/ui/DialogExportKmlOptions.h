#pragma once

#include "export/KmlExportOptions.h"

#include <QWizardPage>

class QGroupBox;
class QSpinBox;

namespace ZARN {

class ColourButton;

/// The KML wizard's second page: the path.
class DialogExportKmlOptions : public QWizardPage {
    Q_OBJECT

public:
    explicit DialogExportKmlOptions(QWidget* pParent = nullptr);

    void show(const KmlExportOptions& options);
    void store(KmlExportOptions& options) const;

private:
    QSpinBox* mpTimeStamp;
    QSpinBox* mpLineWidth;
    ColourButton* mpLineColour;
    QGroupBox* mpPolygon;
    ColourButton* mpPolygonColour;
};

} // namespace ZARN
