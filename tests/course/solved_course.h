#pragma once

#include <fstream>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "course/course_solver.h"
#include "model/model_state.h"
#include "support/planning.h"

// Courses to be solved in tests, for the man who runs 5000 m in 20:00.

/// A course whose solution was worked out a second time, apart from the program.
struct CourseCase
{
    std::string name;
    nlohmann::json data;

    friend std::ostream& operator<<(std::ostream& out, const CourseCase& row) { return out << row.name; }
};

[[nodiscard]] inline std::vector<CourseCase> courseCases()
{
    std::ifstream file(VANTELOS_SOURCE_DIR "/tests/course/data/courses.json");
    std::vector<CourseCase> cases;
    for (const nlohmann::json& entry : nlohmann::json::parse(file))
        cases.push_back({entry.at("name"), entry});
    return cases;
}

using PointList = std::vector<std::pair<double, double>>;   // x, y in m

/// Puts points into a state, with start, finish and length as they say.
inline void setPoints(ModelState& state, const PointList& points)
{
    Course& course = state.course;
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        course.pointX[i] = points[i].first;
        course.pointY[i] = points[i].second;
    }
    course.pointCount = static_cast<int>(points.size());
    course.courseDist = points.back().first;
    course.startElev = points.front().second;
    course.endElev = points.back().second;
    course.xScale = course.courseDist / graphWidth;
}

/// The usual runner before a course.
[[nodiscard]] inline ModelState runnerBefore(const PointList& points, bool smooth = false)
{
    ModelState state;
    setUsualCurve(state);
    setPoints(state, points);
    state.course.scur = smooth ? 1 : 0;
    return state;
}

[[nodiscard]] inline ModelState solved(const PointList& points, bool smooth = false)
{
    ModelState state = runnerBefore(points, smooth);
    solveAndSplit(state, {});
    return state;
}

/// A case's runner and course, not solved yet.
[[nodiscard]] inline ModelState stateOf(const CourseCase& row)
{
    ModelState state = runnerBefore(row.data.at("points").get<PointList>(), row.data.at("smooth") == 1);
    const nlohmann::json& runner = row.data.at("runner");
    state.curve.aerobicPower = runner.at("aerobicPower");
    state.curve.anaerobicEnergy = runner.at("anaerobicEnergy");
    state.curve.fatigueCoef = runner.at("fatigueCoef");
    state.runner.sex = runner.at("female") ? 'f' : 'm';
    state.runner.bodyDrag = runner.at("bodyDrag");
    state.incline.windSpeed = runner.at("windSpeed");
    state.course.origElev = row.data.at("origElev");
    state.course.perfScale = row.data.at("perfScale");
    return state;
}
