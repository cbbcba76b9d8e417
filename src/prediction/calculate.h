#pragma once

#include "prediction/calculation.h"

/// Turns the entered races into the runner's curve and prints the predicted table: reads and checks the rows, takes
/// the finish corrections off, sorts the races and drops inconsistent ones, warns about extrapolation, fits.
///   input     the entries; `fit` may be set to allData
///   results   picture, rows and what is enabled
///   messages  gets the run's messages in order; a failed check ends the run at once, and what was done before stands
/// With tableMode = 1 the rows are not read: the curve is fitted through tableTime800 and tableTime5000, and
/// tableTimes is filled for tableRow.
/// Writes races, curve, results and flags of the state, of the runner age, sex, weeklyMiles and ageDistanceTerm.
/// Faults: races that no curve can be fitted to, a comparison level of 0, ages without an age factor, entries beyond
/// the range of a double, a tableRow outside 0 to 8, a search that was stopped. A fault in the closing leaves
/// ageCompareLocal at 1.
void calculate(ModelState& state, CalculationInput& input, CalculationResults& results, Messages& messages);

/// Re-Calculate: resets the curve constants and the warnings and calculates twice, so that the second run sees the
/// levelIndex of the first. With English output it first calculates twice with the metric table, the only one with
/// the rows at 800 m and 5000 m that time800, time5000 and speedRatio come from. Clears performanceFromTable, and sets
/// calculatedOnce at the end.
/// Faults: as `calculate`; a fault while the metric table is chosen leaves it chosen.
void recalculate(ModelState& state, CalculationInput& input, CalculationResults& results, Messages& messages);
