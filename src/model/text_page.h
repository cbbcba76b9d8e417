#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Lines of fixed-pitch text, written from left to right and top to bottom as on a printer.
/// Columns are counted from 1. A line that has been begun is part of `lines`.
struct TextPage
{
    std::vector<std::string> lines;
    bool lineOpen = false;   // whether the next item goes to the last line

    friend bool operator==(const TextPage&, const TextPage&) = default;
};

/// Removes every line.
void clear(TextPage& page);

/// Writes `text` at the end of the line under way.
void print(TextPage& page, std::string_view text);

/// Writes a number as a printed item: a blank, a minus if it is negative, the digits without a zero before the point,
/// a blank.
void print(TextPage& page, double number);

/// Moves to column `column`; a column that is already passed stays passed, and the next item follows at once.
void goToColumn(TextPage& page, int column);

/// Moves to the next print zone; zones begin at columns 1, 15, 29, ... (14 characters each).
void goToZone(TextPage& page);

/// Ends the line under way, or adds an empty one.
void newLine(TextPage& page);

/// Writes `text` and ends the line.
void printLine(TextPage& page, std::string_view text);
