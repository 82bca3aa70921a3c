#pragma once

#include <string>
#include <vector>

namespace ZARN {

/// A table for people: columns as wide as their longest text, numbers to the right. Texts may come from a card: they are made visible.
class TextTable {
public:
    explicit TextTable(std::vector<std::string> header);
    void addRow(std::vector<std::string> cells);
    [[nodiscard]] std::string text() const;

private:
    std::vector<std::vector<std::string>> mRows; // the header first
};

} // namespace ZARN
