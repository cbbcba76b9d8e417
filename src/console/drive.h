#pragma once

#include <iosfwd>

inline constexpr double defaultLimitSeconds = 10;

/// Runs a script of form operations, one a line, and writes one JSON object a line for what comes of them, in the
/// order of events. Its words are told in docs/console.md.
///   limitSeconds  how long one operation may take in a loop that has no cap of its own; beyond it is a fault
/// Returns the exit status: 0, or 2 where a mistake of the script has ended it.
[[nodiscard]] int drive(std::istream& script, std::ostream& out, double limitSeconds);
