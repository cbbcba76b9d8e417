#pragma once

#include <optional>
#include <string>
#include <vector>

// Splits from a spreadsheet or a watch's export, as texts for the boxes of the grid.

enum class SplitColumn { distance = 0, minutes = 1, seconds = 2 };

/// What is written into the boxes of one row; a box without a text keeps what it holds.
struct SplitTexts
{
    std::optional<std::string> distance, minutes, seconds;

    friend bool operator==(const SplitTexts&, const SplitTexts&) = default;
};

/// A time in seconds as it is typed: whole minutes and the rest, "75.3" as 1 and 15.3.
[[nodiscard]] SplitTexts timeTexts(double seconds);

/// Reads the rows of a table.
///   lines   the cells of each line; headings of the columns come first, if there are any
///   cursor  the column of the box that the table goes to
/// Headings say which column is which: one with "dist", one with "time" or "duration", or "Minutes" and "Seconds",
/// "min" and "sec" for short. If they name no time, or there are none, times are told by their colons, and the
/// distances stand beside them; without a colon columns are distance, time in seconds, or distance, minutes, seconds.
/// From a box for minutes or seconds on only times are taken. A line that sums up the others is left out, and so is
/// what is no number and no time.
/// Returns nothing when there is no number and no time.
[[nodiscard]] std::vector<SplitTexts> pastedSplits(const std::vector<std::vector<std::string>>& lines,
                                                   SplitColumn cursor);
