#include "ui/logbook/model/LogbookCsv.h"

#include "app/SafeFile.h"
#include "app/TimeText.h"
#include "ui/logbook/model/LogbookTexts.h"

#include <cmath>

namespace ZARN {

namespace {

QString number(const std::optional<double>& value, int decimals)
{
    return value && std::isfinite(*value) ? QString::number(*value, 'f', decimals) : QString();
}

} // namespace

std::string LogbookCsv::line(const QStringList& fields) const
{
    QStringList quoted;
    for (QString field : fields) {
        // What a spreadsheet would take for a formula is text.
        const bool isFormula = !field.isEmpty() && QStringLiteral("=+-@\t").contains(field[0]) && !field[0].isDigit() && field.size() > 1 && !field[1].isDigit();
        if (isFormula)
            field.prepend('\'');
        if (field.contains(QLatin1Char(mSeparator)) || field.contains('"') || field.contains('\n') || field.contains('\r'))
            field = '"' + field.replace('"', "\"\"") + '"';
        quoted.append(field);
    }
    return quoted.join(QLatin1Char(mSeparator)).toStdString() + "\r\n";
}

bool LogbookCsv::writeFlights(SafeFile& file, const std::vector<LogbookEntry>& entries) const
{
    if (!file.open() ||
        !file.write(line({tr("Date"), tr("Aircraft"), tr("Engine"), tr("Flight time [h]"), tr("Fuel [l]"), tr("Climb [m]"), tr("Verdict"),
                          tr("Card"), tr("Cycle"), tr("Flight"), tr("Notes")})))
        return false;
    for (const LogbookEntry& entry : entries) {
        if (entry.flight != 0 &&
            !file.write(line({QString::fromStdString(entry.dateTime), QString::fromStdString(entry.aircraft), QString::fromStdString(entry.engine),
                              number(entry.flightTime / 3600, 4), number(entry.fuel, 2), number(entry.climb, 1),
                              LogbookTexts::verdictName(entry.verdict), QString::fromStdString(entry.cardName), QString::number(entry.cycle),
                              QString::number(entry.number), entry.notes})))
            return false;
    }
    return file.commit();
}

bool LogbookCsv::writeNotes(SafeFile& file, const std::vector<LogbookNote>& notes) const
{
    if (!file.open() || !file.write(line({tr("Date"), tr("Time since power-up"), tr("Note"), tr("Written"), tr("Engine"), tr("Card"),
                                          tr("Cycle"), tr("Recording")})))
        return false;
    for (const LogbookNote& note : notes) {
        const QDateTime cycle = QDateTime::fromString(QString::fromStdString(note.dateTime), Qt::ISODate);
        const QDateTime moment = cycle.isValid() ? cycle.addMSecs(wholeMilliseconds(note.note.time)) : QDateTime();
        if (!file.write(line({moment.toString(Qt::ISODate), signedTimeText(wholeMilliseconds(note.note.time)), note.note.text,
                              note.note.written.toString("yyyy-MM-ddThh:mm:ss"), QString::fromStdString(note.engine), QString::fromStdString(note.card),
                              note.cycle > 0 ? QString::number(note.cycle) : QString(), QString::fromStdString(note.cycleId)})))
            return false;
    }
    return file.commit();
}

} // namespace ZARN
