#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

/// One row of a table in a file: its values by the names of their columns, which the file's first line holds.
struct TableRow
{
    std::string name;   // the column `name`
    std::map<std::string, std::string> values;

    [[nodiscard]] const std::string& text(const std::string& column) const;

    /// The value of a column as a number. It must be one, whole and nothing else.
    [[nodiscard]] double number(const std::string& column) const;

    /// The only letter of a column.
    [[nodiscard]] char letter(const std::string& column) const;

    friend std::ostream& operator<<(std::ostream& out, const TableRow& row);
};

/// The rows of a file below tests/, values parted by commas. Throws std::runtime_error for a file that is missing,
/// empty, or holds a row that is longer or shorter than the first line.
[[nodiscard]] std::vector<TableRow> readTable(const std::string& path);
