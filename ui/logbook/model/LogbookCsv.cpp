#include "ui/logbook/model/LogbookCsv.h"

#include "app/DateText.h"
#include "app/SafeFile.h"
#include "app/TimeText.h"
#include "ui/logbook/model/LogbookTexts.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr qint64 kCutOff = 500; // milliseconds: dates of a store are cut to whole seconds, by half of one in the mean

/// What a spreadsheet would take for a formula, and is no number or time below zero.
bool isFormula(const QString& field)
{
    if (field.isEmpty() || !QStringLiteral("=+-@\t\r").contains(field[0]))
        return false;
    const auto isOfNumber = [](QChar character) { return character.isDigit() || QStringLiteral(".,:").contains(character); };
    return !QStringLiteral("+-").contains(field[0]) || field.size() == 1 || !std::all_of(field.begin() + 1, field.end(), isOfNumber);
}

QDateTime dateOf(const std::string& text)
{
    return QDateTime::fromString(QString::fromStdString(text), Qt::ISODate);
}

} // namespace

QString LogbookCsv::number(const std::optional<double>& value, int decimals) const
{
    return value && std::isfinite(*value) ? QString::number(*value, 'f', decimals).replace('.', QLatin1Char(mForm.decimal)) : QString();
}

QString LogbookCsv::date(const QDateTime& date) const
{
    return mForm.isForSpreadsheet ? date.toString(mForm.dateFormat + " hh:mm:ss") : isoDateText(date);
}

std::string LogbookCsv::header(const QStringList& titles) const
{
    return (mForm.isForSpreadsheet ? CsvForm::kByteOrderMark : "") + line(titles);
}

std::string LogbookCsv::line(const QStringList& fields) const
{
    QStringList quoted;
    for (QString field : fields) {
        if (isFormula(field))
            field.prepend('\'');
        if (field.contains(QLatin1Char(mForm.separator)) || field.contains('"') || field.contains('\n') || field.contains('\r'))
            field = '"' + field.replace('"', "\"\"") + '"';
        quoted.append(field);
    }
    return quoted.join(QLatin1Char(mForm.separator)).toStdString() + "\r\n";
}

bool LogbookCsv::writeFlights(SafeFile& file, const std::vector<LogbookEntry>& entries, const LogbookUnits& units) const
{
    if (!file.open() || !file.write(header({tr("Date"), tr("Aircraft"), tr("Engine"), tr("Flight time [h]"), tr("Fuel [%1]").arg(units.fuelUnit()),
                                            tr("Climb [%1]").arg(units.climbUnit()), tr("Verdict"), tr("Card"), tr("Cycle"), tr("Flight"), tr("Notes")})))
        return false;
    for (const LogbookEntry& entry : entries) {
        if (entry.flight != 0 &&
            !file.write(line({date(dateOf(entry.dateTime)), QString::fromStdString(entry.aircraft), QString::fromStdString(entry.engine),
                              number(entry.flightTime / 3600, 4), number(units.fuel(entry.fuel), 2), number(units.climb(entry.climb), 1),
                              LogbookTexts::verdictName(entry.verdict), QString::fromStdString(entry.cardName),
                              QString::number(entry.cycle), QString::number(entry.number), entry.notes})))
            return false;
    }
    return file.commit();
}

bool LogbookCsv::writeNotes(SafeFile& file, const std::vector<LogbookNote>& notes) const
{
    if (!file.open() || !file.write(header({tr("Date"), tr("Time since power-up"), tr("Note"), tr("Written"), tr("Engine"), tr("Card"),
                                            tr("Cycle"), tr("Recording")})))
        return false;
    for (const LogbookNote& note : notes) {
        const QDateTime cycle = dateOf(note.dateTime);
        const QDateTime moment = cycle.isValid() ? cycle.addMSecs(wholeMilliseconds(note.note.time) + kCutOff) : QDateTime();
        if (!file.write(line({date(moment), signedTimeText(wholeMilliseconds(note.note.time)), note.note.text, date(note.note.written),
                              QString::fromStdString(note.engine), QString::fromStdString(note.card),
                              note.cycle > 0 ? QString::number(note.cycle) : QString(), QString::fromStdString(note.cycleId)})))
            return false;
    }
    return file.commit();
}

} // namespace ZARN
