#pragma once

#include <string>
#include <vector>

#include "model/model_state.h"

// The splits of a paced course: each mile or kilometer along the surface, and the finish.

struct CourseSplit
{
    double number = 0;                      // miles or kilometers, whole but at the finish
    double place = 0;                       // m horizontally
    double elevation = 0;                   // m, there
    double time = 0;                        // s from the start, with perfScale
    double split = 0;                       // s since the split before
    double perMile = 0, perKilometer = 0;   // s, pace of the split
    double grade = 0;                       // mean of the split, a fraction
};

/// The splits of the latest pacing, by straight lines between its hundred steps. Unlike the marks these have no end at 50,
/// and none lags behind.
///   unit  metres of a split: metresPerMile or metresPerKilometre
/// Returns none where no solve has run.  Faults: as `courseElevationAt`, two points at one x, a way
/// of more than 10,000 splits, which a cliff in a course file can make.
[[nodiscard]] std::vector<CourseSplit> courseSplits(const Course& course, double unit);

/// A time as tables show it, without the blanks around it.
[[nodiscard]] std::string timeCell(double seconds);

/// A pace band: a line a split with its number, the time there and the time of the split, narrow enough for a wrist.
///   miles  whether splits are miles
[[nodiscard]] std::vector<std::string> paceBand(const Course& course, bool miles);
