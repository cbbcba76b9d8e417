#pragma once

#include <string>
#include <vector>

#include "prediction/calculation.h"

/// One Re-Calculate that is timed, and whose calls of elementary functions are counted.
struct Scenario
{
    std::string name;
    CalculationInput input;
    double targetMilliseconds = 0;
};

/// 1, 2 and 5 races in both fit modes, and one race with English output.
[[nodiscard]] inline std::vector<Scenario> recalculations()
{
    CalculationInput one;
    one.age = "40";
    one.weeklyMiles = 30;
    one.fit = FitMode::allData;
    one.output = OutputMode::metric;
    one.rows[0] = {true, "", "19", "20", "5", RaceUnit::kilometers};

    CalculationInput two = one;
    two.rows[1] = {true, "1", "29", "30", "", RaceUnit::halfMarathon};

    CalculationInput five = two;
    five.rows[2] = {true, "", "2", "18", "800", RaceUnit::meters};
    five.rows[3] = {true, "", "40", "15", "10", RaceUnit::kilometers};
    five.rows[4] = {true, "3", "12", "40", "", RaceUnit::marathon};

    CalculationInput english = one;
    english.output = OutputMode::english;
    const auto best = [](CalculationInput input) {
        input.fit = FitMode::bestTwo;
        return input;
    };
    return {{"Re-Calculate, 1 race", one, 1},
            {"Re-Calculate, 1 race, English output", english, 1},
            {"Re-Calculate, 2 races, use all data", two, 5},
            {"Re-Calculate, 2 races, fit best two", best(two), 5},
            {"Re-Calculate, 5 races, use all data", five, 5},
            {"Re-Calculate, 5 races, fit best two", best(five), 5}};
}
