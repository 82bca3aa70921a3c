#include "ui/main/StatusProgress.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>

#include <utility>

namespace ZARN {

namespace {

constexpr int kWidth = 220;
constexpr int kDelay = 150; // milliseconds; what is done by then would only flicker

} // namespace

StatusProgress::StatusProgress(QWidget* pParent) : QWidget(pParent), mpBar(new QProgressBar)
{
    hide();
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    mpBar->setObjectName("progress");
    mpBar->setRange(0, 100);
    mpBar->setFixedWidth(kWidth);
    auto* pCancel = new QPushButton(tr("Cancel"));
    pCancel->setObjectName("cancelLoading");
    pCancel->setFixedHeight(mpBar->sizeHint().height()); // no higher than the bar: the window must not shift when they come
    pCancel->setStyleSheet("QPushButton { padding: 0px 12px; min-height: 0px; }");
    pCancel->setToolTip(tr("Stop loading (Esc); what is shown stays"));
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(mpBar);
    pLayout->addWidget(pCancel);
    connect(pCancel, &QPushButton::clicked, this, &StatusProgress::signalCancelled);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &StatusProgress::signalCancelled);
    mDelay.setSingleShot(true);
    mDelay.setInterval(kDelay);
    connect(&mDelay, &QTimer::timeout, this, &StatusProgress::slotAppear);
}

StatusProgress::~StatusProgress()
{
    end();
}

void StatusProgress::begin()
{
    mpBar->setValue(0);
    mDelay.start();
}

void StatusProgress::slotAppear()
{
    mHasCursor = true;
    QApplication::setOverrideCursor(Qt::BusyCursor);
    show();
}

void StatusProgress::setProgress(int percent)
{
    mpBar->setValue(percent);
}

void StatusProgress::end()
{
    mDelay.stop();
    hide();
    if (std::exchange(mHasCursor, false))
        QApplication::restoreOverrideCursor();
}

} // namespace ZARN
