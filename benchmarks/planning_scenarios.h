#pragma once

#include <string>

#include "analysis/training_analysis.h"
#include "prediction/calculate.h"
#include "scenarios.h"
#include "splits/split_analysis.h"
#include "workouts/workout_plan.h"

// What is planned and analysed while it is timed and counted.

inline constexpr const char* planRow = "Workout plan, 5 rows";
inline constexpr const char* splitsRow = "Splits analysis, 27 rows";

/// The state of a man of 40 after a Re-Calculate with two races and the training analysis.
[[nodiscard]] inline ModelState analysedRunner()
{
    ModelState state;
    CalculationInput input = recalculations()[2].input;
    CalculationResults results;
    Messages messages;
    recalculate(state, input, results, messages);
    state.runner.maxHr = 185;
    state.runner.restHr = 50;
    (void)trainingAnalysis(state);
    return state;
}

[[nodiscard]] inline WorkoutEntries fiveRows()
{
    return {
        {{"400", "4", "83"}, {"600", "2", "100"}, {"800", "5", "114"}, {"1200", "1", "137"}, {"1609.3", "1", "156"}}};
}

[[nodiscard]] inline SplitEntries fullGrid()
{
    SplitEntries entries;
    int i = 0;
    for (SplitEntry& entry : entries)
        entry = {"400", "1", std::to_string(15 + (i++ * 7) % 11) + ".5"};
    return entries;
}
