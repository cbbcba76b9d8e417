#include "course/recorded_course.h"

#include <algorithm>
#include <cmath>

#include "course/course_profile.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    constexpr double finestStep = 5;           // m, of the even places
    constexpr std::size_t mostSteps = 20000;   // of a way

    /// Places with an elevation, each farther along than the one before it.
    struct Place
    {
        double distance = 0, elevation = 0;   // m
        int merged = 1;                       // points that were recorded there
    };

    std::vector<Place> placesOf(const std::vector<RecordedPoint>& points)
    {
        std::vector<Place> places;
        for (const RecordedPoint& point : points)
        {
            if (!point.elevation)
                continue;
            const double distance = point.distance - points.front().distance;
            if (places.empty() || distance > places.back().distance)
            {
                places.push_back({distance, *point.elevation});
                continue;
            }
            Place& same = places.back();   // a stop: the mean of what was recorded during it
            same.elevation = same.elevation + (*point.elevation - same.elevation) / (same.merged + 1);
            same.merged = same.merged + 1;
        }
        return places;
    }

    /// The way as even places, by straight lines, and level before the first and behind the last elevation.
    EvenProfile evenProfile(const std::vector<Place>& places, double length)
    {
        EvenProfile profile;
        const auto steps =
            static_cast<std::size_t>(std::clamp(std::ceil(length / finestStep), 2.0, static_cast<double>(mostSteps)));
        profile.step = length / static_cast<double>(steps);
        std::size_t next = 0;
        for (std::size_t i = 0; i <= steps; ++i)
        {
            const double x = static_cast<double>(i) * profile.step;
            while (next < places.size() && places[next].distance < x)
                ++next;
            if (next == 0 || next == places.size())
            {
                profile.elevation.push_back(next == 0 ? places.front().elevation : places.back().elevation);
                continue;
            }
            const Place& from = places[next - 1];
            const Place& to = places[next];
            const double share = (x - from.distance) / (to.distance - from.distance);
            profile.elevation.push_back(from.elevation + share * (to.elevation - from.elevation));
        }
        return profile;
    }

    /// Sums of a weighted fit of a straight line.
    struct LineFit
    {
        double w = 0, wx = 0, wxx = 0, wy = 0, wxy = 0;

        void add(double weight, double x, double y)
        {
            w += weight;
            wx += weight * x;
            wxx += weight * x * x;
            wy += weight * y;
            wxy += weight * x * y;
        }
        [[nodiscard]] double atZero() const
        {
            const double spread = w * wxx - wx * wx;
            return spread > 1e-9 * w * w ? (wy * wxx - wx * wxy) / spread : wy / w;
        }
    };

    double climbOf(const std::vector<double>& elevations)
    {
        double climb = 0;
        for (std::size_t i = 1; i < elevations.size(); ++i)
            climb += std::max(elevations[i] - elevations[i - 1], 0.0);
        return climb;
    }

    /// The place between two that is farthest off the straight line through them.
    struct Farthest
    {
        std::size_t from = 0, to = 0, at = 0;
        double error = 0;   // m
    };

    Farthest farthestBetween(const std::vector<double>& y, std::size_t from, std::size_t to)
    {
        Farthest farthest{from, to};
        for (std::size_t i = from + 1; i < to; ++i)
        {
            const double share = static_cast<double>(i - from) / static_cast<double>(to - from);
            const double error = std::abs(y[i] - (y[from] + share * (y[to] - y[from])));
            if (error > farthest.error)
                farthest = {from, to, i, error};
        }
        return farthest;
    }

    /// Thins a profile into the course's points.
    void thin(const EvenProfile& profile, RecordedCourse& course)
    {
        const std::vector<double>& y = profile.elevation;
        std::vector<std::size_t> kept{0, y.size() - 1};
        std::vector<Farthest> gaps{farthestBetween(y, 0, y.size() - 1)};
        const auto less = [](const Farthest& a, const Farthest& b) { return a.error < b.error; };
        while (kept.size() < static_cast<std::size_t>(mostCoursePoints))
        {
            const auto worst = std::max_element(gaps.begin(), gaps.end(), less);
            if (worst->error <= thinningError)
                break;
            const Farthest split = *worst;
            kept.push_back(split.at);
            *worst = farthestBetween(y, split.from, split.at);
            gaps.push_back(farthestBetween(y, split.at, split.to));
        }
        course.largestError = std::max_element(gaps.begin(), gaps.end(), less)->error;
        std::sort(kept.begin(), kept.end());
        for (const std::size_t i : kept)
        {
            course.pointX.push_back(static_cast<double>(i) * profile.step);
            course.pointY.push_back(y[i]);
        }
    }

    bool isTooSteep(const RecordedCourse& course)
    {
        for (std::size_t i = 1; i < course.pointX.size(); ++i)
            if (std::abs(course.pointY[i] - course.pointY[i - 1]) > course.pointX[i] - course.pointX[i - 1])
                return true;
        return false;
    }

    std::optional<RecordedCourse> refuse(Messages& said, const char* why)
    {
        said.push_back({why});
        return std::nullopt;
    }

    double roundedTo(double value, double places)
    {
        return roundHalfEven(value * places) / places;
    }

    /// A rounded number of units that is no longer than a course may be.
    std::string inUnits(double metres, double unit, double steps)
    {
        const double rounded = roundedTo(metres / unit, steps);
        if (rounded * unit > longestCourse)
            return plainText(rounded - 1 / steps);
        return plainText(rounded);
    }

    /// A distance as a person would enter it: to the meter or a finer part of a longer unit.
    std::string distanceText(double metres, CourseUnit unit)
    {
        switch (unit)
        {
        case CourseUnit::miles: return inUnits(metres, metresPerMile, 10000);
        case CourseUnit::kilometers: return inUnits(metres, metresPerKilometre, 1000);
        case CourseUnit::yards: return inUnits(metres, metresPerYard, 1);
        default: return inUnits(metres, 1, 1);
        }
    }

    std::string elevationText(double metres, bool feet)
    {
        return plainText(roundedTo(feet ? metres * feetPerMetre : metres, 10));
    }

    /// Top or bottom of a graph, on a full step of its scale.
    std::string scaleText(double metres, bool feet, double (*toStep)(double))
    {
        constexpr double step = 50;
        return plainText(toStep((feet ? metres * feetPerMetre : metres) / step) * step);
    }
}

