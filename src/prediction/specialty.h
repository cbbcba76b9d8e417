#pragma once

#include "model/arithmetic.h"

// From the ratio of a runner's speeds at 800 m and 5000 m, the distance that the runner is made for.

/// Distance in km; a distance runner's `enduranceExtra` is added to it.
///   speedRatio  speed at 800 m over speed at 5000 m
[[nodiscard]] inline double specialtyAt(double speedRatio)
{
    return exponential(14.6 - 10.83 * speedRatio);
}

/// km: 120 * (1.15 - ratio), squared, where the ratio of a distance runner is below 1.15, else 0.
[[nodiscard]] inline double enduranceExtra(double speedRatio)
{
    return speedRatio < 1.15 ? square(120 * (1.15 - speedRatio)) : 0;
}
