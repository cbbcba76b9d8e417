#pragma once

#include <initializer_list>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "console/runner_entries.h"

namespace CLI
{
    class App;
}

// The options that describe one runner, the same for every command that predicts from races.

inline constexpr int exitRefused = 1;
inline constexpr int exitWrongUsage = 2;

struct RunnerOptions
{
    std::vector<std::pair<std::string, std::string>> entries;   // key of `entryNames` and text, as typed
    std::string from;                                           // runner file
    double limitSeconds = 10;                                   // for one runner's searches, > 0
};

/// Adds these options to a command.
void addRunnerOptions(CLI::App& command, RunnerOptions& options);

/// The entries as typed, over those of the runner file if there is one; nothing for wrong usage, and `wrong` says why.
[[nodiscard]] std::optional<RunnerEntries> entriesOf(const RunnerOptions& options, std::string& wrong);

/// What is wrong where one of these options has been typed, which ask for what a command does not give; nothing if none
/// has. Facts of the runner can be told to every command, and a runner file may hold anything.
[[nodiscard]] std::optional<std::string> uselessOption(const RunnerOptions& options, std::string_view command,
                                                       std::initializer_list<std::string_view> keys);

/// The exit status of a command whose output is complete: `status`, or 1 if the output can't be written.
[[nodiscard]] int written(int status, std::ostream& out, std::ostream& errors);
