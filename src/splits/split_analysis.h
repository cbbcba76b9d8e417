#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "model/messages.h"
#include "model/model_state.h"

// The splits of a race or a workout: what time the same effort would have given at even pace, and how that compares
// with the runner's curve.

inline constexpr int splitRowCount = 27;
inline constexpr double longestSplit = 100000;   // m

/// One row of the grid, as typed. It counts if its distance is numeric.
struct SplitEntry
{
    std::string distance, minutes, seconds;
};
using SplitEntries = std::array<SplitEntry, static_cast<std::size_t>(splitRowCount)>;

enum class SplitMethod { method1, method2, mix };

/// One row that an analysis has taken.
struct SplitPiece
{
    int row = 0;   // of the grid, from 0
    double metres = 0;
};

struct SplitAnalysis
{
    double potentialTime = 0;   // s, at even pace for the same effort
    double curveRatio = 0;      // that over the curve's time; the best of all passes
    double totalDistance = 0;   // m
    double totalTime = 0;       // s
    std::vector<SplitPiece> pieces;
};

/// Whether a row counts, and whether its two time boxes hold anything to read.
[[nodiscard]] bool hasDistance(const SplitEntry& entry);
[[nodiscard]] bool hasTime(const SplitEntry& entry);

/// The even-pace time of split rows.
///
/// Method 1 is an exponent model of effort with corrections for how often the speed alternates; method 2 spreads a
/// stress of about the fourth power of speed evenly. The result never compares worse with the runner's curve than the
/// best stretch of consecutive rows does. With more than two rows it is worked out five times, without the first row,
/// the last, both, and again with all: a first or last row of unusual length distorts it, so that the best ratio holds.
///   entries     27 rows
///   unitFactor  m in a unit of distance: 1, 1000 or 1609.344
///   messages    gets the one that refuses the rows, if they are refused
/// Returns nothing when the rows are refused.  Faults: a distance or time of 0, or below 0, among other rows; distances
/// without a time on the curve.
/// 1,890 curve times for 27 rows.
[[nodiscard]] std::optional<SplitAnalysis> analyseSplits(ModelState& state, const SplitEntries& entries,
                                                         double unitFactor, SplitMethod methodChoice,
                                                         Messages& messages);
