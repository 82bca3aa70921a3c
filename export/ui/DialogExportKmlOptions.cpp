#include "export/ui/DialogExportKmlOptions.h"

#include "app/gui/FormLayout.h"
#include "export/ui/ColourButton.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QSpinBox>

namespace ZARN {

namespace {

constexpr int kMostSeconds = 3600;
constexpr int kWidestLine = 50;

} // namespace

DialogExportKmlOptions::DialogExportKmlOptions(bool hasClock, QWidget* pParent)
    : QWizardPage(pParent), mpTimeStamp(new QSpinBox), mpLineWidth(new QSpinBox),
      mpLineColour(new ColourButton(tr("Select Line Color"), ColourButton::eWithOpacity)), mpPolygon(new QGroupBox(tr("Draw Polygon"))),
      mpPolygonColour(new ColourButton(tr("Select Polygon Color"), ColourButton::eWithOpacity)),
      mpTrack(new QCheckBox(tr("Tracks with times to replay, one folder a flight"))),
      mpNoClock(new QLabel(tr("The unit had no clock: there will be no tracks.")))
{
    setTitle(tr("Select KML Option"));
    mpTimeStamp->setObjectName("timeStamp");
    mpTimeStamp->setRange(1, kMostSeconds);
    mpTimeStamp->setSuffix(tr(" s"));
    mpLineWidth->setObjectName("lineWidth");
    mpLineWidth->setRange(1, kWidestLine);
    mpLineColour->setObjectName("lineColour");
    mpPolygon->setObjectName("polygon");
    mpPolygon->setCheckable(true);
    mpPolygonColour->setObjectName("polygonColour");

    auto* pLine = new QGroupBox(tr("Line Style"));
    auto* pLineForm = new FormLayout(pLine);
    pLineForm->addRow(tr("Line width"), mpLineWidth);
    pLineForm->addRow(tr("Line color"), mpLineColour);
    auto* pPolygonForm = new FormLayout(mpPolygon);
    pPolygonForm->addRow(tr("Polygon color"), mpPolygonColour);
    auto* pForm = new FormLayout;
    pForm->addRow(tr("Timestamp every :"), mpTimeStamp);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pForm);
    pLayout->addWidget(pLine);
    pLayout->addWidget(mpPolygon);
    pLayout->addWidget(mpTrack);
    pLayout->addWidget(mpNoClock);
    pLayout->addStretch();
    mpTrack->setObjectName("track");
    mpNoClock->setObjectName("warning");
    mpNoClock->setVisible(false);
    if (!hasClock)
        connect(mpTrack, &QCheckBox::toggled, mpNoClock, &QLabel::setVisible);
}

void DialogExportKmlOptions::show(const KmlExportOptions& options)
{
    mpTimeStamp->setValue(options.timeStamp);
    mpLineWidth->setValue(options.lineWidth);
    mpLineColour->setColour(options.lineColor, options.lineAlpha);
    mpPolygon->setChecked(options.polygonOn);
    mpPolygonColour->setColour(options.polygonColor, options.polygonAlpha);
    mpTrack->setChecked(options.track);
}

void DialogExportKmlOptions::store(KmlExportOptions& options) const
{
    options.timeStamp = mpTimeStamp->value();
    options.lineWidth = mpLineWidth->value();
    options.lineColor = mpLineColour->digits();
    options.lineAlpha = mpLineColour->alpha();
    options.polygonOn = mpPolygon->isChecked();
    options.polygonColor = mpPolygonColour->digits();
    options.polygonAlpha = mpPolygonColour->alpha();
    options.track = mpTrack->isChecked();
}

} // namespace ZARN
