#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"

// How the tools about power and slopes show a pace and a weight.

/// The last `count` characters of a text, or all of it.
[[nodiscard]] inline std::string lastOf(std::string_view text, std::size_t count)
{
    return std::string(text.substr(text.size() - std::min(text.size(), count)));
}

/// A pace of so many seconds in seven columns: of `formatTime`'s ten the last seven.
[[nodiscard]] inline std::string paceText(double seconds)
{
    return lastOf(formatTime(seconds), 7);
}

/// A weight in kilograms as a whole number of pounds, a tie to the even one.
[[nodiscard]] inline long long wholePounds(double kilograms)
{
    constexpr double most = 1e9;   // far beyond any runner, and within a whole number
    return static_cast<long long>(std::clamp(roundHalfEven(kilograms / kilogramsPerPound), -most, most));
}
