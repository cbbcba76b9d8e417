#pragma once

#include <iosfwd>
#include <string>

#include "console/runner_options.h"

/// The command line of `heat`: weather, and a runner with one or two races in near-ideal weather, or none.
struct HeatOptions : RunnerOptions
{
    std::string temperature = {};   // "85F" or "29.4C"
    double humidity = 0;            // percent, 0 to 100
    double sun = 5;                 // 0 to 10
    bool json = false;
};

/// Runs `heat`: the weather's indices, and what the weather does to the runner's times.
/// Returns the exit status: 0, 1 where the system refuses or a calculation stops, 2 for wrong usage.
[[nodiscard]] int tellHeat(const HeatOptions& options, std::ostream& out, std::ostream& errors);

/// Adds the command `heat`. Its exit status goes to `status`.
void addHeat(CLI::App& app, int& status);
