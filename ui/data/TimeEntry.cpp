#include "ui/data/TimeEntry.h"

#include "app/TimeText.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr int kMostCharacters = 9; // "555:33:20"

} // namespace

TimeEntry::TimeEntry(QWidget* pParent) : QSpinBox(pParent)
{
    setRange(0, kLatest);
    setKeyboardTracking(false); // no jump while half a time is typed
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) { mTyped = text; });
    connect(this, &QSpinBox::editingFinished, this, &TimeEntry::finish);
}

void TimeEntry::showTime(int seconds)
{
    if (mTyped.isEmpty() || !hasFocus())
        setValue(seconds);
}

/// The time that was typed may be the one that the entry had before, which is no change of it: the view time may have gone on since.
void TimeEntry::finish()
{
    if (const std::optional<int> seconds = secondsOf(std::exchange(mTyped, {})))
        Q_EMIT signalTime(std::clamp(*seconds, minimum(), kLatest));
    if (hasFocus())
        selectAll(); // for the next time
}

QString TimeEntry::textFromValue(int value) const
{
    return value < 0 ? '-' + elapsedText(-value, 2) : elapsedText(value, 2);
}

int TimeEntry::valueFromText(const QString& text) const
{
    return std::clamp(secondsOf(text).value_or(value()), minimum(), kLatest);
}

QValidator::State TimeEntry::validate(QString& text, int& /*position*/) const
{
    const QStringView digits = QStringView(text).mid(minimum() < 0 && text.startsWith('-') ? 1 : 0);
    const bool isPart = digits.size() <= kMostCharacters && digits.count(u':') <= 2 &&
                        std::all_of(digits.begin(), digits.end(), [](QChar c) { return c == u':' || (c >= u'0' && c <= u'9'); });
    if (!isPart)
        return QValidator::Invalid;
    return secondsOf(text) ? QValidator::Acceptable : QValidator::Intermediate;
}

std::optional<int> TimeEntry::secondsOf(const QString& text) const
{
    if (minimum() == 0 || !text.startsWith('-'))
        return elapsedSeconds(text);
    const std::optional<int> seconds = elapsedSeconds(text.mid(1));
    return seconds ? std::optional(-*seconds) : std::nullopt;
}

/// What is no time gives way to the time that was there.
void TimeEntry::fixup(QString& text) const
{
    text = textFromValue(value());
}

/// By the field that the text cursor stands in, by seconds where there is none yet.
void TimeEntry::stepBy(int steps)
{
    const QString before = lineEdit()->text();
    const int position = lineEdit()->cursorPosition();
    const qsizetype behind = hasFocus() ? before.mid(position).count(':') : 0;
    const int unit = behind == 2 ? 3600 : behind == 1 ? 60 : 1;
    const int now = secondsOf(before).value_or(value());
    mTyped.clear();
    setValue(std::clamp(now + steps * unit, minimum(), kLatest));
    lineEdit()->setCursorPosition(position);
    Q_EMIT signalTime(value());
}

/// A time that is typed after Home replaces what stands there, as one after Select All does. So does the first digit after a click into
/// a whole time, which has no room for one more.
void TimeEntry::keyPressEvent(QKeyEvent* pEvent)
{
    if (pEvent->matches(QKeySequence::MoveToStartOfLine))
        return selectAll();
    const QString typed = pEvent->text();
    if (mTyped.isEmpty() && !lineEdit()->hasSelectedText() && !typed.isEmpty() && (typed[0].isDigit() || typed[0] == u'-'))
        selectAll();
    QSpinBox::keyPressEvent(pEvent);
}

void TimeEntry::focusInEvent(QFocusEvent* pEvent)
{
    QSpinBox::focusInEvent(pEvent);
    if (pEvent->reason() == Qt::MouseFocusReason)
        QTimer::singleShot(0, this, &QSpinBox::selectAll); // the click itself sets the text cursor
}

} // namespace ZARN
