#pragma once

#include "export/CsvForm.h"
#include "store/LogbookReader.h"
#include "ui/logbook/model/LogbookUnits.h"

#include <QCoreApplication>

namespace ZARN {

class SafeFile;

/// Writes what the logbook shows as tables of text that spreadsheets read, in the form that the user chose for tables: UTF-8, a header line,
/// times in hours.
class LogbookCsv {
    Q_DECLARE_TR_FUNCTIONS(ZARN::LogbookCsv)

public:
    explicit LogbookCsv(CsvForm form) : mForm(std::move(form)) {}

    // Both return false when the file could not be written, and leave what was there before.
    bool writeFlights(SafeFile& file, const std::vector<LogbookEntry>& entries, const LogbookUnits& units) const;
    bool writeNotes(SafeFile& file, const std::vector<LogbookNote>& notes) const;

private:
    [[nodiscard]] std::string header(const QStringList& titles) const;
    [[nodiscard]] std::string line(const QStringList& fields) const;
    [[nodiscard]] QString number(const std::optional<double>& value, int decimals) const;
    /// Empty for none.
    [[nodiscard]] QString date(const QDateTime& date) const;

    const CsvForm mForm;
};

} // namespace ZARN
