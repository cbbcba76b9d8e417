#pragma once

#include "model/model_state.h"

// From the curve of a runner, the time in which the runner covers a distance.
//
// Over a race of distance d at mean speed v, in time t = d / v, the runner spends (140 + 60 * v ^ 2) * t. Of that
// aerobicPower * t comes from sustained power, and the rest from an anaerobic store that grows with the distance.
// Solved for v this gives a raw speed; a fixed chain of corrections turns it into a race time.

/// Model power of running at a speed in m/s.
[[nodiscard]] inline double modelPower(double speed)
{
    return 140 + 60 * square(speed);
}

/// Speed at which a runner meets the energy balance over a distance, before any correction: the larger root of
/// 60 * d * v ^ 2 - E * v + (140 - aerobicPower) * d = 0.
///   anaerobicEnergy, aerobicPower, refDistance  the curve, refDistance > 0
///   distance                                    m, > 0
/// Returns m/s. Reads anaerobicExp.  Faults: no real root, a distance or refDistance of 0, only one of them negative.
[[nodiscard]] double rawSpeed(const ModelState& state, double anaerobicEnergy, double aerobicPower, double refDistance,
                              double distance);

/// How far a long distance slows a runner (mode other than 0, time is divided by it) or a record (mode 0, speed is
/// multiplied by it).
///   distance     m, > 0
///   coefficient  the runner's fatigueCoef, or the record curve's own figure
/// Returns a factor above 0. Reads sex.  Faults: distance not above 0.
[[nodiscard]] double enduranceFactor(const ModelState& state, double distance, double coefficient, int mode);

/// Race time from a raw speed.
///   distance  m, > 0; within 0.1 m of 9410.5 m the time is longer by the square root of 2, on purpose
///   speed     m/s, > 0; a negative one gives a negative time
/// Returns s. Reads humpCentre, humpDepth, humpWidth, piValue and sex.  Faults: distance not above 0, speed 0.
[[nodiscard]] double finishTime(const ModelState& state, double distance, double speed, double fatigueCoef,
                                double startDelay);

/// Race time of a curve at a distance: `finishTime` at `rawSpeed`.
/// Returns s.  Faults: as those two.
[[nodiscard]] double raceTimeAt(const ModelState& state, double anaerobicEnergy, double aerobicPower,
                                double refDistance, double distance, double fatigueCoef, double startDelay);

/// The same with the state's own curve.
[[nodiscard]] double raceTimeAt(const ModelState& state, double distance);

/// A race time with what led to it.
struct TimeStep
{
    double rawTime = 0;        // s, before any correction
    double time = 0;           // s
    double speed = 0;          // m/s, distance over time
    double perMile = 0;        // s
    double perKilometre = 0;   // s
    double per400 = 0;         // s
};

/// The state's own curve at `curDistance`, with the intermediate values.
/// Returns the same time as `raceTimeAt`.  Faults: as `raceTimeAt`, and a time of 0.
[[nodiscard]] TimeStep timeStep(const ModelState& state);

/// Takes the finish corrections off a race time, in the reverse order of `finishTime`. The special case at 9410.5 m
/// has no inverse here, on purpose.
///   time      s, as raced
///   distance  m, > 0
/// Returns s. Reads the curve constants, fatigueCoef, startDelay and sex.  Faults: distance not above 0.
[[nodiscard]] double strippedTime(const ModelState& state, double time, double distance);
