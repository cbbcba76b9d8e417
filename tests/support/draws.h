#pragma once

#include <cmath>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

/// A number from `lowest` to `highest`, both above 0, in log steps, so that each decade weighs the same.
[[nodiscard]] inline rc::Gen<double> drawnInLogSteps(double lowest, double highest)
{
    constexpr int steps = 1000000;
    return rc::gen::map(rc::gen::inRange(0, steps + 1), [=](int step) {
        return lowest * std::pow(highest / lowest, static_cast<double>(step) / steps);
    });
}
