#include "cli/TextTable.h"

#include "cli/VisibleText.h"

#include <QString>

#include <algorithm>

namespace ZARN {

namespace {

qsizetype widthOf(const std::string& text)
{
    return QString::fromStdString(text).size();
}

bool isNumber(const std::string& text)
{
    return !text.empty() && text.find_first_not_of("0123456789+-.e") == std::string::npos;
}

} // namespace

TextTable::TextTable(std::vector<std::string> header)
{
    addRow(std::move(header));
}

void TextTable::addRow(std::vector<std::string> cells)
{
    for (std::string& cell : cells)
        cell = visibleText(cell);
    mRows.push_back(std::move(cells));
}

std::string TextTable::text() const
{
    std::vector<qsizetype> widths(mRows.front().size());
    for (const auto& row : mRows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], widthOf(row[i]));
    }
    std::string text;
    for (const auto& row : mRows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string padding(static_cast<std::size_t>(widths[i] - widthOf(row[i])), ' ');
            line += isNumber(row[i]) ? padding + row[i] : row[i] + padding;
            line += "  ";
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

} // namespace ZARN
