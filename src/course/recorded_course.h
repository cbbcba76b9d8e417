#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "model/messages.h"
#include "model/model_state.h"

// A course from a recording: the way and the elevations that a watch or a route planner has saved.
//
// Recorded elevations waver by meters from point to point. Added up, that would count as climb many times over, so they
// are smoothed first, and then thinned to as many points as a course may have.

/// A recorded point.
struct RecordedPoint
{
    double distance = 0;               // m along the way, never falling
    std::optional<double> elevation;   // m
};

/// Half the width of the window over which elevations are smoothed, m.
inline constexpr double usualSmoothing = 100;
inline constexpr double longestSmoothing = 5000;

/// Once no point is farther than this from the course, m, it has points enough.
inline constexpr double thinningError = 1;

/// A course made of a recording, and what was done to it.
struct RecordedCourse
{
    std::vector<double> pointX, pointY;   // m, from x = 0 on; 2 to 100 points
    std::size_t recorded = 0;             // points with an elevation
    double recordedRise = 0;              // m, climb of the recording as it is
    double rise = 0, drop = 0;            // m, of the smoothed way
    double halfWidth = usualSmoothing;    // m, of the smoothing
    double largestError = 0;              // m, between the smoothed way and the course
};

/// Elevations at even places along a way.
struct EvenProfile
{
    double step = 0;                 // m
    std::vector<double> elevation;   // m, at 0, step, 2 * step, ...
};

/// Smooths elevations: at each place the straight line of least squares through its neighbours, weighted down to 0 at
/// `halfWidth` on either side, so that an even slope stays as it is up to its very ends.
///   halfWidth  m, 0 or more; below one step nothing is smoothed
[[nodiscard]] EvenProfile smoothed(const EvenProfile& profile, double halfWidth);

/// Makes a course of recorded points: elevations between points by straight lines, smoothed, and thinned by adding the
/// point that is farthest off until none is farther than thinningError or there are 100.
///   halfWidth  m, of the smoothing
/// Returns nothing for fewer than two places with an elevation, a way outside 50 m to 500 km, or a slope above 1:1;
/// `said` then tells why.
[[nodiscard]] std::optional<RecordedCourse> courseOfRecording(const std::vector<RecordedPoint>& points,
                                                              double halfWidth, Messages& said);

/// What was done to a recording, in words.
[[nodiscard]] std::string noteOf(const RecordedCourse& course);

/// Puts a recorded course in place of the one that there is.
void takePoints(const RecordedCourse& recorded, Course& course);

/// The entries of a course of that length, start and finish, with a scale around all of its points. Length and
/// elevations are rounded as a person would enter them, and the course is fitted to these.
///   before  units and the elevation of the runner's races stay, a marathon apart
[[nodiscard]] CourseEntries entriesOf(RecordedCourse& course, const CourseEntries& before);
