#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <sstream>

#include <gtest/gtest.h>

/// Whether two numbers agree within `tolerance`, relative to the larger one; 0 agrees with 0 alone.
/// 1e-9 is what a number is held to as a rule: far below what is shown, far above the last bits in which another
/// order of the same operations may differ.
[[nodiscard]] inline testing::AssertionResult closeTo(double got, double expected, double tolerance = 1e-9)
{
    const double size = std::max(std::abs(got), std::abs(expected));
    if (got == expected || std::abs(got - expected) <= tolerance * size)
        return testing::AssertionSuccess();
    std::ostringstream words;
    words.precision(std::numeric_limits<double>::max_digits10);
    words << got << " instead of " << expected << ", a difference of " << got - expected;
    return testing::AssertionFailure() << words.str();
}
