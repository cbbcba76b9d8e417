#pragma once

#include "model/model_state.h"

/// Distance at which the runner's performance level peaks.
///   speedRatio  speed at 800 m over speed at 5000 m
/// Walks from a first estimate by tenths of the distance in the direction in which the level rises, to the first fall
/// or beyond 5 m or 250 km, and places the turn between the last steps; a peak above 9 km is searched again from
/// 100 km, and the geometric mean of the two is taken.
/// Returns km. Writes level (at the first estimate), speedRatioAdj, peakSeed, curDistance and ageCompareOn.
/// Faults: a level that has no value on the way, as beyond the ages of the age tables; one that is equal at the start
/// and a step below it, so that the walk has no direction.
[[nodiscard]] double peakDistance(ModelState& state, double speedRatio);

/// The race distances around a peak in km, in words.
[[nodiscard]] const char* distanceBand(double peakKm);
