#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "prediction/calculation.h"

// Races and distances in words: "10 km 40:00", "half 1:29:30", "marathon 3:05:10"; "15 km", "half".

/// A race: a number, a unit (mi, yd, km, m) and a time, or marathon or half and a time. A time is seconds, m:s or
/// h:m:s, digits alone, with decimals in the seconds; behind a colon minutes and seconds stay below 60.
///   wrong  gets the fault of a text that is no race, with the word that is wrong in quotation marks
/// Returns the race as a row in use. Its number and time are as typed; whether they make sense is left to `calculate`.
[[nodiscard]] std::optional<RaceRow> readRace(std::string_view text, std::string& wrong);

struct NamedDistance
{
    std::string label;     // set like the labels of the predicted table
    double distance = 0;   // m, > 0
};

/// A distance: a number above 0 and a unit, or marathon or half.
[[nodiscard]] std::optional<NamedDistance> readDistance(std::string_view text, std::string& wrong);
