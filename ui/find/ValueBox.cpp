#include "ui/find/ValueBox.h"

#include "app/gui/WheelGuard.h"

namespace ZARN {

namespace {

constexpr int kDecimals = 6;

} // namespace

ValueBox::ValueBox(double least, double most, QWidget* pParent) : DecimalBox(pParent)
{
    setDecimals(kDecimals);
    setRange(least, most);
    setButtonSymbols(NoButtons);
    setKeyboardTracking(true);
    WheelGuard::install(*this);
}

QString ValueBox::textFromValue(double value) const
{
    QString text = DecimalBox::textFromValue(value).remove(locale().groupSeparator());
    if (!text.contains(locale().decimalPoint()))
        return text;
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith(locale().decimalPoint()))
        text.chop(locale().decimalPoint().size());
    return text;
}

} // namespace ZARN