EvenProfile smoothed(const EvenProfile& profile, double halfWidth)
{
    EvenProfile smooth{profile.step, {}};
    const auto count = static_cast<std::ptrdiff_t>(profile.elevation.size());
    const auto reach = static_cast<std::ptrdiff_t>(std::min(halfWidth / profile.step, static_cast<double>(count)));
    for (std::ptrdiff_t i = 0; i < count; ++i)
    {
        LineFit fit;
        for (std::ptrdiff_t j = std::max<std::ptrdiff_t>(i - reach, 0); j <= std::min(i + reach, count - 1); ++j)
            fit.add(1 - std::abs(static_cast<double>(j - i)) / static_cast<double>(reach + 1),
                    static_cast<double>(j - i), profile.elevation[static_cast<std::size_t>(j)]);
        smooth.elevation.push_back(fit.atZero());
    }
    return smooth;
}

std::optional<RecordedCourse> courseOfRecording(const std::vector<RecordedPoint>& points, double halfWidth,
                                                Messages& said)
{
    const std::vector<Place> places = placesOf(points);
    if (places.size() < 2)
        return refuse(said, "The file has no elevations along its way.");
    const double length = points.back().distance - points.front().distance;
    if (length > longestCourse)
        return refuse(said, "The way in the file is longer than 500 km (311 miles).");
    if (length < shortestCourse)
        return refuse(said, "The way in the file is shorter than 50 meters.");
    RecordedCourse course;
    std::vector<double> recorded;
    for (const Place& place : places)
    {
        course.recorded += static_cast<std::size_t>(place.merged);
        recorded.push_back(place.elevation);
    }
    course.halfWidth = halfWidth;
    course.recordedRise = climbOf(recorded);
    EvenProfile profile = smoothed(evenProfile(places, length), halfWidth);
    course.rise = climbOf(profile.elevation);
    course.drop = course.rise - (profile.elevation.back() - profile.elevation.front());
    thin(profile, course);
    if (isTooSteep(course))
        return refuse(said, "The way in the file is steeper than 1:1 (45 degrees).");
    return course;
}

std::string noteOf(const RecordedCourse& course)
{
    return plainText(static_cast<double>(course.recorded)) + " points recorded, climb " +
           formatNumber(course.recordedRise, 0, 0) + " m; smoothed over " + plainText(course.halfWidth) +
           " m on either side, climb " + formatNumber(course.rise, 0, 0) + " m; " +
           plainText(static_cast<double>(course.pointX.size())) + " points kept, largest elevation error " +
           formatNumber(course.largestError, 0, 1) + " m";
}

void takePoints(const RecordedCourse& recorded, Course& course)
{
    clearCoursePlaces(course);
    std::copy(recorded.pointX.begin(), recorded.pointX.end(), course.pointX.begin());
    std::copy(recorded.pointY.begin(), recorded.pointY.end(), course.pointY.begin());
    course.pointCount = static_cast<int>(recorded.pointX.size());
}

CourseEntries entriesOf(RecordedCourse& course, const CourseEntries& before)
{
    CourseEntries entries = before;
    if (entries.unit == CourseUnit::marathon || entries.unit == CourseUnit::halfMarathon)
        entries.unit = CourseUnit::kilometers;
    entries.distance = distanceText(course.pointX.back(), entries.unit);
    const double length = courseDistanceOf(entries.distance, entries.unit);
    const double stretch = length / course.pointX.back();
    for (double& x : course.pointX)
        x = x * stretch;
    course.pointX.back() = length;
    entries.startElev = elevationText(course.pointY.front(), entries.feet);
    entries.endElev = elevationText(course.pointY.back(), entries.feet);
    course.pointY.front() = courseElevationOf(entries.startElev, entries.feet);
    course.pointY.back() = courseElevationOf(entries.endElev, entries.feet);
    const auto [lowest, highest] = std::minmax_element(course.pointY.begin(), course.pointY.end());
    constexpr double margin = 10;   // m
    entries.maxElev = scaleText(*highest + margin, entries.feet, std::ceil);
    entries.minElev = scaleText(*lowest - margin, entries.feet, std::floor);
    return entries;
}
