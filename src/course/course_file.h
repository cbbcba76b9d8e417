#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/messages.h"
#include "model/model_state.h"

// The .cpf file of a course: an item a line, in this order: the entered distance as typed, its unit (1 to 6), the four
// elevations as typed, their unit (1 feet, 2 meters), the unit of paces (1 per mile, 2 per kilometer), origElev (m), the
// count of points, and x and y (m) of each point. Lines end in CR LF; LF alone is read as well. A number that is written
// has a blank or a minus before it and a blank behind it.

inline constexpr std::size_t longestCourseFile = 1 << 16;   // bytes

/// A course as a file holds it. A unit code that there is not is kept as it is; it changes nothing.
struct CourseFile
{
    std::string distance, maxElev, minElev, startElev, endElev;   // as typed
    double unitCode = 3, elevationCode = 2, paceCode = 1;
    double origElev = 300;                // m
    std::vector<double> pointX, pointY;   // 2 to 100 points
};

/// The bytes of a file. A line end within a text becomes a blank, a number that is no double's least digits reads back to
/// the same double.
[[nodiscard]] std::string bytesOf(const CourseFile& file);

/// Reads the bytes of a file whole, or not at all.
/// Returns nothing for one that is too large, breaks off (the last number needs its blank or its line end), has a text
/// where a number belongs, a count of points outside 2 to 100, or a point farther away than any course goes; `said` then
/// tells which line is wrong.
[[nodiscard]] std::optional<CourseFile> readCourseFile(std::string_view bytes, Messages& said);

/// The course that the entries and points of the state are.
[[nodiscard]] CourseFile courseFileOf(const CourseEntries& entries, const Course& course);

/// The entries after a file has been put into them: a code that there is not leaves the choice as it was, and origElev is
/// held within its bounds.
[[nodiscard]] CourseEntries entriesOf(const CourseFile& file, const CourseEntries& before);

/// Takes the points of a file in place of those that there are.
void takePoints(const CourseFile& file, Course& course);

inline constexpr int lowestOrigElev = -100, highestOrigElev = 4500;   // m
