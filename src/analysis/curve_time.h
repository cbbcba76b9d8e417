#pragma once

#include "model/model_state.h"
#include "model/race_time.h"

/// The time, s, of the state's curve over a distance in metres.
/// Writes curDistance.  Faults: as `raceTimeAt`.
[[nodiscard]] inline double timeOver(ModelState& state, double distance)
{
    state.results.curDistance = distance;
    return raceTimeAt(state, distance);
}
