#include "ui/data/WidgetReplayBar.h"

#include "app/DateText.h"
#include "app/Numeric.h"
#include "app/gui/ImageHandler.h"
#include "app/gui/TextSize.h"
#include "ui/data/JumpSlider.h"
#include "ui/data/PositionBar.h"
#include "ui/data/ReplayButton.h"
#include "ui/data/SegmentClock.h"
#include "ui/data/SpeedBox.h"
#include "ui/data/TimeEntry.h"
#include "ui/data/model/ReplaySpeed.h"

#include <QDateTime>
#include <QEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr int kDateDigits = 19;
constexpr QSize kClockSize(220, 60);
constexpr int kButtonIcon = 16;
constexpr int kEntryWidth = 120;
constexpr int kSliderWidth = 120;
constexpr int kWidePosition = 600; // below, a line for itself serves it better
constexpr double kHundredths = 100.0;

} // namespace

WidgetReplayBar::WidgetReplayBar(bool emu, QWidget* pParent)
    : QWidget(pParent), mpReplay(new ReplayButton("replay")), mpStop(new ReplayButton("stop")), mpPosition(new PositionBar),
      mpTime(new TimeEntry), mpSpeedSlider(new JumpSlider), mpSpeed(new SpeedBox), mpUpper(new QHBoxLayout), mpLower(new QHBoxLayout)
{
    createClocks();
    mpStop->setLook(tr("Replay Stop"), ImageHandler::icon("replay-stop"));
    setReplay(eStopped);
    createSliders();
    createEntries();
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addLayout(mpUpper);
    pLayout->addLayout(mpLower);
    fillLines(eClocks);
    for (QWidget* pHidden : {static_cast<QWidget*>(mpTimeClock), static_cast<QWidget*>(mpPosition), static_cast<QWidget*>(mpTime)})
        pHidden->setVisible(!emu);
    connectControls();
    arrange();
}

void WidgetReplayBar::createClocks()
{
    mpDateClock = new SegmentClock("dateClock");
    mpDateClock->display("--.--.---- --:--:--");
    mpDateClock->setToolTip(tr("Date and time of the view, as the unit recorded it"));
    mpTimeClock = new SegmentClock("timeClock");
    mpTimeClock->display("--:--:--.---");
}

void WidgetReplayBar::createSliders()
{
    mpPosition->setObjectName("position");
    mpPosition->setRange(0, kPositions);
    mpPosition->setToolTip(tr("Position in the record"));
    mpPosition->setAccessibleName(mpPosition->toolTip());
    mpSpeedSlider->setObjectName("speedSlider");
    mpSpeedSlider->setRange(saturatingCast<int>(kSlowestReplay * kHundredths), saturatingCast<int>(kFastestReplay * kHundredths));
    mpSpeedSlider->setFixedWidth(kSliderWidth);
    mpSpeedSlider->setToolTip(tr("Speed of the replay"));
    mpSpeedSlider->setAccessibleName(mpSpeedSlider->toolTip());
}

void WidgetReplayBar::createEntries()
{
    mpTime->setObjectName("time");
    nameTimes();
    mpSpeed->setObjectName("speed");
    mpSpeed->setPrefix(tr("Speed "));
    mpSpeed->setToolTip(mpSpeedSlider->toolTip());
    mpSpeed->setAccessibleName(mpSpeedSlider->toolTip());
    mpSpeed->setStyleSheet("QDoubleSpinBox { padding-left: 2px; padding-right: 0px; }" // "Speed 100.00" must fit
                           "QDoubleSpinBox::up-button, QDoubleSpinBox::down-button { width: 16px; }");
}

void WidgetReplayBar::nameTimes()
{
    const QString name = TimeReference::name(mTimes.kind());
    mpTimeClock->setToolTip(name);
    mpTime->setAccessibleName(name);
    mpTime->setToolTip(tr("%1. 15:30 and 1530 are 15 minutes and 30 seconds, 1:15:30 is an hour later.").arg(name));
}

