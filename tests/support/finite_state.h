#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "program/state_names.h"

[[nodiscard]] inline bool isFinite(const StateValue& value)
{
    const auto all = [](const std::vector<double>& numbers) {
        return std::all_of(numbers.begin(), numbers.end(), [](double x) { return std::isfinite(x); });
    };
    if (const double* number = std::get_if<double>(&value))
        return std::isfinite(*number);
    if (const auto* numbers = std::get_if<std::vector<double>>(&value))
        return all(*numbers);
    const auto* columns = std::get_if<std::vector<std::vector<double>>>(&value);
    return !columns || std::all_of(columns->begin(), columns->end(), all);
}

/// Whatever happens, no state holds a NaN or an infinity.
inline void expectFiniteState(const ModelState& state, const std::string& when)
{
    for (const StateName& name : stateNames())
        EXPECT_TRUE(isFinite(name.get(state))) << name.name << when;
}
