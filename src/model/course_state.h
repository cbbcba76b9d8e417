#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "model/one_based.h"

// A course, its points and what the solver makes of it. Metres and seconds throughout.

inline constexpr int mostCoursePoints = 100;
inline constexpr int courseSteps = 100;   // of equal width, that a course is solved and paced in
inline constexpr int courseMarks = 50;    // miles and kilometers that are marked at the most

/// Where the miles and kilometers of a course are, and when the runner is there; 0 where a mark is not reached.
struct CourseMarks
{
    OneBased<double, courseMarks> mileX, mileTime;   // m horizontally, s
    OneBased<double, courseMarks> kmX, kmTime;
};

enum class CourseUnit { miles = 1, yards, kilometers, meters, marathon, halfMarathon };   // as course files number them

/// A course form's entries, as it and a course file hold them.
struct CourseEntries
{
    std::string distance = "5";
    CourseUnit unit = CourseUnit::kilometers;
    std::string maxElev = "600", minElev = "100";   // top and bottom of the graph
    std::string startElev = "250", endElev = "350";
    bool feet = false;           // the four above are feet, else meters
    bool perKilometer = false;   // paces, else per mile
    int origElev = 300;          // m
};

inline constexpr double graphWidth = 12000, graphHeight = 6000;   // graph units of the plotting area

struct Course
{
    double courseDist = 5000;   // horizontal length
    double maxElev = 600, minElev = 100;
    double startElev = 250, endElev = 350;
    double xScale = courseDist / graphWidth;   // m a graph unit
    double yScale = (maxElev - minElev) / graphHeight;
    std::array<double, static_cast<std::size_t>(mostCoursePoints)> pointX{}, pointY{};
    int pointCount = 2;
    int origElev = 300;      // elevation at which the runner's races were run
    double perfScale = 1;    // factor on times, 1000 / the performance multiplier
    int distanceValid = 0;   // 1 after a distance within bounds
    int courseLoading = 0;   // 1 while the form loads or a file is retrieved: points don't keep entries from changing
    int scur = 0;            // 1 while the form's "Smooth curve" is chosen

    double netGrade = 0;   // added to every grade: levels the course in the first pass, 0 in the second
    double slopeDist = 0;
    double totalRise = 0, totalDrop = 0;   // of the profile that netGrade leads to
    double flatTime = 0, evenTime = 0, strategicTime = 0;
    double courseLevelSpeed = 0;   // m/s, level speed at the end of a solve
    double evenFlatSpeed = 0;      // m/s, of a flat race as long as evenTime
    std::array<double, static_cast<std::size_t>(courseSteps) + 1> distAt{}, timeAt{};   // along the surface
    CourseMarks marks;
    std::array<double, static_cast<std::size_t>(mostCoursePoints) - 2> curveA{}, curveB{},
        curveC{};   // a x^2 + b x + c

    int courseSaved = 0;     // 1 once the form has left its entries
    CourseEntries entries;   // what it left
};
