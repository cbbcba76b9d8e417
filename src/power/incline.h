#pragma once

#include "model/model_state.h"

// A speed on a slope as the level speed of equal effort, and back. Equal effort is equal `netPower` at 72.7 kg. Both
// conversions are numeric and have small biases, which are part of what the program shows.
//
// They compare by indoorMode: 0 slope and level both outdoors, with windSpeed on the slope side alone; 1 slope on a
// treadmill against level outdoors; 2 slope on a treadmill against the same treadmill level.
//
// Arguments in common:
//   grade   rise over distance along the surface, negative is downhill
//   speed   m/s

inline constexpr double indoorHeadStart = 0.5;   // m/s that an indoor march starts below the speed

/// The level speed of the same effort as `speed` on `grade`.
/// Start value: speed, indoors less by indoorHeadStart. Steps of 0.05 m/s, upwards if slopeDirection >= 0, until a step
/// has passed the effort, then a straight line through the last two points. An effort that the first step has passed
/// already is reached on that line beyond its end. Upwards no cap; downwards an effort of 0 or less ends the march at
/// once.
/// Returns m/s. Reads bodyDrag, indoorMode, windSpeed, slopeDirection. Writes zeroPowerFlag.
/// Faults: an upward march whose last two efforts are equal; a speed so large that a step no longer moves it.
[[nodiscard]] double levelSpeedForSlope(ModelState& state, double grade, double speed);

/// The speed on `grade` of the same effort as `levelSpeed` on the level.
/// Start value: levelSpeed + 0.003. Each round moves by a quarter of the error in level speed and by 0.001 m/s in the
/// direction that slopeDirection gives. Stop: the level speed of equal effort has passed levelSpeed; no cap. About
/// twenty rounds at a grade of 0.1, fewer on steeper ones. The result lies just beyond the exact solution.
/// Returns m/s. Reads bodyDrag, indoorMode, windSpeed. Writes slopeDirection and zeroPowerFlag.
/// A levelSpeed a hair above -0.05 (-0.04999 at a grade of 0.1) has no end in sight either: such a search goes on until
/// goOn says no.
/// Faults: levelSpeed at or below -0.05, where the search has no end, after it has written both; as
/// `levelSpeedForSlope`.
[[nodiscard]] double slopeSpeedForLevel(ModelState& state, double grade, double levelSpeed);

/// A treadmill comparison for as long as it stands: sets indoorMode, and back to 0 when it goes.
class IndoorComparison
{
public:
    IndoorComparison(ModelState& comparedState, int indoorMode) : state(comparedState)
    {
        state.incline.indoorMode = indoorMode;
    }
    IndoorComparison(const IndoorComparison&) = delete;
    IndoorComparison& operator=(const IndoorComparison&) = delete;
    ~IndoorComparison() { state.incline.indoorMode = 0; }

private:
    ModelState& state;
};

/// Rise over horizontal distance as rise over distance along the surface.
[[nodiscard]] double gradeAlongSurface(double horizontalGrade);
