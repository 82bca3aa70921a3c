#include "ui/data/WidgetReplayBar.h"

#include "app/Numeric.h"
#include "app/gui/ImageHandler.h"
#include "ui/data/ReplayButton.h"

#include <QDateTime>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLCDNumber>
#include <QLineEdit>
#include <QSlider>
#include <QTimeEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr int kDateDigits = 19;
constexpr int kTimeDigits = 12;
constexpr QSize kClockSize(220, 60);
constexpr int kEntryWidth = 120;
constexpr int kSliderWidth = 120;
constexpr double kHundredths = 100.0;
constexpr const char* kClockStyle = "QLCDNumber { background-color: white; color: rgb(195, 171, 99); border: 1px solid #b4bfca; }";

QLCDNumber* createClock(const char* name, int digits, const QString& text)
{
    auto* pClock = new QLCDNumber(digits);
    pClock->setObjectName(name);
    pClock->setSegmentStyle(QLCDNumber::Flat);
    pClock->setMinimumSize(kClockSize);
    pClock->setAutoFillBackground(true);
    pClock->setStyleSheet(kClockStyle);
    pClock->display(text);
    return pClock;
}

} // namespace

WidgetReplayBar::WidgetReplayBar(bool emu, QWidget* pParent)
    : QWidget(pParent), mpReplay(new ReplayButton("replay")), mpStop(new ReplayButton("stop")), mpPosition(new QSlider(Qt::Horizontal)),
      mpTime(new QTimeEdit), mpSpeedSlider(new QSlider(Qt::Horizontal)), mpSpeed(new QDoubleSpinBox), mpUpper(new QHBoxLayout),
      mpLower(new QHBoxLayout)
{
    createClocks();
    mpStop->setLook(tr("Replay Stop"), ImageHandler::icon("replay-stop"));
    setReplay(eStopped);
    mpPosition->setObjectName("position");
    mpPosition->setRange(0, kPositions);
    mpPosition->setMinimumWidth(kSliderWidth);
    mpPosition->setToolTip(tr("Position in the record"));
    createTime();
    createSpeed();
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addLayout(mpUpper);
    pLayout->addLayout(mpLower);
    fillLines(false);
    for (QWidget* pHidden : {static_cast<QWidget*>(mpTimeClock), static_cast<QWidget*>(mpPosition), static_cast<QWidget*>(mpTime)})
        pHidden->setVisible(!emu);
    connectControls();
}

void WidgetReplayBar::createClocks()
{
    mpDateClock = createClock("dateClock", kDateDigits, "--.--.---- --:--:--");
    mpDateClock->setToolTip(tr("Date and time of the view, as the unit recorded it"));
    mpTimeClock = createClock("timeClock", kTimeDigits, "--:--:--.---");
    mpTimeClock->setToolTip(tr("Time since the unit's power-up"));
}

void WidgetReplayBar::createTime()
{
    mpTime->setObjectName("time");
    mpTime->setDisplayFormat("hh:mm:ss");
    mpTime->setFixedWidth(kEntryWidth);
    mpTime->setKeyboardTracking(false); // no jump while half a time is typed
    mpTime->setToolTip(tr("Time since the unit's power-up"));
    mpTime->installEventFilter(this);
    connect(mpTime->findChild<QLineEdit*>(), &QLineEdit::textEdited, this, [this] { mTyped = true; });
}

void WidgetReplayBar::createSpeed()
{
    mpSpeedSlider->setObjectName("speedSlider");
    mpSpeedSlider->setRange(100, 10000);
    mpSpeedSlider->setFixedWidth(kSliderWidth);
    mpSpeedSlider->setToolTip(tr("Speed of the replay"));
    mpSpeed->setObjectName("speed");
    mpSpeed->setRange(1.0, 100.0);
    mpSpeed->setPrefix(tr("Speed "));
    mpSpeed->setFixedWidth(kEntryWidth);
    mpSpeed->setKeyboardTracking(false);
    mpSpeed->setStyleSheet("QDoubleSpinBox { padding-left: 2px; padding-right: 0px; }" // "Speed 100.00" must fit
                           "QDoubleSpinBox::up-button, QDoubleSpinBox::down-button { width: 16px; }");
}

void WidgetReplayBar::connectControls()
{
    connect(mpReplay, &ReplayButton::clicked, this, &WidgetReplayBar::signalReplay);
    connect(mpStop, &ReplayButton::clicked, this, &WidgetReplayBar::signalStop);
    connect(mpPosition, &QSlider::valueChanged, this, &WidgetReplayBar::signalPosition);
    connect(mpTime, &QTimeEdit::timeChanged, this, &WidgetReplayBar::slotTimeChanged);
    connect(mpTime, &QTimeEdit::editingFinished, this, &WidgetReplayBar::slotTimeFinished);
    connect(mpSpeedSlider, &QSlider::valueChanged, this, &WidgetReplayBar::signalSpeedSlider);
    connect(mpSpeed, &QDoubleSpinBox::valueChanged, this, &WidgetReplayBar::signalSpeed);
}

