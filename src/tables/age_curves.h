#pragma once

#include "model/messages.h"
#include "model/model_state.h"
#include "prediction/calculation.h"

// Time against age over one distance: curves of fixed levels, and this runner's.

inline constexpr int firstAge = 5, lastAge = 95;   // years
inline constexpr int agesOnGraph = lastAge - firstAge + 1;
inline constexpr int levelCurves = 6;

/// Percent of curve j.
[[nodiscard]] constexpr int percentOf(int j)
{
    return 100 - 10 * j;
}

/// levelTimes at an age, 5 to 95, and curve; individualTimes at an age.
[[nodiscard]] inline double& levelTimeAt(AgeGraph& graph, int age, int j)
{
    return graph.levelTimes[static_cast<std::size_t>(age - firstAge)][static_cast<std::size_t>(j)];
}
[[nodiscard]] inline double& individualTimeAt(AgeGraph& graph, int age)
{
    return graph.individualTimes[static_cast<std::size_t>(age - firstAge)];
}

/// Gives the two arrays their sizes, with 0 for what no curve has filled yet.
void makeRoom(AgeGraph& graph);

/// Fills levelTimes over the metres of chosenRow, and sets axisTop by the slowest time of the level of 60 percent at
/// the ages of 5 and 85. Age comparison is the caller's to set.
/// Writes curDistance, ageCompareOn; leaves age at 95. Puts levelIndex back.
/// Faults: a chosenRow outside 1 to 24.
void fillLevelCurves(ModelState& state);

/// Fills individualTimes over the distance of chosenRow: at each age as good for it as the runner is at the entered one.
/// Age comparison is the caller's to set.
///   input  the main form's entries
/// Writes what `fillColumnAtAge` does, for column 0; leaves age at 95.  Faults: as `ownLevels` and that one.
void fillIndividualCurve(ModelState& state, CalculationInput& input, Messages& said);

/// What the axis ends at for the slowest time that it has to show.
///   peak  s
/// Returns s.
[[nodiscard]] double axisTopFor(double peak);
