#pragma once

#include <iosfwd>
#include <string>

#include "console/runner_options.h"
#include "course/recorded_course.h"

enum class CourseFormat { text, csv, json };

/// The command line of `course`.
struct CourseOptions : RunnerOptions
{
    std::string file;   // .cpf, GPX or TCX
    bool smooth = false;
    bool miles = false;                  // splits, else kilometers
    double smoothing = usualSmoothing;   // m on either side, of a recording
    CourseFormat format = CourseFormat::text;
};

/// Runs `course`: a runner's times and splits over a course.
/// Returns the exit status: 0, 1 where the system refuses or faults, 2 for wrong usage.
[[nodiscard]] int runCourse(const CourseOptions& options, std::ostream& out, std::ostream& errors);

/// Adds the command `course`. Its exit status goes to `status`.
void addCourse(CLI::App& app, int& status);