void WidgetReplayBar::setTimes(const TimeReference& times, double start, double end)
{
    mTimes = times;
    mStart = std::floor(start); // an entry has whole seconds
    mpTime->setSigned(times.kind() == ETimeReference::eTakeOff);
    mpPosition->setSpan(start, end, times);
    nameTimes();
}

void WidgetReplayBar::setMarks(PositionMarks marks)
{
    mpPosition->setMarks(std::move(marks));
}

void WidgetReplayBar::stepSpeed(int steps)
{
    Q_EMIT signalSpeed(steppedSpeed(mpSpeed->value(), steps));
}

void WidgetReplayBar::connectControls()
{
    connect(mpReplay, &ReplayButton::clicked, this, &WidgetReplayBar::signalReplay);
    connect(mpStop, &ReplayButton::clicked, this, &WidgetReplayBar::signalStop);
    connect(mpPosition, &QSlider::valueChanged, this, &WidgetReplayBar::signalPosition);
    connect(mpTime, &TimeEntry::signalTime, this, [this](int told) { Q_EMIT signalTime(mTimes.meant(told, mStart)); });
    connect(mpSpeedSlider, &JumpSlider::signalWheel, this, &WidgetReplayBar::stepSpeed);
    connect(mpSpeedSlider, &QSlider::actionTriggered, this, [this](int action) {
        const bool isUp = action == QSlider::SliderSingleStepAdd || action == QSlider::SliderPageStepAdd;
        if (isUp || action == QSlider::SliderSingleStepSub || action == QSlider::SliderPageStepSub)
            mpSpeedSlider->setSliderPosition(saturatingCast<int>(steppedSpeed(mpSpeed->value(), isUp ? 1 : -1) * kHundredths));
    });
    connect(mpSpeedSlider, &QSlider::valueChanged, this, &WidgetReplayBar::signalSpeedSlider);
    connect(mpSpeed, &SpeedBox::valueChanged, this, &WidgetReplayBar::signalSpeed);
}

void WidgetReplayBar::fillLines(EFit fit)
{
    mFit = fit;
    for (QBoxLayout* pLine : {mpUpper, mpLower}) {
        while (QLayoutItem* pItem = pLine->takeAt(0))
            delete pItem;
    }
    QBoxLayout* pReplay = fit == eClocks ? mpLower : mpUpper;
    QBoxLayout* pSpeed = fit <= eAllButPosition ? mpUpper : mpLower;
    mpUpper->addWidget(mpDateClock);
    mpUpper->addWidget(mpTimeClock);
    pReplay->addWidget(mpReplay);
    pReplay->addWidget(mpStop);
    if (fit != eAll)
        mpUpper->addStretch();
    mpUpper->addWidget(mpTime);
    (fit == eAll ? mpUpper : mpLower)->addWidget(mpPosition, 1);
    pSpeed->addWidget(mpSpeedSlider);
    pSpeed->addWidget(mpSpeed);
    updateGeometry();
}

/// Of the widest of the buttons' texts, so that nothing moves when one changes.
int WidgetReplayBar::widthOfText() const
{
    int width = mpStop->widthFor(mpStop->text());
    for (const QString& text : {tr("Replay Start"), tr("Replay Pause"), tr("Replay Run")})
        width = std::max(width, mpReplay->widthFor(text));
    return width;
}

/// What both lines need at least.
int WidgetReplayBar::widthFor(EFit fit, int buttonWidth) const
{
    const int gap = mpLower->spacing();
    const int clocks = 2 * kClockSize.width() + mpTime->width() + 2 * gap, replay = 2 * buttonWidth + 2 * gap;
    const int speed = kSliderWidth + mpSpeed->width() + 2 * gap, position = mpPosition->minimumSizeHint().width();
    switch (fit) {
    case eAll: return clocks + replay + speed + kWidePosition;
    case eAllButPosition: return clocks + replay + speed;
    case eClocksAndReplay: return std::max(clocks + replay, position + speed);
    default: return std::max(clocks, replay + position + speed);
    }
}

