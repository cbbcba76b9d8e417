#include "model/model_state.h"

#include <cmath>

#include "model/arithmetic.h"

void resetCurveConstants(ModelState& state)
{
    state.curve.anaerobicExp = 0.65;
    state.curve.humpCentre = 360;
    state.curve.humpDepth = -0.02;
    state.curve.humpWidth = 1.15;
}

double bodyDragOf(double weightKg, double heightCm)
{
    const double build = quotient(weightKg / standardWeightKg, heightCm / standardHeightCm);
    return standardBodyDrag * power(build, 1.0 / 4);
}

double fatigueCoefOf(double weeklyMiles, bool female)
{
    const double coefficient = 0.08 - power(weeklyMiles + 1, 0.5) / 420 + 62.97 * power(weeklyMiles + 20, -1.73) - 0.03;
    return female ? coefficient - 0.022 : coefficient;
}

double ageDistanceTermOf(double age)
{
    return power(std::abs(age - 18), 1.5) / 24;
}

double estimateMaxHr(double age, int female)
{
    const double estimate = 1 + 0.6 * (191.5 - 0.007 * square(age)) + 0.4 * (208 - 0.7 * age);
    return checked(female == 1 ? estimate - 3 : estimate);
}