/// One line in the order of the tasks; in two lines the clocks and the time entry stand above the replay.
void WidgetReplayBar::fillLines(bool oneLine)
{
    mOneLine = oneLine;
    for (QBoxLayout* pLine : {mpUpper, mpLower}) {
        while (QLayoutItem* pItem = pLine->takeAt(0))
            delete pItem;
    }
    QBoxLayout* pLower = oneLine ? mpUpper : mpLower;
    mpUpper->addWidget(mpDateClock);
    mpUpper->addWidget(mpTimeClock);
    if (!oneLine) {
        mpUpper->addStretch();
        mpUpper->addWidget(mpTime);
    }
    pLower->addWidget(mpReplay);
    pLower->addWidget(mpStop);
    pLower->addWidget(mpPosition, 1);
    if (oneLine)
        pLower->addWidget(mpTime);
    pLower->addWidget(mpSpeedSlider);
    pLower->addWidget(mpSpeed);
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

int WidgetReplayBar::widthOfReplay(int buttonWidth) const
{
    return 2 * buttonWidth + 2 * kSliderWidth + kEntryWidth + 4 * mpLower->spacing();
}

int WidgetReplayBar::widthOfClocks() const
{
    return 2 * kClockSize.width() + kEntryWidth + 3 * mpUpper->spacing();
}

QSize WidgetReplayBar::minimumSizeHint() const
{
    // That of two lines and icons, or the bar could never become narrow enough for them.
    return {std::max(widthOfReplay(mpStop->widthFor({})), widthOfClocks()), QWidget::minimumSizeHint().height()};
}

void WidgetReplayBar::arrange()
{
    const int text = widthOfText();
    const bool oneLine = width() >= widthOfReplay(text) + widthOfClocks() + kSliderWidth; // with more than the least for the position
    const int buttonWidth = width() >= widthOfReplay(text) ? text : mpStop->widthFor({});
    mpReplay->setFixedWidth(buttonWidth);
    mpStop->setFixedWidth(buttonWidth);
    if (oneLine != mOneLine)
        fillLines(oneLine);
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
    mpReplay->setLook(state == eRunning ? tr("Replay Pause") : state == ePaused ? tr("Replay Run") : tr("Replay Start"),
                      ImageHandler::icon(state == eRunning ? "replay-pause" : "replay-start"));
    mpStop->setEnabled(state != eStopped);
}

void WidgetReplayBar::setSpeed(double factor)
{
    mpSpeedSlider->setValue(saturatingCast<int>(factor * kHundredths));
    mpSpeed->setValue(factor);
}

void WidgetReplayBar::setDateTime(const QDateTime& dateTime)
{
    const QString text = dateTime.isValid() ? dateTime.toString("dd.MM.yyyy hh:mm:ss") : QString();
    mpDateClock->display(text.size() == kDateDigits ? text : QString("--.--.---- --:--:--"));
}

void WidgetReplayBar::setTime(const QTime& time)
{
    mpTimeClock->display(time.toString("hh:mm:ss.zzz"));
    if (!mTyped || !mpTime->hasFocus())
        mpTime->setTime(time);
}

void WidgetReplayBar::slotTimeChanged(const QTime& time)
{
    if (!mTyped) // the entry also changes at the end of a section, with half a time typed
        Q_EMIT signalTime(time);
}

/// The time that was typed may be the one that the entry had before, which is no change of it: the view time may have gone on since.
void WidgetReplayBar::slotTimeFinished()
{
    if (std::exchange(mTyped, false))
        Q_EMIT signalTime(mpTime->time());
    if (mpTime->hasFocus())
        mpTime->setSelectedSection(QDateTimeEdit::HourSection); // for the next time
}

bool WidgetReplayBar::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pObject == mpTime && pEvent->type() == QEvent::KeyPress)
        return filterKey(*static_cast<QKeyEvent*>(pEvent));
    return QWidget::eventFilter(pObject, pEvent);
}

/// The entry goes to its next section by itself when one is complete, and again at a colon: one that is typed behind a complete section
/// must not skip the next one. Nor must a time that is typed over all of it begin in another section than the hours.
bool WidgetReplayBar::filterKey(const QKeyEvent& event)
{
    const int section = mpTime->currentSection();
    const int digitSection = std::exchange(mDigitSection, 0);
    if (event.matches(QKeySequence::SelectAll) || event.matches(QKeySequence::MoveToStartOfLine)) {
        mpTime->setSelectedSection(QDateTimeEdit::HourSection);
        return true;
    }
    const QString text = event.text();
    if (text.size() == 1 && text[0].isDigit())
        mDigitSection = section;
    return text == ":" && digitSection != 0 && digitSection != section;
}

void WidgetReplayBar::setPosition(int position)
{
    mpPosition->setValue(position);
}

} // namespace ZARN
