#pragma once

/// The texts above a treadmill table: its title, what it shows, and an example.
struct TreadmillTexts
{
    const char* title = "";      // Label4
    const char* contents = "";   // Label1
    const char* example = "";    // Label2
};

/// The texts of one of the table's sixteen states. They are fixed, whatever the table shows.
///   tmillMode     1 or 2, see `SlopeTools`
///   tmillDisplay  1 or 2
[[nodiscard]] TreadmillTexts treadmillTexts(int tmillMode, bool kilometers, int tmillDisplay, bool indoors);
