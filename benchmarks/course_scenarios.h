#pragma once

#include <cmath>
#include <string>

#include "course/course_profile.h"
#include "course/course_solver.h"
#include "planning_scenarios.h"

// The courses that are solved and imported while they are timed and counted.

inline constexpr const char* smoothCourseRow = "Course of 100 points, smooth, with splits";
inline constexpr const char* straightCourseRow = "Course of 100 points, straight, with splits";

/// A runner before a half marathon of rolling hills with as many points as a course can have.
[[nodiscard]] inline ModelState runnerBeforeHills(bool smooth)
{
    ModelState state = analysedRunner();
    Course& course = state.course;
    course.pointCount = mostCoursePoints;
    course.courseDist = 21097.5;
    for (std::size_t i = 0; i < course.pointX.size(); ++i)
    {
        const double share = static_cast<double>(i) / (mostCoursePoints - 1);
        course.pointX[i] = course.courseDist * share;
        course.pointY[i] = 150 + std::round(25 * std::sin(25 * share));
    }
    course.startElev = course.pointY.front();
    course.endElev = course.pointY.back();
    course.scur = smooth ? 1 : 0;
    return state;
}

/// A GPX track of that many points: a wavering recording of hills.
[[nodiscard]] inline std::string gpxOf(int points)
{
    std::string bytes = "<?xml version=\"1.0\"?><gpx version=\"1.1\"><trk><trkseg>";
    for (int i = 0; i < points; ++i)
        bytes += "<trkpt lat=\"" + std::to_string(45 + 0.000004 * i) + "\" lon=\"7.5\"><ele>" +
                 std::to_string(300 + 40 * std::sin(i / 3000.0) + (i * 7919 % 13) / 5.0) +
                 "</ele><time>2026-05-01T10:00:00Z</time></trkpt>";
    return bytes + "</trkseg></trk></gpx>";
}
