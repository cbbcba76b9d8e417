#pragma once

// Units at the edge of the model. Inside it all lengths are metres, times seconds, speeds metres per second.

inline constexpr double metresPerMile = 1609.344;   // m, exact
inline constexpr double yardsPerMile = 1760;
inline constexpr double metresPerYard = metresPerMile / yardsPerMile;
inline constexpr double kilometresPerMile = 1.609344;   // exact
inline constexpr double metresPerKilometre = 1000;
inline constexpr double secondsPerHour = 3600;
inline constexpr double metresPerTrackLap = 400;            // m, the distance of "Per 400" paces
inline constexpr double displayKilometresPerMile = 1.609;   // for the show of weekly kilometers alone
inline constexpr double centimetresPerInch = 2.54;          // exact
inline constexpr double kilogramsPerPound = 0.45359237;     // exact
inline constexpr double joulesPerKcal = 4184;               // exact
inline constexpr double marathonMetres = 42195;
inline constexpr double halfMarathonMetres = 21097.5;
