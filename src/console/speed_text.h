#pragma once

#include <optional>
#include <string>
#include <string_view>

// Speeds, paces and grades in words: "9mph", "14.5 km/h", "4 m/s"; "6:40/mi", "4:09/km"; "3%", "0.03".

/// A speed: a number above 0 and mph, mi/h, km/h, kph or m/s.
///   wrong  gets what is wrong with a text that is none
/// Returns m/s.
[[nodiscard]] std::optional<double> readSpeed(std::string_view text, std::string& wrong);

/// A pace: a time above 0 (s, m:s or h:m:s), a slash, and mi or km.
/// Returns m/s.
[[nodiscard]] std::optional<double> readPace(std::string_view text, std::string& wrong);

/// A grade, in percent or as a fraction.
/// Returns a fraction.
[[nodiscard]] std::optional<double> readGrade(std::string_view text, std::string& wrong);

/// A speed in m/s as a runner reads it: miles and kilometers per hour, pace per mile and per kilometer, in four columns.
/// Faults: a speed of 0.
[[nodiscard]] std::string speedColumns(double speed);
inline constexpr const char* speedHeads = "    mph    km/h   per mile     per km";
