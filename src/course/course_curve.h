#pragma once

#include "model/model_state.h"

// The smooth curve through the points of a course: parabolas through three points each, blended between two.

/// Whether a course counts as smooth: "Smooth curve" is chosen, and there are more points than start and finish.
[[nodiscard]] inline bool isSmooth(const Course& course)
{
    return course.pointCount > 2 && course.scur == 1;
}

/// Fits curveA, curveB and curveC: parabola c goes through the points c, c + 1 and c + 2. Cramer's rule; three points of
/// which two have one x, whose determinant is exactly 0, take 0.00000001 for it.
/// Faults: coefficients beyond the range of a double.
void fitCourseCurve(Course& course);

/// Elevation of the fitted curve, m. Between two inner points the two parabolas that span them are blended.
///   x  m horizontally; left of the start and right of the finish the outer parabolas go on
/// Faults: fewer than three points, blended points at one x.
[[nodiscard]] double courseElevationAt(const Course& course, double x);

/// Grade of the fitted curve, with each parabola's own derivative in the blend; it is not the exact derivative of the
/// blended elevation, on purpose.
/// Faults: as `courseElevationAt`.
[[nodiscard]] double courseGradeAt(const Course& course, double x);

/// Calls `step(from, to)` for steps of a hundredth of the last point's x, added up from 0, as long as a step's end is not
/// beyond `slack` times that x.
/// Faults: a last point at 0, for which there would be no end.
template <class Step>
void walkCourse(const Course& course, double slack, Step step)
{
    const double X = course.pointX[static_cast<std::size_t>(course.pointCount - 1)];
    const double width = X / courseSteps;
    if (width == 0)
        stopWith("division by zero (the course has no length)");
    double from = 0;
    for (double to = width; to <= X * slack; to = to + width)
    {
        step(from, to);
        from = to;
    }
}
