#pragma once

#include "model/messages.h"
#include "model/model_state.h"

/// Finds aerobicPower, anaerobicEnergy and refDistance from the races in use.
///
/// A race has a fixed energy, (140 + 60 * v ^ 2) * t with t its stripped time, so that for a given aerobicPower the
/// anaerobicEnergy follows and the curve passes through the race: the fit is a search for one number. A single race
/// can't settle it; the one-race fit raises aerobicPower until the curve's level and specialty call for the weekly
/// distance that the runner runs. A pair settles it: the pair fit slows aerobicPower until the curve through the
/// shorter race meets the longer. "Fit best two" takes the first pair, shortest races first, whose curve no other
/// race beats; "Use all data" blends all such pairs with the best one-race fit.
///
///   useBestTwo  true for "Fit best two"
///   messages    gets "Very unusual profile..." once until Re-Calculate
/// Reads the runner, the races 1 to raceCount, the curve constants. Writes aerobicPower, anaerobicEnergy,
/// refDistance, ageDistanceTerm, curDistance, level, speedRatioAdj, ageCompareOn, warnedProfile; lowers anaerobicExp
/// for long races that are very slow, and nothing raises it again before Re-Calculate.
/// Faults: no pair is kept; a sixth pair; a race without a usable time; a search that can't end. A fault while
/// the pace search estimates the specialty leaves age at 27, and any fault in it the search's speedRatio.
/// Loops: the pace search takes some 60 rounds on ordinary data (up to 215 measured), the pair fit some 30 (up to
/// 10,000 for races that hardly fit together); neither has a cap. Both ask goOn and stop with a fault once their pace
/// no longer moves.
void fitCurve(ModelState& state, bool useBestTwo, Messages& messages);
