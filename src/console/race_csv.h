#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "datafiles/race_record.h"

// Races as CSV: a line of headings, then a race a line, in the order of the file. Columns are number, hours, minutes,
// seconds, distance, unit (mi, yd, km, m, marathon, half) and comment, in UTF-8.

inline constexpr std::size_t longestRaceCsv = 1 << 25;   // bytes

/// What is wrong with a line, or what of it could not be kept.
struct CsvRemark
{
    long long line = 0;   // from 1, the headings included
    std::string text;
};

struct RaceCsv
{
    std::vector<RaceRecord> records;
    std::vector<CsvRemark> errors;     // if there are any, no record counts
    bool isCutShort = false;           // after 100 errors the rest has not been read
    std::vector<CsvRemark> warnings;   // comments that were cut, or had characters that the code page has not
};

/// The words of a record's unit, parted by blanks where a damaged file has several; empty for none.
[[nodiscard]] std::string unitWords(const RaceRecord& record);

/// A comment in UTF-8, without the blanks behind it.
[[nodiscard]] std::string commentText(const RaceRecord& record);

/// The headings, and a line a record. A zero with a minus keeps it.
/// Faults: a number that is none, or infinite.
[[nodiscard]] std::string csvOf(const std::vector<RaceRecord>& records);

/// Races from CSV. Columns stand in any order; what is left out is 0, blank, or for the race number the place in the
/// file. Empty lines are skipped, and so is a byte order mark. A line above 65536 bytes is refused.
[[nodiscard]] RaceCsv racesOfCsv(std::string_view bytes);
