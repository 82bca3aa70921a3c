#include "ui/main/LogbookOptions.h"

#include "app/Property.h"
#include "app/Settings.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ZARN {

LogbookOptions::LogbookOptions(const Session& session, const QString& store, QWidget* pParent)
    : QWidget(pParent), mSession(session), mpTake(new QCheckBox(tr("Keep a logbook of the cards that are opened"))),
      mpArchive(new QCheckBox(tr("Copy each new recording into an archive"))), mpFolder(new QLabel), mpChoose(new QPushButton(tr("Folder ...")))
{
    auto* pStore = new QLabel(tr("The logbook is the file %1.").arg(QDir::toNativeSeparators(store)));
    auto* pHint = new QLabel(tr("A copy counts once it was compared with the card, byte by byte. Flights are shown from there when their card is not at hand."));
    for (QLabel* pLabel : {pStore, pHint, mpFolder}) {
        pLabel->setTextFormat(Qt::PlainText);
        pLabel->setWordWrap(true);
        pLabel->setObjectName(pLabel == mpFolder ? QString() : QStringLiteral("quiet"));
        pLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    auto* pRow = new QHBoxLayout;
    pRow->addWidget(mpFolder, 1);
    pRow->addWidget(mpChoose);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(mpTake);
    pLayout->addWidget(pStore);
    pLayout->addSpacing(12);
    pLayout->addWidget(mpArchive);
    pLayout->addWidget(pHint);
    pLayout->addLayout(pRow);
    pLayout->addStretch();
    fill();
    connect(mpTake, &QCheckBox::clicked, this, [this](bool isOn) {
        Settings::kLogbook.set(mSession.property, isOn ? eLogbookYes : eLogbookNo);
        keep();
    });
    connect(mpArchive, &QCheckBox::clicked, this, &LogbookOptions::slotArchive);
    connect(mpChoose, &QPushButton::clicked, this, &LogbookOptions::askFolder);
}

void LogbookOptions::fill()
{
    const QString folder = Settings::kArchiveDir.text(mSession.property);
    const bool isTaken = Settings::kLogbook.get(mSession.property) == eLogbookYes;
    mpTake->setChecked(isTaken);
    mpArchive->setEnabled(isTaken);
    mpArchive->setChecked(Settings::kArchive.get(mSession.property));
    mpFolder->setText(folder.isEmpty() ? tr("No folder is chosen.") : QDir::toNativeSeparators(folder));
    mpChoose->setEnabled(isTaken);
}

void LogbookOptions::slotArchive(bool isOn)
{
    if (isOn && Settings::kArchiveDir.get(mSession.property).empty())
        askFolder();
    Settings::kArchive.set(mSession.property, isOn && !Settings::kArchiveDir.get(mSession.property).empty());
    keep();
}

void LogbookOptions::askFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Folder of the archive"), Settings::kArchiveDir.text(mSession.property),
                                                             QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (!folder.isEmpty())
        Settings::kArchiveDir.set(mSession.property, QDir::cleanPath(folder));
    keep();
}

void LogbookOptions::keep()
{
    mSession.property.writeXmlFile();
    fill();
    Q_EMIT signalChanged();
}

} // namespace ZARN
