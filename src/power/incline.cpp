#include "power/incline.h"

#include <cmath>

#include "model/arithmetic.h"
#include "power/running_power.h"

namespace
{
    constexpr double effortKg = standardWeightKg;   // efforts are compared for one body
    constexpr double marchStep = 0.05;              // m/s
    constexpr double indoorHeadStart = 0.5;         // m/s that an indoor march starts below the speed
    constexpr double creep = 0.001;                 // m/s that each round of the search moves at the least

    double levelEffort(ModelState& state, double speed, double airFactor)
    {
        return netPower(state, speed, effortKg, 0, airFactor, 0);
    }

    double slopeEffort(ModelState& state, double speed, double grade)
    {
        if (state.incline.indoorMode > 0)
            return netPower(state, speed, effortKg, grade, 0, 0);
        return netPower(state, speed, effortKg, grade, 1, state.incline.windSpeed);
    }

    void faultIfStuck(double before, double after)
    {
        if (before == after)
            stopWith("a search without an end (the speed is too large for its steps)");
    }

    double marchUp(ModelState& state, double trial, double target, double levelAir)
    {
        LongLoop rounds(state.goOn);
        double p0 = 0;
        double p1 = levelEffort(state, trial, levelAir);
        for (;;)
        {
            rounds.nextRound();
            const double before = trial;
            p0 = p1;
            trial = trial + marchStep;
            p1 = levelEffort(state, trial, levelAir);
            if (p1 > target)
                break;
            faultIfStuck(before, trial);
        }
        return checked((trial - marchStep) + quotient(marchStep * (target - p0), p1 - p0));
    }

    double marchDown(ModelState& state, double trial, double target, double levelAir)
    {
        LongLoop rounds(state.goOn);
        double p0 = 0;
        double p1 = levelEffort(state, trial, levelAir);
        for (;;)
        {
            rounds.nextRound();
            const double before = trial;
            p0 = p1;
            trial = trial - marchStep;
            p1 = levelEffort(state, trial, levelAir);
            if (p1 < target || target <= 0)
                break;
            faultIfStuck(before, trial);
        }
        if (p1 == p0)
            return trial;   // as where the march has run out of speed
        return checked((trial + marchStep) - quotient(marchStep * (target - p0), p1 - p0));
    }
}

double levelSpeedForSlope(ModelState& state, double grade, double speed)
{
    const int mode = state.incline.indoorMode;
    const double target = slopeEffort(state, speed, grade);
    const double trial = mode > 0 ? speed - indoorHeadStart : speed;
    const double levelAir = mode == 2 ? 0 : 1;
    return state.incline.slopeDirection >= 0 ? marchUp(state, trial, target, levelAir)
                                             : marchDown(state, trial, target, levelAir);
}

double slopeSpeedForLevel(ModelState& state, double grade, double levelSpeed)
{
    const double L = levelSpeed;
    if (L <= -marchStep)
        stopWith("a search without an end (the level speed is negative)");
    int& direction = state.incline.slopeDirection;
    direction = 0;
    const double slopeCost = slopeEffort(state, L, grade);
    const double levelCost = levelEffort(state, L, 1);   // with air even between two treadmills, on purpose
    direction = levelCost > slopeCost ? -1 : 1;

    LongLoop rounds(state.goOn);
    double s = L + 0.003;
    double e = levelSpeedForSlope(state, grade, s);
    for (;;)
    {
        rounds.nextRound();
        const double before = s;
        s = s - (e - L) / 4 - direction * creep;
        e = levelSpeedForSlope(state, grade, s);
        if ((direction > 0 && e < L) || (direction < 0 && e > L))
            return s;
        faultIfStuck(before, s);
    }
}

double gradeAlongSurface(double horizontalGrade)
{
    return horizontalGrade / power(1 + square(horizontalGrade), 0.5);
}
