#pragma once

#include "model/messages.h"
#include "model/model_state.h"
#include "prediction/calculation.h"

// A runner at another age: as good for that age as the runner is now.

/// Performance levels of the runner's time800 and time5000.
struct OwnLevels
{
    double level800 = 0, level5000 = 0;
};

/// Rates time800 and time5000 at the state's age.
/// Writes ageCompareOn.  Faults: no race has been calculated, an age without an age factor.
[[nodiscard]] OwnLevels ownLevels(ModelState& state);

/// The level index that stands for a level, with the last step in the order in which the tables take it.
///   L    fraction, > 0; men get 0 from level 1 up
///   sex  'm' or 'f'
/// Faults: L not above 0.
[[nodiscard]] double indexForLevel(double L, char sex);

/// Fills column `column` of tableTimes with the runner's times over all distances at the state's age.
///   corrections  how often each of the two times that lead to the curve is brought nearer to its level
///   input        the main form's entries: weekly miles and sex are read
///   said         gets the messages of `calculate`
/// Writes tableTime800, tableTime5000, tableRow, tableDist, what `calculate` writes in tableMode: the curve, the races
/// in use, sex. tableMode is 0 afterwards, also after a fault: else no race row would be read any more.
/// Faults: an age without an age factor, as `calculate`.
void fillColumnAtAge(ModelState& state, const OwnLevels& levels, int corrections, int column, CalculationInput& input,
                     Messages& said);
