#pragma once

#include <iosfwd>

#include "console/runner_options.h"
#include "console/runner_report.h"

/// The command line of `report` and of `analysis`.
struct ReportOptions : RunnerOptions
{
    bool json = false;
};

/// Runs `report` or `analysis` for one runner.
///   errors  gets messages, faults and errors
/// Returns the exit status: 0, 1 when the system refused or the calculation stopped, 2 for wrong usage.
[[nodiscard]] int report(const ReportOptions& options, ReportKind kind, std::ostream& out, std::ostream& errors);

/// Adds the commands `report` and `analysis`. Their exit status goes to `status`.
void addReports(CLI::App& app, int& status);
