#include "course/course_reading.h"

#include <cmath>

#include "course/course_curve.h"
#include "course/course_profile.h"
#include "course/course_solver.h"
#include "model/arithmetic.h"
#include "power/incline.h"

namespace
{
    /// A place in hundredths of the course: the step that begins before it, and how far it is into that.
    struct Hundredths
    {
        int whole = 0;
        double fraction = 0;
    };

    Hundredths hundredthsOf(double p)
    {
        if (!(p >= 0 && p < courseSteps + 1))
            stopWith("an index out of range");
        const double whole = std::floor(p);
        return {static_cast<int>(whole), p - whole};
    }

    double between(double from, double to, double fraction)
    {
        return (1 - fraction) * from + fraction * to;
    }

    /// Strategic speed in the step that begins at c.
    double stepSpeed(const Course& course, int c)
    {
        return quotient(placeAt(course.distAt, c + 1) - placeAt(course.distAt, c),
                        placeAt(course.timeAt, c + 1) - placeAt(course.timeAt, c));
    }

    double strategicSpeedAt(const Course& course, double p)
    {
        const int c = hundredthsOf(p).whole;
        double speed = stepSpeed(course, c < courseSteps ? c : courseSteps - 1);
        if (isSmooth(course) && p >= 0.5)
        {
            const auto [c2, f2] = hundredthsOf(p - 0.5);
            if (c2 <= courseSteps - 2)
                speed = between(stepSpeed(course, c2), stepSpeed(course, c2 + 1), f2);
        }
        return speed;
    }
}

CoursePassage coursePassageAt(const Course& course, double x)
{
    const auto [c, f] = hundredthsOf(quotient(100 * x, course.courseDist));
    if (c == courseSteps)
        return {placeAt(course.distAt, c), placeAt(course.timeAt, c)};
    return {between(placeAt(course.distAt, c), placeAt(course.distAt, c + 1), f),
            between(placeAt(course.timeAt, c), placeAt(course.timeAt, c + 1), f)};
}

CourseSlope courseSlopeAt(const Course& course, double x, const CourseSlope& last)
{
    if (isSmooth(course))
        return {courseGradeAt(course, x), courseElevationAt(course, x) - course.origElev};
    int end = 1;
    if (course.pointCount > 2)
    {
        end = 0;
        while (end < mostCoursePoints - 1 && !(placeAt(course.pointX, end) > x))
            ++end;
        if (end == 0 || placeAt(course.pointX, end) == placeAt(course.pointX, end - 1))
            return last;
    }
    const CoursePlace place = placeInSegment(course, end, x);
    return {place.grade, place.elevation - course.origElev};
}

CoursePaces coursePacesAt(ModelState& state, double x, const CourseSlope& slope)
{
    const Course& course = state.course;
    const double p = quotient(100 * x, course.courseDist);
    const double n = quotient(course.startElev - course.endElev, course.courseDist);
    const double b = course.courseLevelSpeed;
    const double adj = downhillGrade(slope.grade, course.totalDrop);
    const double level = altitudeSpeed(b, course.perfScale * course.strategicTime, slope.height);
    const double evenSpeed = slopeSpeedForLevel(state, adj, level);
    const double ratio = quotient(slopeSpeedForLevel(state, adj + n, b), b);
    const double stratModel = quotient(evenSpeed * power(ratio, 0.79 + 0.52 * (adj + n)), ratio);
    CoursePaces paces;
    paces.strategic = strategicSpeedAt(course, p);
    paces.shownEven = checked(0.4 * evenSpeed + quotient(0.6 * paces.strategic, stratModel) * evenSpeed);
    paces.flatEquivalent = quotient(b * paces.strategic, paces.shownEven);
    return paces;
}
