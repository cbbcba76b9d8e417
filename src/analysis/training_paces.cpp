#include "analysis/training_paces.h"

#include <string>

#include "analysis/curve_time.h"
#include "analysis/distance_search.h"
#include "model/arithmetic.h"
#include "model/units.h"

namespace
{
    constexpr double twoMiles = 2 * metresPerMile;   // m

    double speedOver(ModelState& state, double distance)
    {
        return quotient(distance, timeOver(state, distance));
    }

    /// `distanceFor` as a step of the chain: once it has ended, what is under way is what was before.
    FoundDistance found(ModelState& state, double target, double seed)
    {
        const std::string activity = state.activity;
        const FoundDistance there = distanceFor(state, target, seed);
        state.activity = activity;
        return there;
    }

    double speedFor(ModelState& state, double target, double seed)
    {
        return found(state, target, seed).speed;
    }
}

// Told in one piece: a later blend reads the value that an earlier one has left, and the figures are fitted weights.
void findTrainingPaces(ModelState& state)
{
    Training& t = state.training;
    state.activity = "working out the training paces";
    const double speedMile = speedOver(state, metresPerMile);

    // VO2max: from the time over two miles (minutes), from 15 minutes (m/min), from 10000 m (s)
    const double vo2TwoMile = 128.81 - 5.95 * timeOver(state, twoMiles) / 60;
    const double d15 = found(state, 900, 10000).distance;
    const double vo2Fifteen = (d15 / 15 - 133) * 0.172 + 33.3;
    t.time10k = timeOver(state, 10000);
    const double vo2TenK = 475550 * power(t.time10k, -1.172);
    t.vo2max = checked(0.3 * vo2TwoMile + 0.25 * vo2Fifteen + 0.45 * vo2TenK);

    const double speed11 = speedFor(state, 660, 6000);
    const double speedFromVo2 = 2.9 + 0.0686 * (vo2TenK - 29);
    const double speed12500 = speedOver(state, 12500);
    const double speed60 = speedFor(state, 3600, 25000);
    const double speed25 = speedFor(state, 1500, 11000) * 0.954;
    t.repSlowTime = timeOver(state, 1500) * metresPerTrackLap / 1500;
    t.repSlowSpeed = quotient(metresPerTrackLap, t.repSlowTime);
    t.repFastTime = timeOver(state, 900) * metresPerTrackLap / 900;
    t.repFastSpeed = quotient(metresPerTrackLap, t.repFastTime);

    t.thresholdSpeed = (speed12500 + speed60 + speed11 * 0.865) / 3;
    t.thresholdSpeed = 0.4 * speed25 + 0.6 * t.thresholdSpeed;
    t.vo2maxSpeed = (speed11 + speedFromVo2 + t.thresholdSpeed / 0.875) / 3;

    // the speed at which the power of running equals aerobicPower
    const double baseSpeed = squareRoot((state.curve.aerobicPower - 140) / 60);
    const double mixWeight = 3 * naturalLog(quotient(t.thresholdSpeed, baseSpeed)) / naturalLog(2);
    const double aerobicMix = quotient(baseSpeed + 0.83 * t.thresholdSpeed * mixWeight, 1 + mixWeight);
    t.aerobicTrainSpeed = 0.5 * aerobicMix + 0.17 * t.thresholdSpeed + 0.13 * t.vo2maxSpeed + 0.07 * speedMile;
    t.aerobicTrainSpeed = 0.5 * t.aerobicTrainSpeed + 0.3995 * speed60;   // weights of 0.8995 on purpose
    t.aerobicTrainSpeed = t.aerobicTrainSpeed * power(t.time10k / 2400, 0.06);
    t.aerobicTrainSpeed = checked(t.aerobicTrainSpeed * (1 + (state.results.time5000 / 60 - 11.75) * 0.0042));

    t.thresholdSpeed = 0.65 * t.thresholdSpeed + 0.35 * speed60;
    t.thresholdSpeed = 1.005 * t.thresholdSpeed * power(t.time10k / 2160, 0.03);
    t.thresholdSpeed = checked(t.thresholdSpeed * (1.02 - (state.results.time5000 / 60 - 16) * 0.002));
    if (quotient(baseSpeed, t.thresholdSpeed) > 0.79)
    {
        const double g = squareRoot(baseSpeed * t.thresholdSpeed);
        t.thresholdSpeed = g / squareRoot(0.79);   // the threshold alone moves
    }

    t.vo2maxSpeed = 0.8 * t.vo2maxSpeed + 0.2232 * speed60;
    t.vo2maxSpeed = 1.03 * t.vo2maxSpeed;
    t.vo2maxSpeed = power(267.0 / 256, 0.4) * t.vo2maxSpeed;
    const double speed1700 = speedOver(state, 1700);
    const double speed320 = speedFor(state, 320, 2500);
    const double shortMix = 0.8 * speed320 + 0.2 * speed1700;
    t.vo2maxSpeed = 0.6 * t.vo2maxSpeed + 0.4 * shortMix;
    const double speed9 = speedFor(state, 540, 4800);
    t.vo2maxSpeed = checked(0.4 * t.vo2maxSpeed + 0.6 * speed9);

    if (t.thresholdSpeed > 0.86 * t.vo2maxSpeed)
        t.thresholdSpeed = (t.thresholdSpeed + 0.86 * t.vo2maxSpeed) / 2;
    if (t.thresholdSpeed > 0.88 * t.vo2maxSpeed)   // of what the first has left
        t.thresholdSpeed = (t.thresholdSpeed + 0.88 * t.vo2maxSpeed) / 2;
    t.vo2maxSpeedTop = 0.98 * t.vo2maxSpeed;
    t.intervalSpeed = 0.96 * t.vo2maxSpeed;
    if (t.repSlowSpeed < 1.005 * t.vo2maxSpeed)
    {
        t.repSlowSpeed = 1.005 * t.vo2maxSpeed;
        t.repSlowTime = quotient(metresPerTrackLap, t.repSlowSpeed);
    }
}
