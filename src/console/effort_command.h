#pragma once

#include <iosfwd>
#include <optional>
#include <string>

namespace CLI
{
    class App;
}

/// What the command lines of `incline` and `power` share.
struct EffortOptions
{
    std::string grade = "0";      // "3%" or "0.03"
    std::string pace = {};        // "6:40/mi"; this or a speed
    std::string speed = {};       // "9mph"
    std::string treadmill = {};   // empty, or what a treadmill is compared with: "outdoors" or "indoors"
    bool indoors = false;         // no air resistance
    double wind = 0;              // m/s, positive is a head wind
    double kgWeight = 72.7;       // > 0
    double cmHeight = 178;        // > 0
    bool json = false;
    double limitSeconds = 10;   // for a search without an end
};

/// Runs `incline`: speeds of the same effort on a grade and on the level.
/// Returns the exit status: 0, 1 where a search faults, 2 for wrong usage.
[[nodiscard]] int convertIncline(const EffortOptions& options, std::ostream& out, std::ostream& errors);

/// Runs `power`: what running at a speed takes and yields.
/// Returns the exit status, likewise.
[[nodiscard]] int tellPower(const EffortOptions& options, std::ostream& out, std::ostream& errors);

/// Adds the commands `incline` and `power`. Their exit status goes to `status`.
void addEffort(CLI::App& app, int& status);
