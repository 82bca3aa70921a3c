#pragma once

#include <QLocale>

namespace ZARN {

/// How numbers and dates are written in sentences of a language. A point never parts thousands: beside values with a decimal point
/// "1.587 hPa" would pass for one and a half.
[[nodiscard]] inline QLocale textLocale(const QString& name)
{
    QLocale locale(name);
    if (locale.groupSeparator() == ".")
        locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return locale;
}

} // namespace ZARN
