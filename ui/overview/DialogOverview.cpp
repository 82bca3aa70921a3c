#include "ui/overview/DialogOverview.h"

#include "app/gui/Heading.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "ui/overview/WidgetCycleCard.h"

#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace ZARN {

DialogOverview::DialogOverview(const Session& session, QWidget* pParent)
    : QScrollArea(pParent), mSession(session), mReviewer(session), mpCardText(new QLabel), mpProgress(new QProgressBar), mpEmpty(new QLabel), mpGone(new QLabel),
      mpCards(new QVBoxLayout)
{
    setObjectName("overview");
    setAccessibleName(tr("Overview"));
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* pPage = new QWidget;
    pPage->setObjectName("panels");
    auto* pLayout = new QVBoxLayout(pPage);
    pLayout->setContentsMargins(2, 0, 6, 6);
    pLayout->setSpacing(8);
    auto* pHeading = new Heading(tr("Was the engine all right?"));
    pHeading->setWordWrap(true);
    pLayout->addWidget(pHeading);
    for (QLabel* pLabel : {mpCardText, mpEmpty, mpGone}) {
        pLabel->setObjectName(pLabel == mpGone ? "warning" : "quiet");
        pLabel->setTextFormat(Qt::PlainText);
        pLabel->setWordWrap(true);
        pLayout->addWidget(pLabel);
    }
    mpProgress->setAccessibleName(tr("Reviewing the card"));
    pLayout->addWidget(mpProgress);
    mpCards->setSpacing(10);
    pLayout->addLayout(mpCards);
    pLayout->addStretch();
    setWidget(pPage);
    connect(&mReviewer, &CardReviewer::signalReviewed, this, &DialogOverview::addCycle);
    connect(&mReviewer, &CardReviewer::signalProgress, mpProgress, &QProgressBar::setValue);
    connect(&mReviewer, &CardReviewer::signalFinished, this, &DialogOverview::finish);
    connect(&mReviewer, &CardReviewer::signalGone, this, &DialogOverview::tellGone);
}

void DialogOverview::reset()
{
    mReviewer.stop();
    for (WidgetCycleCard* pCard : std::exchange(mCards, {}))
        pCard->deleteLater();
    mIsOld = !isVisible();
    if (!mIsOld)
        begin();
}

void DialogOverview::begin()
{
    mpCardText->setText(cardText());
    const bool isEmpty = mSession.container.recordCycles().empty();
    mpEmpty->setText(isEmpty ? tr("This card holds no power cycle.") : QString());
    mpEmpty->setVisible(isEmpty);
    mpGone->hide();
    mpProgress->setVisible(!isEmpty);
    mpProgress->setValue(0);
    if (!isEmpty)
        mReviewer.start();
}

QString DialogOverview::cardText() const
{
    QStringList parts{mSession.container.name()};
    const auto& files = mSession.container.recordFiles();
    if (!files.empty()) {
        const RecordInfo& newest = files.rbegin()->second;
        const QString type = QString::fromStdString(newest.engineType).simplified(), serial = QString::fromStdString(newest.engineSerial).simplified();
        if (!type.isEmpty())
            parts.append(type);
        if (!serial.isEmpty())
            parts.append(tr("serial number %1").arg(serial));
    }
    const ProfileModel& profile = mSession.profile.model();
    const QString variant = QString::fromStdString(mSession.profile.currentVariant());
    parts.append(tr("profile %1").arg(variant.isEmpty() ? QString::fromStdString(profile.name) : variant));
    return parts.join(", ") + ". " + tr("Times since the unit's power-up.");
}

void DialogOverview::addCycle(std::shared_ptr<const CycleOverview> pCycle)
{
    auto* pCard = new WidgetCycleCard(std::move(pCycle));
    connect(pCard, &WidgetCycleCard::signalFlight, this, &DialogOverview::signalFlight);
    connect(pCard, &WidgetCycleCard::signalIncident, this, &DialogOverview::signalIncident);
    mCards.push_back(pCard);
    mpCards->addWidget(pCard);
}

void DialogOverview::finish()
{
    mpProgress->hide();
}

void DialogOverview::tellGone()
{
    finish();
    mpGone->setText(mCards.empty() ? tr("The card cannot be read any more. Was it removed? Open it again to review it.")
                                    : tr("The card cannot be read any more. Was it removed? What was reviewed before is told below; open the "
                                         "card again for the rest."));
    mpGone->show();
}

void DialogOverview::chooseNewest()
{
    for (const WidgetCycleCard* pCard : mCards) {
        if (const auto flights = static_cast<int>(pCard->cycle().flights.size()); flights > 0) {
            Q_EMIT signalFlight(pCard->number(), flights - 1);
            return;
        }
    }
    if (!mCards.empty())
        Q_EMIT signalFlight(mCards.front()->number(), -1);
}

void DialogOverview::showEvent(QShowEvent* pEvent)
{
    QScrollArea::showEvent(pEvent);
    if (std::exchange(mIsOld, false))
        begin();
}

void DialogOverview::keyPressEvent(QKeyEvent* pEvent)
{
    if (pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter)
        chooseNewest();
    else
        QScrollArea::keyPressEvent(pEvent);
}

} // namespace ZARN
