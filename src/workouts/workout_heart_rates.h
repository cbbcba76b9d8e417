#pragma once

#include "model/model_state.h"
#include "workouts/workout_plan.h"

/// Beats a minute, if not said otherwise: typical highest and lowest rates of the cycle of effort and recovery.
struct WorkoutHeartRates
{
    double effortHr = 0;   // may pass maxHr
    double recoveryHr = 0;
    double meanHr = 0;
    double hrPercentMax = 0;       // effortHr, percent of maxHr
    double hrPercentReserve = 0;   // percent of the way from restHr to maxHr
};

/// The heart rates of a plan: steady rates at its mean speeds, a drift with its duration, and efforts and recoveries
/// that are too short for the heart to follow.
///   plan  the times as they are shown
/// Faults: a time of fast running of 0; as `hrAtSpeed`; a maxHr equal to restHr.
[[nodiscard]] WorkoutHeartRates workoutHeartRates(const ModelState& state, const WorkoutPlan& plan,
                                                  const WorkoutSettings& settings);
