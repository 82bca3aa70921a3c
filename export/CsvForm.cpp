#include "export/CsvForm.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cctype>

namespace ZARN {

namespace {

/// The short form of the place with the year in full; the international one where that has more than numbers with a sign between them, which
/// spreadsheets might take for text.
QString dateFormatOf(const QLocale& locale)
{
    static const QRegularExpression numbers("^(d+|M+|y+)([./-])(d+|M+|y+)\\2(d+|M+|y+)$");
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!numbers.match(format).hasMatch() || format.contains("MMM"))
        return QStringLiteral("yyyy-MM-dd");
    static const QRegularExpression year("y+");
    return format.replace(year, "yyyy");
}

/// Of ASCII, or anything beyond it.
bool isLetter(char character)
{
    const auto code = static_cast<unsigned char>(character);
    return code > 127 || std::isalpha(code);
}

CsvForm spreadsheetForm(const QLocale& locale)
{
    const char decimal = locale.decimalPoint() == "," ? ',' : '.';
    // Switzerland writes a point, and lists with semicolons all the same.
    const bool isSwiss = locale.territory() == QLocale::Switzerland || locale.territory() == QLocale::Liechtenstein;
    return {decimal == ',' || isSwiss ? ';' : ',', decimal, true, dateFormatOf(locale)};
}

} // namespace

std::optional<CsvForm> CsvForm::of(const QString& locale, char separator)
{
    if (locale.isEmpty())
        return CsvForm{separator};
    if (locale == kThisComputer)
        return spreadsheetForm(QLocale::system());
    const QLocale named(locale);
    if (named.language() == QLocale::C)
        return std::nullopt;
    return spreadsheetForm(named);
}

std::string CsvForm::title(const std::string& name, const std::string& unit) const
{
    if (!isForSpreadsheet)
        return name;
    std::string text = unit.empty() ? name : name + " [" + unit + "]";
    if (text.find_first_of("=+-@\t\r") == 0)
        text.insert(0, "'"); // a profile's name is never a formula
    quote(text);
    return text;
}

void CsvForm::makeCell(std::string& text) const
{
    if (!isForSpreadsheet)
        return;
    // "1: 30", a number and what it stands for, would be taken for a time.
    const auto colon = text.find(": ");
    if (colon != std::string::npos && std::ranges::none_of(text, isLetter))
        text.replace(colon, 2, " = ");
    quote(text);
}

void CsvForm::quote(std::string& text) const
{
    if (text.find(separator) == std::string::npos && text.find_first_of("\"\r\n") == std::string::npos)
        return;
    std::string quoted = "\"";
    for (const char character : text)
        quoted.append(character == '"' ? 2 : 1, character);
    text = quoted + '"';
}

char* CsvForm::localNumber(char* pText, char* pEnd) const
{
    if (isLetter(pEnd[-1])) // "nan", "inf", "-inf"
        return pText;
    std::replace(pText, pEnd, '.', decimal);
    return pEnd;
}

} // namespace ZARN
