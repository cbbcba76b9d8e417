#pragma once

#include "model/model_state.h"

// Heart rates of the training speeds, and the speeds of the heart rates.

/// Heart rate at a running speed: from 10 above rest at standstill through the two training speeds up to the maximum.
///   speed                                            m/s
///   aerobicTrainSpeed, thresholdSpeed, vo2maxSpeed   m/s, rising
///   restHr, aerobicHr, thresholdHr, maxHr            beats a minute
/// Returns beats a minute; 0 for a speed below 0, though never above maxHr. The bend below the maximum is worked out
/// for every speed.  Faults: two equal speeds, aerobicHr equal to thresholdHr.
[[nodiscard]] double hrAtSpeed(double speed, double aerobicTrainSpeed, double thresholdSpeed, double vo2maxSpeed,
                               double restHr, double aerobicHr, double thresholdHr, double maxHr);

/// The same for the runner and the training results of the state.
[[nodiscard]] double hrAtSpeed(const ModelState& state, double speed);

/// Sets the heart rates of the aerobic and the threshold zone, and parts the two.
/// Reads age, weeklyMiles, maxHr, restHr, time5000 and time10k.  Faults: a zone whose mean is 0; a weekly distance below
/// 0.
void findHeartRateZones(ModelState& state);

/// Sets the speeds at the ends of the zones, walked to in steps of 0.001 m/s: at least one step, no cap. The last
/// speed tried is the result, a hair below 0 if need be.
/// Faults: as `hrAtSpeed`; an end that no speed reaches, as with a resting heart rate near the maximum.
void findZoneSpeeds(ModelState& state);
