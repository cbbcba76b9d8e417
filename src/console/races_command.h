#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace CLI
{
    class App;
}

enum class RacesFormat { text, csv, json };

/// The command line of `races`.
struct RacesOptions
{
    std::vector<std::string> files;           // the file to be listed; or from where, and to where
    bool importing = false;                   // CSV to a race file
    bool exporting = false;                   // a race file to CSV
    bool force = false;                       // in place of a file that is there; CSV without races that can't be read
    std::optional<RacesFormat> format = {};   // of the list; text if none is given
};

/// Runs `races`: lists a race file, or writes one of CSV, or CSV of one.
/// Returns the exit status: 0, 1 where a file or a line of it is refused, 2 for wrong usage.
[[nodiscard]] int runRaces(const RacesOptions& options, std::ostream& out, std::ostream& errors);

/// Adds the command `races`. Its exit status goes to `status`.
void addRaces(CLI::App& app, int& status);
