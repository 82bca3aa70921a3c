#include "cli/TextTable.h"

#include "cli/VisibleText.h"

#include <QString>

#include <algorithm>

namespace ZARN {

namespace {

std::size_t widthOf(const std::string& visible)
{
    const bool isPlain = std::all_of(visible.begin(), visible.end(), [](char character) { return character > 0; });
    return isPlain ? visible.size() : static_cast<std::size_t>(QString::fromStdString(visible).size());
}

bool isNumber(const std::string& text)
{
    return !text.empty() && text.find_first_not_of("0123456789+-.e") == std::string::npos;
}

} // namespace

void TableColumns::measure(const std::vector<std::string>& cells)
{
    mWidths.resize(std::max(mWidths.size(), cells.size()));
    for (std::size_t i = 0; i < cells.size(); ++i)
        mWidths[i] = std::max(mWidths[i], widthOf(visibleText(cells[i])));
}

std::string TableColumns::line(const std::vector<std::string>& cells) const
{
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string cell = visibleText(cells[i]);
        const std::string padding(mWidths[i] - widthOf(cell), ' ');
        line += isNumber(cell) ? padding + cell : cell + padding;
        line += "  ";
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line += '\n';
}

TextTable::TextTable(std::vector<std::string> header)
{
    addRow(std::move(header));
}

void TextTable::addRow(std::vector<std::string> cells)
{
    mColumns.measure(cells);
    mRows.push_back(std::move(cells));
}

std::string TextTable::text() const
{
    std::string text;
    for (const auto& row : mRows)
        text += mColumns.line(row);
    return text;
}

} // namespace ZARN
