#include "analysis/heart_rates.h"

#include <algorithm>

#include "model/arithmetic.h"

namespace
{
    constexpr double walkStep = 0.001;   // m/s

    struct Zone
    {
        double mean = 0, low = 0, high = 0;   // beats a minute
    };

    Zone aerobicZone(const ModelState& state)
    {
        const double A = state.runner.age;
        const double W = state.runner.weeklyMiles;
        const double M = state.runner.maxHr;
        const double R = state.runner.restHr;
        // the sign makes the square act in both directions around 35 years
        const double ageRate =
            (180 - A) + 12 * (power(W, 0.2) - power(15, 0.2)) + signOf(A - 35) * 0.008 * square(A - 35);
        const double mean = 0.36 * M + 0.25 * (R + 0.65 * (M - R)) + 0.25 * ageRate;
        const double low = 0.325 * M + 0.25 * (R + 0.56 * (M - R)) + 0.25 * (ageRate - 7);
        const double high = 0.395 * M + 0.25 * (R + 0.74 * (M - R)) + 0.25 * (ageRate + 7);
        const double speedFactor = 1 + (state.results.time5000 / 60 - 11.75) * 0.001;
        return {quotient(mean, speedFactor), quotient(low, speedFactor), quotient(high, speedFactor)};
    }

    Zone thresholdZone(const ModelState& state)
    {
        const double W = state.runner.weeklyMiles;
        const double M = state.runner.maxHr;
        const double R = state.runner.restHr;
        double f = 0.915 - quotient(0.00015 * square(state.training.time10k / 60 - 20), power(W + 10, 0.2));
        if (f < 0.65)
            f = 0.65;
        const auto rateAt = [M, R](double q) { return checked(0.75 * q * M + 0.25 * (R + (q - 0.03) * (M - R))); };
        return {rateAt(f), rateAt(f - 0.025), rateAt(f + 0.025)};
    }

    /// The speed above `start` from which on the heart rate is above a target.
    double walkUp(const ModelState& state, double start, double target)
    {
        LongLoop loop(state.goOn);
        double s = start;
        bool done = false;
        do
        {
            loop.nextRound();
            const double before = s;
            s = s + walkStep;
            done = hrAtSpeed(state, s) > target;
            // from vo2maxSpeed on the rate is the maximum
            const bool atMaximum = s >= state.training.vo2maxSpeed && !(state.runner.maxHr > target);
            if (!done && (atMaximum || s == before))
                stopWith("a search that cannot end, because no speed reaches the heart rate");
        } while (!done);
        return s;
    }

    /// The speed below `start` from which on downwards the heart rate is below a target.
    double walkDown(const ModelState& state, double start, double target)
    {
        const Training& training = state.training;
        const double slowest = std::min({training.aerobicTrainSpeed, training.thresholdSpeed, training.vo2maxSpeed});
        LongLoop loop(state.goOn);
        double s = start;
        bool done = false;
        do
        {
            loop.nextRound();
            const double before = s;
            s = s - walkStep;
            done = hrAtSpeed(state, s) < target;
            // below standstill the rate is 0, or the maximum if that is lower
            const bool atNothing = s < 0 && s < slowest && !(std::min(0.0, state.runner.maxHr) < target);
            if (!done && (atNothing || s == before))
                stopWith("a search that cannot end, because no speed reaches the heart rate");
        } while (!done);
        return s;
    }
}

