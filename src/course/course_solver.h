#pragma once

#include <functional>

#include "model/model_state.h"

// What a course costs a runner: the time of the same distance on the flat, the time at even effort, and the time with
// strategic pacing, which gives back on the hills a part of what even effort demands.
//
// Each pass of the solver begins with the flat time of the way along the surface and works towards even effort in four
// rounds. The first pass sees the course tilted level and at the elevation of the runner's races, so that it measures
// what the ups and downs alone cost; the second one sees the course as it is.
//
// All of it reads the curve, bodyDrag, windSpeed, and of the course its points, elevations, origElev, perfScale and scur,
// and writes the other results of `Course`, curSpeed, curDistance, slopeDirection and zeroPowerFlag.

/// Results, told of as soon as they stand.
enum class CourseResult { slopeDist, climbs, flatTime, evenTime, strategicTime, pacedTime };

/// Shows a result; pacedTime is the last of timeAt. May be empty.
using CourseShown = std::function<void(CourseResult)>;

/// A grade as what it is worth: a descent loses with the drop of the whole course, as the thighs tire.
///   grade  fraction, negative is downhill; one of 0 or more stays as it is
///   drop   m, the course's total drop
/// Returns grade * 0.66 * log10(7000 / (drop + 150)) downhill: 1.10 of it without any drop, 0.52 of it with 1000 m.
/// Faults: drop at or below -150.
[[nodiscard]] double downhillGrade(double grade, double drop);

/// A level speed at another elevation, for the same effort: thinner air has less resistance and less oxygen.
///   speed                m/s, > 0
///   seconds              duration of the race, which decides how much of the power is aerobic
///   elevationDifference  m above where the runner's races were run, negative below
/// Returns m/s.  Faults: a speed of 0 or less, a duration of -156 s, no power left.
[[nodiscard]] double altitudeSpeed(double speed, double seconds, double elevationDifference);

/// Measures the way along the surface, the rise and the drop of the profile, tilted by netGrade; of a smooth course once
/// along the points and then along the curve. Sets preliminary marks, which `strategicSplits` replaces.
/// Faults: two points at one x.
void measureCourse(ModelState& state, const CourseShown& shown);

/// The distance of a flat race that lasts evenTime: the mean of the distance and of the same scaled by the ratio of times.
///   start     m, > 0, where the search begins
///   evenTime  s, > 0
/// Stop: the time of the round before is within 1 s of evenTime; no cap. 2 to 10 rounds, but around 9410.5 m the search
/// can run in a circle; a distance that comes back proves that, and is a fault.
/// Returns m. Writes curDistance, the same.
[[nodiscard]] double evenFlatDistance(ModelState& state, double start, double evenTime);

/// Works out flatTime, evenTime, strategicTime, courseLevelSpeed and evenFlatSpeed.
/// Faults: a segment too steep for any speed, a course without length, as its parts. What stood then stays, but the marks
/// of before are put back, for preliminary ones are not for showing.
void solveCourse(ModelState& state, const CourseShown& shown);

/// Paces the course in a hundred steps with distAt and timeAt, and sets the marks: one a step at the most, so that those
/// of a course over 100 km lag behind.
/// Faults: as `slopeSpeedForLevel` and `altitudeSpeed`; steps and marks before stay.
void strategicSplits(ModelState& state, const CourseShown& shown);

/// What follows any change of data: `solveCourse`, `measureCourse`, `strategicSplits`.
/// Faults: as those.
void solveAndSplit(ModelState& state, const CourseShown& shown);

/// Grade and elevation at a place, on the straight segments of a course.
struct CoursePlace
{
    double grade = 0;
    double elevation = 0;   // m
};

/// The place at x in the segment that ends at point `end`.  Faults: an end without a segment, a segment without width.
[[nodiscard]] CoursePlace placeInSegment(const Course& course, int end, double x);
