#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace CLI
{
    class App;
}

/// The command line of `call`.
struct CallOptions
{
    std::string name;
    std::vector<std::string> arguments;
    std::string runner;         // runner file whose curve the function reads; empty for none
    double limitSeconds = 10;   // for fitting that curve
};

/// Calls one function and prints its value as a line of JSON.
/// Returns the exit status: 0, 1 where the function or the fit faults, 2 for wrong usage.
[[nodiscard]] int callByName(const CallOptions& options, std::ostream& out, std::ostream& errors);

/// Adds the command `call NAME ARGS...`. Its exit status goes to `status`.
void addCall(CLI::App& app, int& status);
