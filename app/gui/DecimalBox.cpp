#include "app/gui/DecimalBox.h"

DecimalBox::DecimalBox(QWidget* pParent) : QDoubleSpinBox(pParent)
{
    setKeyboardTracking(false);
}

/// Thousands are never typed here: a point or a comma is the decimal sign, whichever it is.
QString DecimalBox::withDecimalSign(const QString& text) const
{
    const qsizetype start = text.startsWith(prefix()) ? prefix().size() : 0;
    return text.first(start) + text.mid(start).replace(',', '.').replace(".", locale().decimalPoint());
}

double DecimalBox::valueFromText(const QString& text) const
{
    return QDoubleSpinBox::valueFromText(withDecimalSign(text));
}

QValidator::State DecimalBox::validate(QString& text, int& position) const
{
    text = withDecimalSign(text);
    return QDoubleSpinBox::validate(text, position);
}
