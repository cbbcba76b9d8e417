#include "course/course_profile.h"

#include <algorithm>
#include <cmath>

#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    constexpr double steepestGrade = 1;

    /// With two points alone, puts them where start and finish are.
    void setEndPoints(Course& course)
    {
        course.pointX[0] = 0;
        course.pointY[0] = course.startElev;
        course.pointX[1] = course.courseDist;
        course.pointY[1] = course.endElev;
        course.pointCount = 2;
    }

    bool refuse(Messages& messages, const char* text)
    {
        messages.push_back({text});
        return false;
    }

    /// Stores a point at an index; those from there on move up.
    void insertPoint(Course& course, int index, double x, double y)
    {
        for (int i = course.pointCount; i > index; --i)
        {
            placeAt(course.pointX, i) = placeAt(course.pointX, i - 1);
            placeAt(course.pointY, i) = placeAt(course.pointY, i - 1);
        }
        placeAt(course.pointX, index) = x;
        placeAt(course.pointY, index) = y;
        course.pointCount = course.pointCount + 1;
    }
}

double courseDistanceOf(std::string_view text, CourseUnit unit)
{
    switch (unit)
    {
    case CourseUnit::marathon: return marathonMetres;
    case CourseUnit::halfMarathon: return halfMarathonMetres;
    case CourseUnit::miles: return checked(val(text) * metresPerMile);
    case CourseUnit::yards: return checked(val(text) * metresPerYard);
    case CourseUnit::kilometers: return checked(val(text) * metresPerKilometre);
    case CourseUnit::meters: break;
    }
    return val(text);
}

double courseElevationOf(std::string_view text, bool feet)
{
    return feet ? val(text) / feetPerMetre : val(text);
}

bool readCourseDistance(ModelState& state, const CourseEntries& entries, Messages& messages)
{
    Course& course = state.course;
    state.activity = "reading the distance of the course";
    course.courseDist = courseDistanceOf(entries.distance, entries.unit);
    course.distanceValid = 1;
    if (course.courseDist > longestCourse)
    {
        course.distanceValid = 0;
        return refuse(messages, distanceTooLong);
    }
    if (course.courseDist < shortestCourse)
    {
        course.distanceValid = 0;
        return refuse(messages, "Distance under 50 meters.  Check your units as well as the entered number.");
    }
    course.xScale = course.courseDist / graphWidth;
    if (course.pointCount < 3)
        setEndPoints(course);
    else if (course.courseLoading == 0)
        return refuse(messages, "Cannot change distance after entering mouse clicks.  Please Clear and try again.");
    return true;
}

bool readCourseElevations(ModelState& state, const CourseEntries& entries, Messages& messages)
{
    Course& course = state.course;
    state.activity = "reading the elevations of the course";
    course.maxElev = courseElevationOf(entries.maxElev, entries.feet);
    course.minElev = courseElevationOf(entries.minElev, entries.feet);
    course.yScale = checked((course.maxElev - course.minElev) / graphHeight);
    course.startElev = courseElevationOf(entries.startElev, entries.feet);
    course.endElev = courseElevationOf(entries.endElev, entries.feet);
    if (course.pointCount < 3)
        setEndPoints(course);
    else if (course.courseLoading == 0)
        return refuse(messages,
                      "Cannot change these elevations after entering mouse clicks.  Please Clear and try again.");
    return true;
}

bool addCoursePoint(ModelState& state, double x, double y, Messages& messages)
{
    Course& course = state.course;
    state.activity = "adding a point to the course";
    course.marks = {};
    if (course.pointCount == mostCoursePoints)
        return refuse(messages, "Too many points");
    if (course.pointCount == 2)
    {
        insertPoint(course, 1, x, y);
        return true;
    }
    int i = 0;
    for (; !(placeAt(course.pointX, i) > x); ++i)
    {
        if (placeAt(course.pointX, i) == x)
            return refuse(messages, "Must enter x-value not yet used");
        if (i + 1 == course.pointCount)
            stopWith("an index out of range (the point lies beyond the finish)");
    }
    if (i == 0)
        stopWith("an index out of range (the point lies before the start)");
    const double rise = placeAt(course.pointY, i - 1) - y;
    const double grade = std::abs(quotient(rise, placeAt(course.pointX, i - 1) - x));
    if (grade > steepestGrade)
        return refuse(messages, "Grades steeper than 1:1 (45 degree angles) not allowed");
    insertPoint(course, i, x, y);
    return true;
}

void clearCoursePlaces(Course& course)
{
    std::fill(course.pointX.begin() + 2, course.pointX.end(), 0.0);
    std::fill(course.pointY.begin() + 2, course.pointY.end(), 0.0);
}
