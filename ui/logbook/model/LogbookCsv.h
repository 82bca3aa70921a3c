#pragma once

#include "store/LogbookReader.h"

#include <QCoreApplication>

namespace ZARN {

class SafeFile;

/// Writes what the logbook shows as tables of text that spreadsheets read: UTF-8, a header line, numbers with a point, times in hours.
class LogbookCsv {
    Q_DECLARE_TR_FUNCTIONS(ZARN::LogbookCsv)

public:
    /// @param separator of the fields; a tab, a comma or a semicolon
    explicit LogbookCsv(char separator) : mSeparator(separator) {}

    // Both return false when the file could not be written, and leave what was there before.
    bool writeFlights(SafeFile& file, const std::vector<LogbookEntry>& entries) const;
    bool writeNotes(SafeFile& file, const std::vector<LogbookNote>& notes) const;

private:
    [[nodiscard]] std::string line(const QStringList& fields) const;

    const char mSeparator;
};

} // namespace ZARN
