#pragma once

#include <string_view>

#include "model/messages.h"
#include "model/model_state.h"

// A course as points from start to finish, and the rules by which entries and points come into it.
//
// The first point is (0, startElev), the last one (courseDist, endElev). With two points alone both follow every change
// of these.

inline constexpr double longestCourse = 500000;   // m
inline constexpr double shortestCourse = 50;
inline constexpr double feetPerMetre = 3.281;   // of every elevation

inline constexpr const char* distanceTooLong =
    "Distance over 500 km (311 miles)!  Check your units as well as the entered number.";

/// Place i of an array of points or steps.  Faults: an index that the array does not have.
template <class Array>
[[nodiscard]] auto& placeAt(Array& places, int i)
{
    if (i < 0 || static_cast<std::size_t>(i) >= places.size())
        stopWith("an index out of range");
    return places[static_cast<std::size_t>(i)];
}

/// A distance as entered, m: the leading number of the text in the unit; a marathon and a half need no number.
/// Faults: a number beyond the range of a double.
[[nodiscard]] double courseDistanceOf(std::string_view text, CourseUnit unit);

/// An elevation as entered, m.  Faults: likewise.
[[nodiscard]] double courseElevationOf(std::string_view text, bool feet);

/// Takes the distance of the entries.
/// Returns whether it was within bounds, and no points stood in its way. Else a message says so: out of bounds it stays
/// in courseDist alone; with points between start and finish it counts although they keep their places.
/// Writes courseDist, distanceValid, xScale, and the two end points where these are all.
[[nodiscard]] bool readCourseDistance(ModelState& state, const CourseEntries& entries, Messages& messages);

/// Takes the four elevations of the entries.
/// Returns whether no points stood in their way; else a message says so, and they count all the same.
/// Writes maxElev, minElev, yScale, startElev, endElev, and the two end points where these are all.
[[nodiscard]] bool readCourseElevations(ModelState& state, const CourseEntries& entries, Messages& messages);

/// Adds a point between start and finish. The first one is not checked at all; of a later one the grade from the point
/// before it must be 1 at the most, and its x a new one. The grade towards the point behind it is not looked at.
///   x, y  m
/// Returns whether it was stored; else a message says why. The marks are cleared in any case.
/// Faults: x below 0 or beyond the finish where it is not the first point.
[[nodiscard]] bool addCoursePoint(ModelState& state, double x, double y, Messages& messages);

/// Sets the places behind the two ends to 0.
void clearCoursePlaces(Course& course);
