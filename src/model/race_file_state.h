#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <variant>
#include <vector>

// What is kept of the open race file and of the races that were picked from it.

inline constexpr int raceTableRows = 100;   // rows 0 to 99; row 0 takes what was written last
inline constexpr int raceFields = 13;       // fields 0 to 12; field 0 stays empty

/// A number, a text, or nothing yet.
using RaceCell = std::variant<std::monostate, double, std::string>;

/// Field 1 is the race number, 2 hours, 3 minutes, 4 seconds, 5 the distance number, 6 to 11 the six flags, 12 the
/// comment.
using RaceTableRow = std::array<RaceCell, static_cast<std::size_t>(raceFields)>;

struct RaceFileState
{
    double raceCount = 0;                  // length of the file in records; a file that was cut has a fraction of one
    std::vector<RaceTableRow> raceTable;   // row r is the file's record r; no rows before a file has been opened
    std::array<int, static_cast<std::size_t>(raceTableRows)> pickOrder{};   // 1 to 5: where the row went to; 0: nowhere
    int nextSlot = 0;   // 0 to 4: row of the main form that the next pick goes to
    int pickedCount = 0;
    int listRow = 0;   // row of the list that was clicked last, from 1
};
