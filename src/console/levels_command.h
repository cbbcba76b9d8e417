#pragma once

#include <iosfwd>
#include <string>

#include "console/runner_options.h"
#include "tables/performance_table.h"

/// The command line of `levels`: a performance table.
struct LevelsOptions : RunnerOptions
{
    TableKind kind = TableKind::levels;
    std::string minimum = {};   // empty: what the window has
    std::string interval = "5";
    std::string lev = "100";   // percent, of times by age
    bool json = false;
};

/// Runs `levels`. The table of a runner by age needs races; with races the others stand, too, as the window shows them
/// after their calculation.
/// Returns the exit status: 0, 1 where the system refuses or a calculation stops, 2 for wrong usage.
[[nodiscard]] int tellLevels(const LevelsOptions& options, std::ostream& out, std::ostream& errors);

/// Adds the command `levels`. Its exit status goes to `status`.
void addLevels(CLI::App& app, int& status);
