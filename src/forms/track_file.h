#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "model/messages.h"

// What sports watches and route planners save: TCX and GPX files.

inline constexpr std::size_t longestTrackFile = 1 << 25;   // bytes

/// A point of a track, in the order in which it was passed.
struct TrackPoint
{
    double distance = 0;               // m from the first point, never falling
    std::optional<double> elevation;   // m
    std::optional<double> time;        // s from the first point that has a time, never falling
};

/// A lap that the watch has counted.
struct TrackLap
{
    double metres = 0;    // > 0
    double seconds = 0;   // > 0
};

struct Track
{
    std::vector<TrackPoint> points;
    std::vector<TrackLap> laps;   // of a TCX file
};

/// Reads a TCX or a GPX file: its first activity or course, or its first track or route that has points.
///   bytes  the whole file
///   said   gets what is wrong with it
/// A GPX point's distance is the way over a sphere of the earth's mean radius. Points without a place are left out, and
/// so are laps without a distance or a time; a distance or a time that goes back stands still.
/// Returns nothing for a file that is too large, no XML, broken off, neither of the two kinds, nested deeper or with
/// more elements than any watch writes, or with a document type, which could define entities.
[[nodiscard]] std::optional<Track> readTrack(std::string_view bytes, Messages& said);

/// Laps of equal distance along a track whose points have times, the last of them shorter.
///   step  m, > 0
/// Returns at most mostLaps + 1 laps, the one too many to tell that there are more; none without times.
[[nodiscard]] std::vector<TrackLap> evenLaps(const Track& track, double step, std::size_t mostLaps);
