#pragma once

#include "model/model_state.h"

/// Where `distanceFor` ended.
struct FoundDistance
{
    double distance = 0;   // m
    double time = 0;       // s
    double speed = 0;      // m/s, distance over time
};

/// Searches the distance that the state's curve covers in a time.
///   target  s
///   seed    m, > 0: where the search begins
/// Each round takes the time of the distance and moves the distance to the mean of itself and itself scaled by target
/// over time; it ends when that time is within 1 s of the target, at least one round, no cap. So the distance found is
/// one move newer than the time, on purpose: every training speed has its place by that pairing.
/// Writes curDistance.  Faults: a distance without a time, a time of 0, distances that come round again without end.
[[nodiscard]] FoundDistance distanceFor(ModelState& state, double target, double seed);
