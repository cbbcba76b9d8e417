#pragma once

#include <string>

#include "datafiles/race_record.h"

// Lines of the list: of `parkrun()`, of a row of the table without anything, and of a record of zeros.
inline const std::string parkrunLine = "    1   0   19   20.5       5           X              Parkrun, wet   ";
inline const std::string blankLine(70, ' ');
inline const std::string zeroLine = "    0   0    0      0       0" + std::string(41, ' ');

/// A file of that many races, each with its number, and its number of minutes.
[[nodiscard]] inline std::string manyRaces(int count)
{
    std::string bytes;
    for (int n = 1; n <= count; ++n)
        bytes += bytesOf(recordOf({std::to_string(n), "", std::to_string(n), "", "5", 3, "race"}));
    return bytes;
}
