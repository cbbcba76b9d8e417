#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// A column or a table from elsewhere: a spreadsheet, a CSV file, a watch's export.

inline constexpr std::size_t longestPaste = 1 << 16;   // bytes; what lies behind is not read
inline constexpr std::size_t mostPastedCells = 64;     // in a line
inline constexpr std::size_t longestPastedCell = 64;   // bytes; a longer cell counts as empty

/// What the commas of a text without tabs and semicolons are.
enum class Commas {
    separators,
    maybeDecimal   // decimal points, if no line has more than one and each stands between digits, behind all colons
};

/// The cells of each line of a pasted text, without blanks at their ends. Cells are parted by tabs; in a text without
/// one by semicolons, else by commas, else by blanks. A cell may stand in quotation marks. Where commas do not part
/// cells, one between digits is a decimal point. Empty lines at the end are left out; one in between has no cell.
[[nodiscard]] std::vector<std::vector<std::string>> pastedCells(std::string_view text,
                                                                Commas commas = Commas::separators);
