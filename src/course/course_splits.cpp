#include "course/course_splits.h"

#include <algorithm>

#include "course/course_curve.h"
#include "course/course_profile.h"
#include "course/course_solver.h"
#include "model/arithmetic.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    constexpr double shortestSplit = 10;   // m; a shorter rest is part of the one before
    constexpr double mostSplits = 10000;   // of 500 km at 1:1 there are 708

    double elevationAt(const Course& course, double x)
    {
        if (isSmooth(course))
            return courseElevationAt(course, x);
        int end = 1;
        while (end < course.pointCount - 1 && !(placeAt(course.pointX, end) >= x))
            ++end;
        return placeInSegment(course, end, x).elevation;
    }

    /// Place and time at a way along the surface, in the first step that reaches it.
    CourseSplit passageAt(const Course& course, double metres)
    {
        int k = 1;
        while (k < courseSteps && placeAt(course.distAt, k) < metres)
            ++k;
        const double from = placeAt(course.distAt, k - 1);
        const double share = quotient(metres - from, placeAt(course.distAt, k) - from);
        CourseSplit split;
        split.place = (k - 1 + share) * course.courseDist / courseSteps;
        const double fromTime = placeAt(course.timeAt, k - 1);
        split.time = course.perfScale * (fromTime + share * (placeAt(course.timeAt, k) - fromTime));
        split.elevation = elevationAt(course, split.place);
        return split;
    }

    std::string rightIn(std::size_t width, const std::string& text)
    {
        return std::string(width - std::min(width, text.size()), ' ') + text;
    }
}

std::vector<CourseSplit> courseSplits(const Course& course, double unit)
{
    std::vector<CourseSplit> splits;
    const double length = course.distAt.back();
    if (!(length > 0))
        return splits;
    if (length / unit > mostSplits)
        stopWith("a course with far more than 10,000 splits");
    CourseSplit before;
    before.elevation = elevationAt(course, 0);
    double reached = 0;
    for (int j = 1; reached < length; ++j)
    {
        const double end = j * unit + shortestSplit > length ? length : j * unit;
        CourseSplit split = passageAt(course, end);
        split.number = end / unit;
        split.split = split.time - before.time;
        const double speed = quotient(end - reached, split.split);
        split.perMile = quotient(metresPerMile, speed);
        split.perKilometer = quotient(metresPerKilometre, speed);
        split.grade = quotient(split.elevation - before.elevation, split.place - before.place);
        splits.push_back(split);
        before = split;
        reached = end;
    }
    return splits;
}

std::string timeCell(double seconds)
{
    const std::string text = formatTime(seconds);
    const std::size_t from = text.find_first_not_of(' ');
    return text.substr(from, text.find_last_not_of(' ') + 1 - from);
}

std::vector<std::string> paceBand(const Course& course, bool miles)
{
    std::vector<std::string> lines{miles ? "  mile      time   split" : "    km      time   split"};
    for (const CourseSplit& split : courseSplits(course, miles ? metresPerMile : metresPerKilometre))
    {
        const bool whole = split.number == roundHalfEven(split.number);
        lines.push_back(rightIn(6, whole ? plainText(split.number) : formatNumber(split.number, 0, 2)) +
                        rightIn(10, timeCell(split.time)) + rightIn(8, timeCell(split.split)));
    }
    return lines;
}
