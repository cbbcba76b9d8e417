#pragma once

#include "model/model_state.h"

// The yardstick: a smooth curve of record speed against distance for men and for women, in closed form, the
// performance level that compares a time with it, and the age factors.

/// What `recordTime` answers: the record time itself, or the time that gives a level at that distance.
enum class RecordMode { timeOfLevel = 0, record = 1 };

/// Record time at a distance, scaled to the runner's age when age comparison is on.
///   sex          'm' or 'f'; the endurance part takes the state's sex all the same
///   distance     m, > 0
///   targetLevel  fraction, > 0, of the time that `RecordMode::timeOfLevel` solves for; not used otherwise
/// Returns s. Writes ageCompareOn (on if agecomp, ageCompareForced, oplev or ageCompareLocal is).
/// Faults: distance not above 0; a targetLevel of 0; ages whose factor has no real value.
/// The search for a level starts at the record, multiplies by the square root of level over target, and ends with
/// level < targetLevel + 0.00001 (one-sided on purpose, so a target of 1 or more takes one round) or after 101 rounds.
[[nodiscard]] double recordTime(ModelState& state, char sex, RecordMode mode, double distance, double targetLevel);

/// Level of a performance, meant to be comparable across distances: 1 at the record.
///   ratio     record time over time, > 0
///   distance  m, > 0
/// Faults: a negative ratio, a distance not above 0.
[[nodiscard]] double performanceLevel(double ratio, double distance, char sex);

/// Level of a time of the state's runner: the record over the time, rated.
///   distance  m, > 0
///   time      s, not 0
/// Writes ageCompareOn.  Faults: as `recordTime` and `performanceLevel`, a time of 0.
[[nodiscard]] double levelOf(ModelState& state, double distance, double time);

/// Factor on the record time for an age: about 1 at 27, more to either side.
///   age       years; from 10 down and from 85 up the outermost rows hold
///   distance  m; a straight line through the 5 km and the 30 km value, without limit outside
///   ratio     not used; callers pass the ratio at hand
/// Reads levelIndex.  Faults: ages from 104 (men), 102 (women), and from -4 down have no real value; far beyond 30 km
/// very high and very low ages have none either, or a negative factor while levelIndex is 0.
[[nodiscard]] double ageFactor(const ModelState& state, double age, double distance, double ratio, char sex);

/// Share of runners, in percent, that are better than a level: the Top_% figure.
///   level  fraction, > 0. Men get 0 from level 1 up; women get a negative figure above it.
/// Faults: a level, for women also a ratio, not above 0.
[[nodiscard]] double topPercent(double level, char sex);

/// Age-curve index from a level, and from a ratio of record time over time; range and faults as `topPercent`.
[[nodiscard]] double indexFromLevel(double level, char sex);
[[nodiscard]] double indexFromRatio(double ratio, char sex);
