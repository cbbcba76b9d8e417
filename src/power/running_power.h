#pragma once

#include "model/model_state.h"

// The physics of a runner at a steady speed on a slope, in still or moving air.
//
// All terms are stated for a body of 68.2 kg and scaled by weight at the end: level running takes 35 * v ^ 1.36 W of
// mechanical power, climbing and air resistance the weight force of that body, 668.36 N = 68.2 * 9.8. Running is done
// with the efficiency of `runEfficiency`, air resistance with 0.27, climbing with 0.275. A body at rest burns 80 W.
//
// Arguments in common:
//   speed      m/s along the ground
//   weight     kg
//   grade      rise over distance, 0.03 is 3 percent, negative is downhill
//   airFactor  multiplier of air resistance: 1 outdoors, 0 on a treadmill
//   wind       m/s, positive is a head wind
// Faults, all but `runEfficiency`: a bodyDrag of 0, a grade below about -186, numbers beyond the range of a double.

/// Mechanical efficiency of running on a slope.
/// Returns a fraction: 0.21 on the level and less downhill; uphill more, up to 0.2738 at a grade of 0.106, from
/// where it falls: it is back at 0.21 near 0.7.
[[nodiscard]] double runEfficiency(double grade);

/// Metabolic power used, base rate included, without wind. Reads bodyDrag.
///   speed  0 or more
/// Returns W; on a steep downhill it can fall below the base rate.  Faults: a negative speed.
[[nodiscard]] double grossPower(const ModelState& state, double speed, double weight, double grade, double airFactor);

/// Metabolic power used beyond the base rate, with wind. Reads bodyDrag.
/// Returns W: 0 for a speed not above 0; negative on a steep downhill or in a strong tail wind, on purpose.
/// Writes zeroPowerFlag: 1 when the result is exactly 0, else 0.
[[nodiscard]] double netPower(ModelState& state, double speed, double weight, double grade, double airFactor,
                              double wind);

/// Mechanical power put out beyond rest, without wind. Reads bodyDrag.
/// Returns W: 0 for a speed not above 0, negative on a steep downhill.
[[nodiscard]] double powerOutput(const ModelState& state, double speed, double weight, double grade, double airFactor);
