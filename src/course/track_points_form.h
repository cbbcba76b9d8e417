#pragma once

#include <vector>

#include "course/recorded_course.h"
#include "forms/track_file.h"

/// The points of a track as a course is made of them.
[[nodiscard]] inline std::vector<RecordedPoint> recordedPoints(const Track& track)
{
    std::vector<RecordedPoint> points;
    points.reserve(track.points.size());
    for (const TrackPoint& point : track.points)
        points.push_back({point.distance, point.elevation});
    return points;
}
