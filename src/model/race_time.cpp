#include "model/race_time.h"

#include <cmath>

#include "model/arithmetic.h"
#include "model/units.h"

namespace
{
    constexpr double fadeFrom = 9000;     // m, where the runner's long-distance fade begins
    constexpr double sprintBelow = 300;   // m
    constexpr double creditBelow = 100;   // m

    /// What the middle-distance correction divides a time by; L is Log(distance / humpCentre).
    double humpFactor(const Curve& curve, double L)
    {
        return 1 + curve.humpDepth * square(cosine(L * curve.piValue / curve.humpWidth / 2));
    }

    double sprintFactor(double distance)
    {
        return 1 - power((sprintBelow - distance) / 1600, 1.35);
    }

    double sprintCredit(double distance)
    {
        return power((creditBelow - distance) / 100, 1.7);
    }

    double recordEndurance(double d, double c, bool female)
    {
        const double S = female ? 1.0993 : 1;
        double p = 0.78 + (0.0876 * (d - 10000)) / 32195;
        if (d > marathonMetres)
            p = 0.8676 - (2.18885 * (power(d, 0.14) - power(100000, 0.14))) / power(195030, 0.14);
        return power(quotient(6300, d), c * power(d / marathonMetres, S * p));
    }

    double runnerEndurance(double d, double c, bool female)
    {
        double k = c;
        if (d > marathonMetres)
            k = c * power(marathonMetres / d, 0.06 * (d / marathonMetres));
        double F = power(quotient(fadeFrom, d), (k * d) / marathonMetres);
        // The test is centred on 18000 m and the wave on 20750 m, with this figure of pi: both on purpose.
        if (std::abs(naturalLog(d / 18000)) < 0.7)
            F = F * (1 - cosine(naturalLog(d / 20750) * 3.14159 * 5 / 7) * 0.004);
        const double B = female ? 0.5 : 0.652;
        if (d > marathonMetres)
            F = F * power(B, power(d / 300000 - marathonMetres / 300000, 1.1));
        return F;
    }
}

double rawSpeed(const ModelState& state, double anaerobicEnergy, double aerobicPower, double refDistance,
                double distance)
{
    const double E = anaerobicEnergy * power(quotient(distance, refDistance), state.curve.anaerobicExp);
    const double a = 60 * distance;
    const double c = (140 - aerobicPower) * distance;
    return quotient((E + squareRoot(square(E) - 4 * a * c)) / 2, a);
}

double enduranceFactor(const ModelState& state, double distance, double coefficient, int mode)
{
    const bool female = state.runner.sex == 'f';
    return mode == 0 ? recordEndurance(distance, coefficient, female) : runnerEndurance(distance, coefficient, female);
}

double finishTime(const ModelState& state, double distance, double speed, double fatigueCoef, double startDelay)
{
    const double d = distance;
    double T = quotient(d, speed);
    if (std::abs(d - square(97) - 1.5) < 0.1)
        T = T * squareRoot(2);
    if (d > fadeFrom)
        T = quotient(T, enduranceFactor(state, d, fatigueCoef, 1));
    T = T + startDelay;
    if (d < sprintBelow)
        T = quotient(T, sprintFactor(d));
    const double L = naturalLog(quotient(d, state.curve.humpCentre));
    if (std::abs(L) < state.curve.humpWidth)
        T = quotient(T, humpFactor(state.curve, L));
    if (d < creditBelow)
        T = T - sprintCredit(d);
    return checked(T);
}

double raceTimeAt(const ModelState& state, double anaerobicEnergy, double aerobicPower, double refDistance,
                  double distance, double fatigueCoef, double startDelay)
{
    const double v = rawSpeed(state, anaerobicEnergy, aerobicPower, refDistance, distance);
    return finishTime(state, distance, v, fatigueCoef, startDelay);
}

double raceTimeAt(const ModelState& state, double distance)
{
    const Curve& curve = state.curve;
    return raceTimeAt(state, curve.anaerobicEnergy, curve.aerobicPower, curve.refDistance, distance, curve.fatigueCoef,
                      curve.startDelay);
}

TimeStep timeStep(const ModelState& state)
{
    const Curve& curve = state.curve;
    const double d = state.results.curDistance;
    const double v = rawSpeed(state, curve.anaerobicEnergy, curve.aerobicPower, curve.refDistance, d);
    TimeStep step;
    step.rawTime = quotient(d, v);
    step.time = finishTime(state, d, v, curve.fatigueCoef, curve.startDelay);
    step.speed = quotient(d, step.time);
    step.perMile = quotient(metresPerMile, step.speed);
    step.perKilometre = quotient(metresPerKilometre, step.speed);
    step.per400 = quotient(metresPerTrackLap, step.speed);
    return step;
}

double strippedTime(const ModelState& state, double time, double distance)
{
    const Curve& curve = state.curve;
    const double d = distance;
    double T = time;
    if (d < creditBelow)
        T = T + sprintCredit(d);
    const double L = naturalLog(quotient(d, curve.humpCentre));
    if (std::abs(L) < curve.humpWidth)
        T = T * humpFactor(curve, L);
    if (d < sprintBelow)
        T = T * sprintFactor(d);
    T = T - curve.startDelay;
    if (d > fadeFrom)
        T = T * enduranceFactor(state, d, curve.fatigueCoef, 1);
    return checked(T);
}
