#pragma once

#include <optional>

#include "model/model_state.h"

// What is read at one point of a course: when the runner is there, and at what pace.

/// The way and the time to a point, along the hundred steps of the pacing.
struct CoursePassage
{
    double metres = 0;    // along the surface
    double seconds = 0;   // of strategic pacing, without perfScale
};

/// Grade, and elevation above that of the runner's races.
struct CourseSlope
{
    double grade = 0;
    double height = 0;   // m
};

/// Speeds at a point, m/s.
struct CoursePaces
{
    double shownEven = 0;        // at even effort
    double strategic = 0;        // with strategic pacing
    double flatEquivalent = 0;   // level speed as which the strategic one feels
};

/// The passage at x, on a straight line between two steps.
///   x  m, 0 to courseDist
/// Faults: a course without length, x outside it.
[[nodiscard]] CoursePassage coursePassageAt(const Course& course, double x);

/// Grade and height at x. On straight segments it is the first that ends behind x. At the finish of more than two points
/// there is none: what was read last stays, but with 99 points the way to the unused last place is read, and with 100
/// points the last segment.
/// Faults: as `courseGradeAt`, two points at one x.
[[nodiscard]] CourseSlope courseSlopeAt(const Course& course, double x, const CourseSlope& last);

/// Speeds at x. The exponent of strategic pacing has the local grade here, unlike that of `strategicSplits`; the two
/// differ on purpose.
/// Writes slopeDirection and zeroPowerFlag.
/// Faults: no solve so far, as `slopeSpeedForLevel` and `altitudeSpeed`.
[[nodiscard]] CoursePaces coursePacesAt(ModelState& state, double x, const CourseSlope& slope);
