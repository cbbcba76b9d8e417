#pragma once

#include <string>
#include <vector>

/// Rows of cells, as they are copied or saved. A row without a cell is an empty line.
struct TextTable
{
    std::vector<std::vector<std::string>> rows;

    friend bool operator==(const TextTable&, const TextTable&) = default;
};

/// The table as lines: cells without the blanks at their ends, each column as wide as its widest cell in a block of
/// rows without an empty line, two blanks between columns.
[[nodiscard]] std::string textOf(const TextTable& table);

/// The table as CSV; a cell with a comma or a quotation mark stands in quotation marks.
[[nodiscard]] std::string csvOf(const TextTable& table);
