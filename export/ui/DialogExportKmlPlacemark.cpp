#include "export/ui/DialogExportKmlPlacemark.h"

#include "app/gui/FormLayout.h"
#include "export/ui/ColourButton.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QSpinBox>

namespace ZARN {

namespace {

constexpr int kMostSamples = 100000;

} // namespace

DialogExportKmlPlacemark::DialogExportKmlPlacemark(QWidget* pParent)
    : QWizardPage(pParent), mpParameters(new QGroupBox(tr("Draw selected parameters as placemarks"))), mpInterval(new QSpinBox),
      mpColour(new ColourButton(tr("Select Placemark Color"), ColourButton::eOpaque)),
      mpErrors(new QGroupBox(tr("Show Limit exceedance / Warning Lamps"))), mpLimits(new QCheckBox(tr("Limit Exceedance"))),
      mpWarnings(new QCheckBox(tr("Warning Lamps"))), mpErrorColour(new ColourButton(tr("Select Exceedance Color"), ColourButton::eOpaque)),
      mpSize(new QLabel), mpNote(new QLabel)
{
    setTitle(tr("Select KML Placemarks"));
    mpParameters->setObjectName("placeMarks");
    mpParameters->setCheckable(true);
    mpInterval->setObjectName("interval");
    mpInterval->setRange(1, kMostSamples);
    mpInterval->setSuffix(tr(" samples"));
    mpColour->setObjectName("placeMarkColour");
    mpErrors->setObjectName("errorMarks");
    mpErrors->setCheckable(true);
    mpLimits->setObjectName("limits");
    mpWarnings->setObjectName("warnings");
    mpErrorColour->setObjectName("errorColour");

    auto* pParameters = new FormLayout(mpParameters);
    pParameters->addRow(tr("Placemark every"), mpInterval);
    pParameters->addRow(tr("Placemark Color"), mpColour);
    auto* pErrors = new FormLayout(mpErrors);
    pErrors->addRow(tr("Show"), mpLimits);
    pErrors->addRow(QString(), mpWarnings);
    pErrors->addRow(tr("Exceedance Placemark Color"), mpErrorColour);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(mpParameters);
    pLayout->addWidget(mpErrors);
    auto* pSize = new FormLayout;
    pSize->addRow(tr("Size of the file"), mpSize);
    pLayout->addLayout(pSize);
    pLayout->addWidget(mpNote);
    pLayout->addStretch();
    mpNote->setObjectName("warning");
    mpNote->setWordWrap(true);
    connect(mpParameters, &QGroupBox::toggled, this, &DialogExportKmlPlacemark::signalChanged);
    connect(mpInterval, &QSpinBox::valueChanged, this, &DialogExportKmlPlacemark::signalChanged);
}

void DialogExportKmlPlacemark::show(const KmlExportOptions& options)
{
    mpParameters->setChecked(options.placeMarkOn);
    mpInterval->setValue(options.placeMarkInterval);
    mpColour->setColour(options.placeMarkColor);
    mpErrors->setChecked(options.errorMarkOn);
    mpLimits->setChecked(options.showLimit);
    mpWarnings->setChecked(options.showWarning);
    mpErrorColour->setColour(options.errorMarkColor);
}

void DialogExportKmlPlacemark::setOutlook(const QString& note, const QString& size)
{
    mpNote->setText(note);
    mpSize->setText(size);
}

void DialogExportKmlPlacemark::store(KmlExportOptions& options) const
{
    options.placeMarkOn = mpParameters->isChecked();
    options.placeMarkInterval = mpInterval->value();
    options.placeMarkColor = mpColour->digits();
    options.errorMarkOn = mpErrors->isChecked();
    options.showLimit = mpLimits->isChecked();
    options.showWarning = mpWarnings->isChecked();
    options.errorMarkColor = mpErrorColour->digits();
}

} // namespace ZARN
