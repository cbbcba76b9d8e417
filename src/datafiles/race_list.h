#pragma once

#include <string>
#include <string_view>

#include "datafiles/race_record.h"
#include "model/race_file_state.h"

// The races of a file as the table keeps them and as the list shows them, and what is picked of them.

/// Takes the blanks at a text's ends away, adds one, and goes on adding until the text is at least `width` characters long.
/// It adds one blank at the least, and cuts nothing.
///   leftPad  not 0: in front; 0: behind
[[nodiscard]] std::string padText(std::string_view text, int width, int leftPad);

/// The shortest decimal number that gives the same float again: "0.5", "19.2".
/// Faults: no number, or infinite.
[[nodiscard]] std::string floatText(double single);

/// A cell as it is shown: a number in its shortest form, a text as it is.
/// Faults: as `floatText`.
[[nodiscard]] std::string cellText(const RaceCell& cell);

/// The twelve fields of a record. Bytes that are no characters are blanks in texts.
/// Faults: a number of the record that is none, or infinite.
[[nodiscard]] RaceTableRow rowOf(const RaceRecord& record);

/// A line of the list.
///   pick  the row of the main form that the race was picked into, 1 to 5; 0 for none
[[nodiscard]] std::string raceListLine(const RaceTableRow& row, int pick);

/// Row r of the table.
/// Faults: r outside 0 to 99.
[[nodiscard]] RaceTableRow& raceTableRow(RaceFileState& file, int r);

/// How row r was picked.
/// Faults: r outside 0 to 99.
[[nodiscard]] int& pickOrderOf(RaceFileState& file, int r);

/// Enters that the row clicked in the list goes to `nextSlot`; another row that had gone there has gone nowhere.
/// Faults: `listRow` outside 0 to 99.
void enterPick(RaceFileState& file);

/// Counts a pick: the next one goes one row further, from the last to the first.
void countPick(RaceFileState& file);
