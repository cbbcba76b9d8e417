#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// A record of a race file (.vtc): 84 bytes, little-endian and without gaps. Record n, from 1, begins at byte (n - 1) * 84.
//
//   0   2  race number, signed
//   2   4  hours, a 32-bit float; likewise 6 minutes, 10 seconds, 14 the distance number
//   18  1  "X" for miles, else a blank; likewise 19 yards, 20 kilometers, 21 meters, 22 marathon, 23 half marathon
//   24  60 comment, code page 1252, filled up with blanks

inline constexpr int raceRecordLength = 84;   // bytes
inline constexpr int raceFlags = 6;
inline constexpr std::size_t raceCommentLength = 60;
inline constexpr int highestRaceNumber = 32767;   // a record's place, too; below 1 there is none

struct RaceRecord
{
    std::int16_t number = 0;
    float hours = 0, minutes = 0, seconds = 0;
    float distance = 0;   // number of the unit that a flag tells
    std::array<char, static_cast<std::size_t>(raceFlags)> flags{};
    std::array<char, raceCommentLength> comment{};
};

/// A race as it is typed.
struct RaceEntries
{
    std::string number, hours, minutes, seconds, distance;   // read as leading numbers
    int unit = 0;                                            // 1 miles to 6 half marathon; 0 none of them
    std::string comment;                                     // UTF-8
};

/// The record of what was typed: numbers by their leading number, 0 without one, the race number rounded to a whole one,
/// a tie to the even one, the others to the nearest float; a comment cut at 60 characters.
/// Faults: a race number outside 1 to 32767, a number beyond the range of a float.
[[nodiscard]] RaceRecord recordOf(const RaceEntries& entries);

/// The comment field of a UTF-8 text.
[[nodiscard]] std::array<char, raceCommentLength> commentField(std::string_view text);

/// Where record n begins.
[[nodiscard]] inline std::uint64_t recordOffset(int n)
{
    return static_cast<std::uint64_t>(n - 1) * static_cast<std::uint64_t>(raceRecordLength);
}

/// The 84 bytes of a record.
[[nodiscard]] std::string bytesOf(const RaceRecord& record);

/// The record of up to 84 bytes; what lies behind their end is zero.
[[nodiscard]] RaceRecord recordOfBytes(std::string_view bytes);
