#include "ui/data/SpeedBox.h"

#include "ui/data/model/ReplaySpeed.h"

namespace ZARN {

/// Thousands are never typed here: a point or a comma is the decimal sign, whichever it is.
QString SpeedBox::withDecimalSign(const QString& text) const
{
    const qsizetype start = text.startsWith(prefix()) ? prefix().size() : 0;
    return text.first(start) + text.mid(start).replace(',', '.').replace(".", locale().decimalPoint());
}

SpeedBox::SpeedBox(QWidget* pParent) : QDoubleSpinBox(pParent)
{
    setRange(kSlowestReplay, kFastestReplay);
    setKeyboardTracking(false);
}

double SpeedBox::valueFromText(const QString& text) const
{
    return QDoubleSpinBox::valueFromText(withDecimalSign(text));
}

QValidator::State SpeedBox::validate(QString& text, int& position) const
{
    text = withDecimalSign(text);
    return QDoubleSpinBox::validate(text, position);
}

void SpeedBox::stepBy(int steps)
{
    interpretText();
    setValue(steppedSpeed(value(), steps));
}

} // namespace ZARN
