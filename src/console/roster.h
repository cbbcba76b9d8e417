#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "console/runner_entries.h"

// A roster: a CSV file with a header line and then a runner a line.

/// The fields of a line; one in quotation marks may hold commas, and "" for a quotation mark.
///   wrong  gets what is wrong with the line
[[nodiscard]] std::optional<std::vector<std::string>> csvFields(std::string_view line, std::string& wrong);

/// What a run over a roster goes by.
struct RosterRun
{
    std::string name;           // of the roster, for errors
    RunnerEntries defaults;     // for what a line leaves out
    double limitSeconds = 10;   // for one runner
    unsigned workers = 0;       // threads; 0 for one a core
};

/// Predicts every runner of a roster and writes a CSV line for each, in their order. A bad line is told on `errors`
/// as "line N: ...", and so is what the system says of a runner; lines are counted from 1, the header included.
/// Memory does not grow with the roster: lines are read in small batches, of which a fixed number is under way.
/// Returns 0, 1 if a line was bad or the roster can't be read to its end, 2 if the header is of no use; then `out` stays
/// empty.
[[nodiscard]] int predictRoster(std::istream& in, const RosterRun& run, std::ostream& out, std::ostream& errors);
