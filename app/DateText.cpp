#include "app/DateText.h"

namespace ZARN {

QString dateText(const QDate& date)
{
    return date.toString(kDateFormat);
}

QString dateTimeText(const QDateTime& dateTime)
{
    return dateTime.toString("dd.MM.yyyy hh:mm");
}

QString dateSecondsText(const QDateTime& dateTime)
{
    return dateTime.toString("dd.MM.yyyy hh:mm:ss");
}

QString shortDateText(const QDateTime& dateTime)
{
    return dateTime.toString("d.M.yyyy h:mm:ss");
}

QString tableDateText(const QDateTime& dateTime)
{
    return dateTime.toString("yyyy-MM-dd hh:mm:ss");
}

QString isoDateText(const QDateTime& dateTime)
{
    return dateTime.toString("yyyy-MM-ddThh:mm:ss");
}

QString utcDateText(const QDateTime& dateTime)
{
    return dateTime.toString("yyyy-MM-ddThh:mm:ss.zzz'Z'");
}

QString clockText(const QDateTime& dateTime)
{
    return dateTime.toString("hh:mm:ss");
}

} // namespace ZARN
