#include "power/incline.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "model/arithmetic.h"
#include "power/running_power.h"

namespace
{
    constexpr double effortKg = standardWeightKg;   // efforts are compared for one body
    constexpr double marchStep = 0.05;              // m/s
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

    /// A march from a trial speed to the level speed of an effort.
    struct March
    {
        double trial = 0;      // m/s, where it starts
        double target = 0;     // W
        double levelAir = 1;   // air factor of the level side
        double step = 0;       // m/s, negative downwards
    };

    bool hasPassed(const March& march, double effort)
    {
        return march.step > 0 ? effort > march.target : effort < march.target;
    }

    /// A point of a march, and its effort.
    struct Point
    {
        double trial = 0, effort = 0;
    };

    Point pointAt(ModelState& state, const March& march, double trial)
    {
        return {trial, levelEffort(state, trial, march.levelAir)};
    }

    /// The first of the march's points from `trial` on that is not before `end`, to the last bit as the march has it.
    double pointNear(const March& march, double trial, double end)
    {
        while (march.step > 0 ? trial < end : trial > end)
            trial = trial + march.step;
        return trial;
    }

    /// A point of a march that has not passed its target, and no point before it has: the start, or one further on
    /// where that is known without the efforts in between. Effort grows with speed, by far more a step than it is
    /// rounded, so that where the target lies ahead of a point it lies ahead of all before it. And effort grows at
    /// most as the third power of speed, so that the result lies beyond trial * (target / effort) ^ (1 / 3).
    ///   guess  a guess of the result, if there is one
    Point startOf(ModelState& state, const March& march, std::optional<double> guess)
    {
        constexpr double fastest = 1e6;   // m/s, up to which a step of effort is far above its rounding
        constexpr double worthIt = 4;     // steps
        if (std::abs(march.trial) > fastest || std::abs(state.runner.bodyDrag) < 1)   // or an effort could overflow
            return pointAt(state, march, march.trial);
        if (guess && std::abs(*guess) < fastest)
        {
            const Point ahead = pointAt(state, march, pointNear(march, march.trial, *guess - 2 * march.step));
            if (!hasPassed(march, ahead.effort))
                return ahead;
        }
        Point at = pointAt(state, march, march.trial);
        while (at.effort > 0 && march.target > 0)
        {
            const double end = std::min(at.trial * std::cbrt(march.target / at.effort), fastest) - march.step;
            if ((end - at.trial) / march.step < worthIt)
                break;
            const Point ahead = pointAt(state, march, pointNear(march, at.trial, end));
            if (hasPassed(march, ahead.effort))
                break;
            at = ahead;
        }
        return at;
    }

    double marchUp(ModelState& state, const March& march, Point start)
    {
        LongLoop rounds(state.goOn);
        auto [trial, p1] = start;
        double p0 = 0;
        for (;;)
        {
            rounds.nextRound();
            const double before = trial;
            p0 = p1;
            trial = trial + marchStep;
            p1 = levelEffort(state, trial, march.levelAir);
            if (p1 > march.target)
                break;
            faultIfStuck(before, trial);
        }
        return checked((trial - marchStep) + quotient(marchStep * (march.target - p0), p1 - p0));
    }

    double marchDown(ModelState& state, const March& march, Point start)
    {
        LongLoop rounds(state.goOn);
        auto [trial, p1] = start;
        double p0 = 0;
        for (;;)
        {
            rounds.nextRound();
            const double before = trial;
            p0 = p1;
            trial = trial - marchStep;
            p1 = levelEffort(state, trial, march.levelAir);
            if (p1 < march.target || march.target <= 0)
                break;
            faultIfStuck(before, trial);
        }
        if (p1 == p0)
            return trial;   // as where the march has run out of speed
        return checked((trial + marchStep) - quotient(marchStep * (march.target - p0), p1 - p0));
    }

    /// `levelSpeedForSlope`, with a guess of its result that saves time and changes nothing.
    double levelSpeedNear(ModelState& state, double grade, double speed, std::optional<double> guess)
    {
        const int mode = state.incline.indoorMode;
        const bool upwards = state.incline.slopeDirection >= 0;
        March march;
        march.target = slopeEffort(state, speed, grade);
        march.trial = mode > 0 ? speed - indoorHeadStart : speed;
        march.levelAir = mode == 2 ? 0 : 1;
        march.step = upwards ? marchStep : -marchStep;
        if (march.target <= 0)
            guess.reset();   // the first pair decides
        const Point start = startOf(state, march, guess);
        return upwards ? marchUp(state, march, start) : marchDown(state, march, start);
    }
}

double levelSpeedForSlope(ModelState& state, double grade, double speed)
{
    return levelSpeedNear(state, grade, speed, std::nullopt);
}

double slopeSpeedForLevel(ModelState& state, double grade, double levelSpeed)
{
    const double L = levelSpeed;
    int& direction = state.incline.slopeDirection;
    direction = 0;
    const double slopeCost = slopeEffort(state, L, grade);
    const double levelCost = levelEffort(state, L, 1);   // with air even between two treadmills, on purpose
    direction = levelCost > slopeCost ? -1 : 1;
    if (L <= -marchStep)
        stopWith("a search without an end (the level speed is negative)");

    LongLoop rounds(state.goOn);
    double s = L + 0.003;
    double e = levelSpeedNear(state, grade, s, std::nullopt);   // also the first of each round's two evaluations
    for (;;)
    {
        rounds.nextRound();
        const double before = s;
        s = s - (e - L) / 4 - direction * creep;
        e = levelSpeedNear(state, grade, s, before == 0 ? e : e * (s / before));
        if ((direction > 0 && e < L) || (direction < 0 && e > L))
            return s;
        faultIfStuck(before, s);
    }
}

double gradeAlongSurface(double horizontalGrade)
{
    return horizontalGrade / power(1 + square(horizontalGrade), 0.5);
}
