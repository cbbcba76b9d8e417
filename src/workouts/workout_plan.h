#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "model/messages.h"
#include "model/model_state.h"

// A workout: up to five rows of repeated distances with recoveries between them, and what time each effort, each
// recovery and the whole takes this runner.

inline constexpr int workoutRowCount = 5;
inline constexpr int lastWorkoutRow = workoutRowCount - 1;
inline constexpr double continuousRatio = 999999;   // percent: next to no recovery

/// One row as typed.
struct WorkoutEntry
{
    std::string dist;   // m, of one repetition
    std::string num;    // repetitions, fractions allowed; a row counts when it is above 0
    std::string wrp;    // work time in percent of recovery time: 150 means 3 minutes of effort to 2 of recovery
};
using WorkoutEntries = std::array<WorkoutEntry, static_cast<std::size_t>(workoutRowCount)>;

struct WorkoutSettings
{
    double recovPct = 50;         // R: recovery pace in percent of the effort's speed, 10 to 100
    double intensityPct = 97;     // I: percent of the maximum, 60 to 100 in halves
    double purpose = 85;          // P: 0 VO2max to 100 repeats
    double perfAdjust = 200;      // A: 200 for the runner's own level, 160 to 240
    bool autoRatio = false;       // chooses wrp from the distance
    bool continuousRun = false;   // one run without recovery, in the last row
};

/// One row as planned; all 0 when it does not count.
struct PlannedRow
{
    bool counts = false;
    double dist = 0;                          // m
    double effortTime = 0;                    // s
    double recoveryTime = 0;                  // s
    double recoveryDist = 0;                  // m
    std::string fastPoints, recoveryPoints;   // stress, as shown
};

struct WorkoutPlan
{
    std::array<PlannedRow, static_cast<std::size_t>(workoutRowCount)> rows;
    double fastDist = 0;            // m
    double totalDist = 0;           // m, up to the end of the last effort
    double fastTime = 0;            // s
    double recoveryTotalTime = 0;   // s
    double repeatCount = 0;
    double totalPoints = 0;          // of the points as shown
    double effectiveIntensity = 0;   // percent: the intensity adjusted to the time of fast running
    double standardPoints = 0;       // a hundredth of the weekly mileage's
};

/// What a plan says while it is made, for whoever shows it at once.
struct PlanListener
{
    std::function<void(double)> standard = {};    // standardPoints, at the beginning of each pass
    std::function<void(int)> ratioWritten = {};   // the row whose wrp the automatic ratio has changed in the entries;
                                                  // may renew all of them
    std::function<void(int, const std::string&, const std::string&)> points = {};   // row, fast and recovery points
};

/// A hundredth of the stress points that a weekly mileage stands for: 0.078 * miles ^ 0.67.
/// Faults: miles below 0.
[[nodiscard]] double standardLoad(double weeklyMiles);

/// The work to recovery percentage that goes with a distance: longer repetitions get less recovery.
///   dist  m
/// Faults: dist below 0.
[[nodiscard]] double automaticRatio(double dist);

/// Plans a workout.
///
/// An effort's pace is a blend of three references: the race time for one repetition by itself, the race speed over
/// the workout's effective length, and the speed at VO2max; the ratio of work to recovery, the purpose and the count
/// of repetitions steer it. The intensity follows from the time of fast running, which follows from the intensity: a
/// fixed point, in six passes, without a tolerance. Each pass reads the entries anew.
///   entries   the five rows; the automatic ratio writes wrp
///   listener  hears of it
///   messages  gets the one that refuses an entry
/// Reads weeklyMiles, vo2maxSpeed and the curve. Returns nothing when an entry is refused, which a later pass may do
/// with a ratio that an earlier one has written.
/// Faults: a ratio of 0 in a row with a distance or a number; a distance of 0 or below, a ratio below 0, in a row that
/// counts; a runner without a curve or without training speeds.
[[nodiscard]] std::optional<WorkoutPlan> planWorkout(ModelState& state, WorkoutEntries& entries,
                                                     const WorkoutSettings& settings, const PlanListener& listener,
                                                     Messages& messages);
