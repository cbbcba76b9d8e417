#pragma once

#include <iosfwd>
#include <string>

#include "console/runner_options.h"

namespace CLI
{
    class App;
}

enum class PredictFormat { text, csv, json };

/// The command line of `predict`.
struct PredictOptions : RunnerOptions
{
    std::string roster;   // CSV file, or "-" for standard input
    PredictFormat format = PredictFormat::text;
};

/// Runs `predict`: one runner's table, or a roster's.
///   in      the roster when it is "-"
///   errors  gets messages, faults and errors
/// Returns the exit status: 0, 1 when the system refused or a line of the roster was bad, 2 for wrong usage; then
/// `out` stays empty.
[[nodiscard]] int predict(const PredictOptions& options, std::istream& in, std::ostream& out, std::ostream& errors);

/// The same for what reads no standard input.
[[nodiscard]] int predict(const PredictOptions& options, std::ostream& out, std::ostream& errors);

/// Adds the command `predict`. Its exit status goes to `status`.
void addPredict(CLI::App& app, int& status);
