#include "workouts/workout_heart_rates.h"

#include "analysis/heart_rates.h"
#include "model/arithmetic.h"

namespace
{
    /// How much the heart rate drifts with the time of fast running: 30 minutes are neutral.
    ///   T  s
    ///   I  percent
    double driftOf(double T, double I)
    {
        const double e = 0.062 / (exponential((I - 87.5) * -0.185) + 1) + 0.053;
        double d = power(T / 1800, e);
        double B = I;
        if (T < 900)
            B = (90 * (900 - T) + I * T) / 900;
        if (T < 1800 && I > 90)   // hard short workouts do not show their shortness
            d = (d * (100 - B) + (B - 90)) / 10;
        return d;
    }
}

WorkoutHeartRates workoutHeartRates(const ModelState& state, const WorkoutPlan& plan, const WorkoutSettings& settings)
{
    const double maxHr = state.runner.maxHr;
    const double restHr = state.runner.restHr;
    const double T = plan.fastTime;
    const double Rt = plan.recoveryTotalTime;
    const double n = plan.repeatCount;
    const auto hr = [&](double v) {   // the speed at the runner's own level; rounding may make one negative
        return hrAtSpeed(state, v < 0 ? 0 : quotient(v, settings.perfAdjust / 200));
    };

    double d = driftOf(T, settings.intensityPct);
    const double h = hr(quotient(plan.fastDist, T));
    if (d * h > maxHr)
        d = 1;
    const double hAll = d * hr(quotient(plan.totalDist, T + Rt));
    const double hRec = d * hr(quotient(plan.totalDist - plan.fastDist, Rt + 0.001));
    const double hMix = quotient(hRec * Rt + h * T, T + Rt);
    double m = hAll;
    if (hMix > hAll)
        m = hMix;

    const double c = power((100 - settings.recovPct) / 100, 0.5) * 0.8 * (1 - quotient(Rt, T + Rt));
    m = m + (h - m) * c;
    WorkoutHeartRates rates;
    rates.effortHr = h * d;
    const double a = quotient(T, n);
    if (a < 120)   // over before the heart has risen
        rates.effortHr = rates.effortHr - (rates.effortHr - m) * power(1 - a / 120, 3);
    rates.recoveryHr = quotient(m * (T + Rt) - h * T, Rt + 0.001);
    double g = 0;   // s of one recovery
    if (n > 1)
        g = quotient(Rt, n - 1);
    if (rates.recoveryHr < m - g * 0.7)   // the heart falls by 0.7 beats a second at most
        rates.recoveryHr = m - g * 0.7;
    rates.meanHr = quotient(rates.recoveryHr * Rt + rates.effortHr * T, T + Rt);
    if (rates.meanHr > rates.effortHr)
        rates.meanHr = rates.effortHr;
    if (rates.recoveryHr > rates.meanHr)
        rates.recoveryHr = rates.meanHr;
    rates.hrPercentMax = quotient(100 * rates.effortHr, maxHr);
    rates.hrPercentReserve = quotient(100 * (rates.effortHr - restHr), maxHr - restHr);
    return rates;
}