double hrAtSpeed(double speed, double aerobicTrainSpeed, double thresholdSpeed, double vo2maxSpeed, double restHr,
                 double aerobicHr, double thresholdHr, double maxHr)
{
    const double s = speed;
    const double u1 = aerobicTrainSpeed;
    const double u2 = thresholdSpeed;
    const double u3 = vo2maxSpeed;
    const double h1 = aerobicHr;
    const double h2 = thresholdHr;
    const double h3 = maxHr;
    const double h0 = restHr + 10;   // at standstill
    double h = 0;
    if (s == 0)
        h = h0;
    if (0 < s && s < u1)   // a blend of the line from standstill and of the line between the training speeds
    {
        const double a = quotient(h1 - h0, u1);
        const double b = quotient(h2 - h1, u2 - u1);
        const double upper = h1 + b * (s - u1);
        const double lower = h0 + a * s;
        h = quotient(upper * s + lower * (u1 - s), u1);
    }
    const double slope1 = quotient(h2 - h1, u2 - u1);
    double slope2 = quotient(h3 - h2, u3 - u2);
    const double w = std::clamp(0.5 * square(quotient(slope2, slope1)), 0.1, 0.9);
    slope2 = (1 - w) * slope2 + w * slope2 * (u3 - s) / (u3 - u2);
    if (u1 <= s && s < u2)
        h = h1 + slope1 * (s - u1);
    if (u2 <= s && s < u3)
    {
        const double upper = h2 + slope1 * (s - u2);
        const double lower = h3 + slope2 * (s - u3);
        h = (upper * (u3 - s) + lower * (s - u2)) / (u3 - u2);
    }
    if (h > h3 || s >= u3)
        h = h3;
    return checked(h);
}

double hrAtSpeed(const ModelState& state, double speed)
{
    const Training& training = state.training;
    return hrAtSpeed(speed, training.aerobicTrainSpeed, training.thresholdSpeed, training.vo2maxSpeed,
                     state.runner.restHr, training.aerobicHr, training.thresholdHr, state.runner.maxHr);
}

void findHeartRateZones(ModelState& state)
{
    state.activity = "working out the heart rates of training";
    Training& t = state.training;
    const Zone aerobic = aerobicZone(state);
    t.aerobicHr = aerobic.mean;
    t.aerobicHrLow = aerobic.low;
    t.aerobicHrHigh = aerobic.high;
    const double highRatio = quotient(t.aerobicHrHigh, t.aerobicHr);
    const double lowRatio = quotient(t.aerobicHrLow, t.aerobicHr);

    const Zone threshold = thresholdZone(state);
    t.thresholdHr = threshold.mean;
    t.thresholdHrLow = threshold.low;
    t.thresholdHrHigh = threshold.high;
    const double thresholdHighRatio = quotient(t.thresholdHrHigh, t.thresholdHr);
    const double thresholdLowRatio = quotient(t.thresholdHrLow, t.thresholdHr);

    if (quotient(t.aerobicHr, t.thresholdHr) > 0.86)
    {
        const double g = squareRoot(t.aerobicHr * t.thresholdHr);
        t.aerobicHr = g * squareRoot(0.86);
        t.thresholdHr = g / squareRoot(0.86);
    }
    t.aerobicHrHigh = checked(t.aerobicHr * highRatio);
    t.aerobicHrLow = checked(t.aerobicHr * lowRatio);
    t.thresholdHrHigh = checked(t.thresholdHr * thresholdHighRatio);
    if (t.thresholdHrHigh > 0.94 * state.runner.maxHr)
        t.thresholdHrHigh = 0.94 * state.runner.maxHr;
    t.thresholdHrLow = checked(t.thresholdHr * thresholdLowRatio);
    if (t.aerobicHrHigh > t.thresholdHrLow - 2)   // the zones stay at least 2 apart
    {
        const double m = (t.aerobicHrHigh + t.thresholdHrLow) / 2;
        t.aerobicHrHigh = m - 1;
        t.thresholdHrLow = m + 1;
    }
}

void findZoneSpeeds(ModelState& state)
{
    Training& t = state.training;
    state.activity = "searching the fast end of the aerobic zone";
    t.aerobicSpeedHigh = walkUp(state, 1.05 * t.aerobicTrainSpeed, t.aerobicHrHigh);
    state.activity = "searching the slow end of the aerobic zone";
    t.aerobicSpeedLow = walkDown(state, 0.95 * t.aerobicTrainSpeed, t.aerobicHrLow);
    state.activity = "searching the fast end of the threshold zone";
    t.thresholdSpeedHigh = walkUp(state, 1.01 * t.thresholdSpeed, t.thresholdHrHigh);
    state.activity = "searching the slow end of the threshold zone";
    t.thresholdSpeedLow = walkDown(state, 0.99 * t.thresholdSpeed, t.thresholdHrLow);
}
