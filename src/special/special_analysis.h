#pragma once

#include <string>

#include "model/messages.h"
#include "model/model_state.h"
#include "model/text_page.h"
#include "special/pacing_table.h"

// Hills, wind and uneven pacing over one distance, for the runner's fitted curve.

inline constexpr double longestSpecialMetres = 500000;

inline constexpr const char* specialHeading = "Time   Per Mi   Per km   Per 400   Record   %Spd   P.Level";

/// What an analysis leaves to be shown. It is written step by step, so that after a fault it holds what was done
/// before it.
struct SpecialResults
{
    std::string levelLine;   // Text4
    std::string hillLine;    // Text5
    TextPage table;          // pacing strategies
    TextPage winds;          // wind estimates: a heading, a column head and a line
};

/// The distance of the entries, m: the leading number of the text times its unit; whole distances take no number.
/// Faults: a number beyond the range of a double.
[[nodiscard]] double specialDistance(const SpecialEntries& entries);

/// Mean speed of the state's curve at a distance before any correction, m/s: `rawSpeed`. `finishTime` of it is
/// `raceTimeAt`.
///   distance  m, > 0
/// Faults: as `rawSpeed`.
[[nodiscard]] double rawSpeedAt(const ModelState& state, double distance);

/// Time over a course of constant slope with the wind of windSpeed: at the effort of a level race that lasts as long.
///   distance  m, > 0
///   slope     rise over distance along the surface
/// Start value: the level race over the same distance. Each round takes half of the correction to the level race's
/// distance. Stop: |tHill / tLevel - 1| < 0.001; no cap.
/// Returns s. Writes curDistance, slopeDirection, zeroPowerFlag.
/// Faults: a distance that comes back, after which the rounds would repeat without an end (seen on slopes above 0.44);
/// as `rawSpeed`, `finishTime` and `slopeSpeedForLevel`.
[[nodiscard]] double constantSlopeTime(ModelState& state, double distance, double slope);

/// Best times for level races with wind of several directions.
struct WindEstimates
{
    double noWind = 0, headTailWind = 0, crossWind = 0, circle = 0, trackCrossWind = 0, trackParallel = 0;   // s
};

/// Blends the times of an out-and-back race with wind and without.
///   times  of the pacing table, in mode "r"
/// Reads curDistance (half the distance), windSpeed.  Faults: a curDistance of 0.
[[nodiscard]] WindEstimates windEstimates(const ModelState& state, const PacingTimes& times);

/// The analysis of the special information form.
///   comparisonLevel  tenths of a percent: the level of the Record figure
///   kilometers       whether course paces are shown per kilometer
/// Reads the curve, heightCm, sex, windBase.
/// Writes analysisMode, slope, paceDivisor, the pacing curve, the stored entries, curDistance, level, windSpeed. In mode
/// "c" windSpeed goes back to 0 at the end; after mode "r", or a mode "c" that was refused or faulted, it stays.
/// A distance above 500 km gets a message and nothing else.
/// Faults: a distance not above 0, a comparisonLevel of 0; as `constantSlopeTime` and `printPacingTable`.
void specialAnalysis(ModelState& state, const SpecialEntries& entries, int comparisonLevel, bool kilometers,
                     SpecialResults& results, Messages& said);
