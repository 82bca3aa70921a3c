#include "ui/data/DialogDataErrorMatrix.h"

#include "profile/Profile.h"
#include "ui/data/WidgetFaultMatrix.h"

#include <QLabel>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

namespace ZARN {

namespace {

constexpr int kRefreshMilliseconds = 50;

} // namespace

DialogDataErrorMatrix::DialogDataErrorMatrix(const Session& session, QWidget* pParent)
    : QWidget(pParent), mSession(session), mpHint(new QLabel), mpTimer(new QTimer(this))
{
    auto* pArea = new QScrollArea;
    pArea->setWidgetResizable(true);
    auto* pContent = new QWidget;
    pContent->setObjectName("panels");
    mpPanelLayout = new QVBoxLayout(pContent);
    mpHint->setObjectName("quiet");
    mpHint->setAlignment(Qt::AlignCenter);
    mpHint->setWordWrap(true);
    mpPanelLayout->addWidget(mpHint);
    mpPanelLayout->addStretch();
    pArea->setWidget(pContent);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(pArea);
    setFocusProxy(pArea);
    mpTimer->setInterval(kRefreshMilliseconds);
    connect(mpTimer, &QTimer::timeout, this, &DialogDataErrorMatrix::slotTimeoutLive);
    loadProfile();
}

void DialogDataErrorMatrix::loadProfile()
{
    for (const WidgetFaultMatrix* pPanel : mPanels)
        delete pPanel;
    mPanels.clear();
    addPanels();
    const std::size_t count = mSession.profile.model().errorMatrices.size();
    mpHint->setVisible(count == 0 || count > mPanels.size());
    mpHint->setText(count == 0 ? tr("The profile declares no error matrix.")
                               : tr("Only the first %1 of %2 error matrices of the profile are shown.").arg(mPanels.size()).arg(count));
}

void DialogDataErrorMatrix::addPanels()
{
    for (const FaultMatrix& matrix : mSession.profile.model().errorMatrices) {
        if (mPanels.size() == kMaxPanels)
            return;
        auto* pPanel = new WidgetFaultMatrix(mSession);
        pPanel->setData(matrix);
        mpPanelLayout->insertWidget(static_cast<int>(mPanels.size()), pPanel);
        mPanels.push_back(pPanel);
        connect(pPanel, &WidgetFaultMatrix::signalMoment, this, &DialogDataErrorMatrix::signalMoment);
        connect(pPanel, &WidgetFaultMatrix::signalTime, this, [this](double time) {
            setTime(time); // all panels; whoever is told moves the other views only
            Q_EMIT signalTime(time);
        });
    }
}

void DialogDataErrorMatrix::updateRecord(RecordData* pRecord)
{
    for (WidgetFaultMatrix* pPanel : mPanels)
        pPanel->updateRecord(pRecord);
}

void DialogDataErrorMatrix::growRecord(RecordData* pRecord, bool /*isReviewed*/)
{
    updateRecord(pRecord);
    if (isLive())
        slotTimeoutLive();
}

void DialogDataErrorMatrix::setTime(double time)
{
    if (isLive())
        return;
    for (WidgetFaultMatrix* pPanel : mPanels)
        pPanel->setTime(time);
}

void DialogDataErrorMatrix::setZarnMode(int mode)
{
    mMode = mode;
    updateTimer();
}

void DialogDataErrorMatrix::setPaused(bool paused)
{
    mPaused = paused;
    updateTimer();
}

void DialogDataErrorMatrix::updateTimer()
{
    if (isLive())
        mpTimer->start();
    else
        mpTimer->stop();
}

void DialogDataErrorMatrix::slotTimeoutLive()
{
    for (WidgetFaultMatrix* pPanel : mPanels)
        pPanel->updateLiveData();
}

} // namespace ZARN