QSize WidgetReplayBar::minimumSizeHint() const
{
    // That of two lines and icons, or the bar could never become narrow enough for them.
    return {widthFor(eClocks, mpStop->widthFor({})), QWidget::minimumSizeHint().height()};
}

void WidgetReplayBar::arrange()
{
    mpTime->setFixedWidth(std::max(kEntryWidth, mpTime->sizeHint().width()));
    mpSpeed->setFixedWidth(std::max(kEntryWidth, mpSpeed->sizeHint().width()));
    const int size = grownWithText(*this, kButtonIcon);
    for (ReplayButton* pButton : {mpReplay, mpStop})
        pButton->setIconSize(QSize(size, size));
    const int text = widthOfText(), icon = mpStop->widthFor({});
    // The best first: texts beside the clocks, then icons there, which leave the position its room.
    const std::pair<EFit, int> ways[] = {
        {eAll, text}, {eAllButPosition, text}, {eClocksAndReplay, text}, {eClocksAndReplay, icon}, {eClocks, text}};
    const auto* pWay = std::ranges::find_if(ways, [this](const auto& way) { return width() >= widthFor(way.first, way.second); });
    const auto [fit, buttonWidth] = pWay == std::end(ways) ? std::pair(eClocks, icon) : *pWay;
    fitClocks(width() - widthFor(fit, buttonWidth));
    mpReplay->setFixedWidth(buttonWidth);
    mpStop->setFixedWidth(buttonWidth);
    if (fit != mFit)
        fillLines(fit);
}

/// They grow with the text, as far as that leaves all its place.
void WidgetReplayBar::fitClocks(int spare)
{
    const int wanted = grownWithText(*this, kClockSize.width()) - kClockSize.width();
    const QSize size = kClockSize.scaled(kClockSize.width() + std::clamp(spare / 2, 0, wanted), QWIDGETSIZE_MAX, Qt::KeepAspectRatio);
    mpDateClock->setMinimumSize(size);
    mpTimeClock->setMinimumSize(size);
}

void WidgetReplayBar::resizeEvent(QResizeEvent* pEvent)
{
    QWidget::resizeEvent(pEvent);
    arrange();
}

void WidgetReplayBar::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange)
        arrange();
}

void WidgetReplayBar::setReplay(int state)
{
    mpReplay->setLook(state == eRunning  ? tr("Replay Pause")
                      : state == ePaused ? tr("Replay Run")
                                         : tr("Replay Start"),
                      ImageHandler::icon(state == eRunning ? "replay-pause" : "replay-start"));
    mpStop->setEnabled(state != eStopped);
}

void WidgetReplayBar::setSpeed(double factor)
{
    const QSignalBlocker slider(mpSpeedSlider), box(mpSpeed);
    mpSpeedSlider->setValue(saturatingCast<int>(factor * kHundredths));
    mpSpeed->setValue(factor);
}

void WidgetReplayBar::setDateTime(const QDateTime& dateTime)
{
    const QString text = dateSecondsText(dateTime);
    mpDateClock->display(text.size() == kDateDigits ? text : QString("--.--.---- --:--:--"));
}

void WidgetReplayBar::setTime(int64_t milliseconds)
{
    const QString text = mTimes.text(milliseconds);
    mpTimeClock->display(text);
    const int64_t told = mTimes.toldMilliseconds(milliseconds) / 1000;
    mpTime->showTime(static_cast<int>(std::clamp<int64_t>(told, -TimeEntry::kLatest, TimeEntry::kLatest)));
}

void WidgetReplayBar::setPosition(int position)
{
    const QSignalBlocker blocker(mpPosition);
    mpPosition->setValue(position);
}

} // namespace ZARN
