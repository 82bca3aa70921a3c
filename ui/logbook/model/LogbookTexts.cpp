#include "ui/logbook/model/LogbookTexts.h"

#include "analysis/IncidentText.h"
#include "app/DateText.h"
#include "app/TimeText.h"

namespace ZARN {

namespace {

QString decimal(double number, int decimals = 1)
{
    return QLocale().toString(number, 'f', decimals);
}

} // namespace

QString LogbookTexts::engine(const std::string& id, const std::string& aircraft)
{
    QString name = QString::fromStdString(id);
    if (name.startsWith("ecu:"))
        name = tr("unit %1").arg(name.mid(4));
    else if (name.startsWith("card:"))
        name = tr("card %1").arg(name.mid(5));
    return aircraft.empty() ? name : QString::fromStdString(aircraft) + " (" + name + ")";
}

QString LogbookTexts::hours(double hours)
{
    return decimal(hours);
}

QString LogbookTexts::dateTime(const std::string& text)
{
    return dateTimeText(QDateTime::fromString(QString::fromStdString(text), Qt::ISODate));
}

QString LogbookTexts::date(const QDate& date)
{
    return date.isValid() ? dateText(date) : QStringLiteral("-");
}

QString LogbookTexts::verdictName(EVerdict verdict)
{
    switch (verdict) {
    case EVerdict::eOk: return tr("OK");
    case EVerdict::eWarning: return tr("Warning");
    case EVerdict::eLimit: return tr("Limit");
    case EVerdict::eUnknown: break;
    }
    return tr("Unknown");
}

QString LogbookTexts::phase(const std::string& key)
{
    for (const EFlightPhase phase : {EFlightPhase::eOff, EFlightPhase::eGround, EFlightPhase::eTakeOff, EFlightPhase::eClimb,
                                     EFlightPhase::eLevel, EFlightPhase::eDescent}) {
        if (key == phaseKey(phase))
            return IncidentText::phaseText(phase);
    }
    return QString::fromStdString(key);
}

QString LogbookTexts::totals(const LogbookTotals& totals, const LogbookUnits& units)
{
    QStringList parts{totals.flights == 1 ? tr("1 flight") : tr("%1 flights").arg(QLocale().toString(static_cast<qulonglong>(totals.flights))),
                      tr("in flight %1 h").arg(hoursText(totals.flightTime))};
    if (totals.running) {
        const QString hours = tr("engine ran %1 h in these cycles").arg(hoursText(*totals.running));
        parts.append(totals.cyclesWithoutEngine == 0 ? hours : tr("%1 (%n cycle(s) do not tell)", nullptr, static_cast<int>(totals.cyclesWithoutEngine)).arg(hours));
    }
    if (totals.fuel) {
        const QString fuel = tr("fuel in flight %1 %2").arg(decimal(*units.fuel(totals.fuel)), units.fuelUnit());
        parts.append(totals.flightsWithoutFuel == 0 ? fuel : tr("%1 (%n flight(s) do not tell)", nullptr, static_cast<int>(totals.flightsWithoutFuel)).arg(fuel));
    }
    return parts.join(", ");
}

QString LogbookTexts::engineHours(const LogbookEngine& engine)
{
    QString text = engine.hoursBefore ? tr("%1 h: %2 h before the first recording and %3 h recorded")
                                            .arg(hours(engine.hours()), hours(*engine.hoursBefore), hours(engine.running / 3600))
                                      : tr("%1 h recorded; the hours before the first recording are not entered").arg(hours(engine.running / 3600));
    for (const LogbookEngine& merged : engine.merged) {
        if (merged.hoursBefore)
            text += "; " + tr("not counted: %1 h that were entered as the hours before of %2").arg(hours(*merged.hoursBefore), LogbookTexts::engine(merged.id, merged.aircraft));
    }
    if (engine.unknownCycles > 0)
        text += "; " + tr("cycles that do not tell whether the engine ran: %1").arg(engine.unknownCycles);
    if (engine.recordings.several > 0)
        text += ".\n" + tr("Recordings of which there are several copies, not all of them whole, and which count once: %1").arg(engine.recordings.several);
    if (engine.recordings.overlapping > 0)
        text += ".\n" + tr("Two units with one serial number, or a wrong clock? Recordings that overlap with another one, and count as well: %1")
                           .arg(engine.recordings.overlapping);
    if (engine.recordings.clockBacks > 0)
        text += ".\n" + tr("The unit's clock went back from one recording to the next, so that dates, and what is due by them, may be wrong: %n time(s)", nullptr,
                           static_cast<int>(engine.recordings.clockBacks));
    if (engine.isLossy)
        text += ".\n" + tr("Recordings were lost when the logbook was damaged: it may have run more. Open the cards that you still have, then enter the hours "
                           "before anew, with what is missing");
    if (engine.counter)
        text += ".\n" + tr("The unit's own counter: %1 h on %2").arg(hours(*engine.counter), date(engine.counterDate.date()));
    return text + ".";
}

QString LogbookTexts::interval(const Service& service)
{
    QStringList parts;
    if (service.everyHours)
        parts.append(tr("%1 h").arg(decimal(*service.everyHours)));
    if (service.everyMonths)
        parts.append(*service.everyMonths == 1 ? tr("1 month") : tr("%1 months").arg(*service.everyMonths));
    return parts.join(tr(" or "));
}

QString LogbookTexts::due(const Service& service, const ServiceDue& due)
{
    const bool isTooManyHours = due.hoursLeft && *due.hoursLeft <= 0;
    if (isTooManyHours || due.isDateOver) { // what is still to come tells nothing any more
        QStringList over;
        if (isTooManyHours)
            over.append(tr("%1 h ago").arg(hours(-*due.hoursLeft)));
        if (due.isDateOver)
            over.append(tr("since %1").arg(date(due.date)));
        return over.join(", ");
    }
    QStringList parts;
    if (due.isOfOtherCount)
        parts.append(tr("not known: done at %1 h of %2, please confirm")
                         .arg(hours(service.doneHours.value_or(0.0)), engine(service.engine, {})));
    if (due.knownHours)
        parts.append(tr("not known: done at %1 h, the logbook has %2 h").arg(hours(service.doneHours.value_or(0.0)), hours(*due.knownHours)));
    if (due.hoursLeft)
        parts.append((due.isAtMost ? tr("in at most %1 h") : tr("in %1 h")).arg(hours(*due.hoursLeft)));
    if (due.date.isValid())
        parts.append(tr("on %1").arg(date(due.date)));
    else if (service.everyMonths && !parts.isEmpty())
        parts.append(tr("a day that is not known: enter when it was done"));
    return parts.isEmpty() ? tr("not known: enter when it was done") : parts.join(tr(" or "));
}

QString LogbookTexts::warning(const Service& service, const ServiceDue& due)
{
    const QString text = due.state == ServiceDue::eOverdue ? tr("Overdue: %1, %2") : due.state == ServiceDue::eSoon ? tr("Due soon: %1, %2") : tr("In doubt: %1, %2");
    return due.state < ServiceDue::eInDoubt ? QString() : text.arg(service.name, LogbookTexts::due(service, due));
}

} // namespace ZARN
