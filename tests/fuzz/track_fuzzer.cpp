#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>

#include "forms/track_file.h"

// Bytes as a file of a watch: read or refused with a reason, and what is read is in order.

namespace
{
    void check(bool good, const char* what)
    {
        if (good)
            return;
        std::cerr << what << '\n';
        std::abort();
    }

    void expectOrder(const Track& track)
    {
        double distance = 0;
        double time = 0;
        for (const TrackPoint& point : track.points)
        {
            check(std::isfinite(point.distance) && point.distance >= distance, "a distance goes back");
            check(!point.elevation || std::isfinite(*point.elevation), "an elevation is no number");
            check(!point.time || (std::isfinite(*point.time) && *point.time >= time), "a time goes back");
            distance = point.distance;
            time = point.time.value_or(time);
        }
        for (const TrackLap& lap : track.laps)
            check(lap.metres > 0 && lap.seconds > 0, "a lap has no distance or no time");
        for (const TrackLap& lap : evenLaps(track, 400, 27))
            check(lap.metres > 0 && std::isfinite(lap.seconds) && lap.seconds >= 0, "an even lap is none");
        check(evenLaps(track, 400, 27).size() <= 28, "there are too many even laps");
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Messages said;
    const std::string bytes(data, data + size);
    const std::optional<Track> track = readTrack(bytes, said);
    check(track.has_value() == said.empty(), "a refusal without a reason, or a reason without a refusal");
    if (track)
        expectOrder(*track);
    return 0;
}
