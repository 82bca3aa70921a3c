#pragma once

#include <QString>

#include <optional>
#include <string>

namespace ZARN {

/// How a table of separated values is written: in the fixed form, which programs read, or as the spreadsheets of some place take it
/// without being asked: its decimal sign, dates and separator, units in the titles, texts quoted, a mark for UTF-8.
struct CsvForm {
    static constexpr const char* kThisComputer = "system"; ///< the locale of whoever runs the program

    /// @param locale empty: the fixed form. @param separator of the fixed form; 0: any. @return none for a locale that is not known
    [[nodiscard]] static std::optional<CsvForm> of(const QString& locale, char separator);

    /// The title of a column.
    [[nodiscard]] std::string title(const std::string& name, const std::string& unit) const;
    /// Makes of a display text with words what a cell holds.
    void makeCell(std::string& text) const;
    /// A number as a cell holds it; for spreadsheets, which have none that is not finite, an empty cell. @return its end
    [[nodiscard]] char* number(char* pText, char* pEnd) const { return isForSpreadsheet ? localNumber(pText, pEnd) : pEnd; }

    static constexpr const char* kByteOrderMark = "\xEF\xBB\xBF"; ///< tells spreadsheets that texts are UTF-8

    char separator = ';';
    char decimal = '.';
    bool isForSpreadsheet = false;
    QString dateFormat = {}; ///< as QDate takes it; for spreadsheets

private:
    void quote(std::string& text) const;
    [[nodiscard]] char* localNumber(char* pText, char* pEnd) const;
};

} // namespace ZARN
