#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace ZARN {

/// The columns of a table for people, made visible as all texts: as wide as the longest text that was measured, numbers to the right.
class TableColumns {
public:
    void measure(const std::vector<std::string>& cells);
    /// A row, with its line break.
    [[nodiscard]] std::string line(const std::vector<std::string>& cells) const;

private:
    std::vector<std::size_t> mWidths;
};

/// A table for people that is short enough to be held.
class TextTable {
public:
    explicit TextTable(std::vector<std::string> header);
    void addRow(std::vector<std::string> cells);
    [[nodiscard]] std::string text() const;

private:
    TableColumns mColumns;
    std::vector<std::vector<std::string>> mRows; // the header first
};

} // namespace ZARN
