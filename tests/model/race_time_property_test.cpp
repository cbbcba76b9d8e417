#include <cmath>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "model/race_time.h"
#include "model/record_curve.h"
#include "support/close_to.h"
#include "support/draws.h"

namespace
{
    struct Drawn
    {
        ModelState state;
        double distance = 0;
    };

    /// A runner of either sex with a curve of an ordinary range, and a distance from 20 m to 200 km.
    Drawn drawnRunner()
    {
        Drawn drawn;
        drawn.distance = *drawnInLogSteps(20, 200000);
        drawn.state.runner.sex = *rc::gen::element('m', 'f');
        Curve& curve = drawn.state.curve;
        curve.fatigueCoef = fatigueCoefOf(*rc::gen::inRange(0, 151), drawn.state.runner.sex == 'f');
        curve.refDistance = *drawnInLogSteps(100, 42195);
        curve.aerobicPower = *drawnInLogSteps(250, 1800);
        curve.anaerobicEnergy = *drawnInLogSteps(20, 200) * curve.refDistance;
        curve.anaerobicExp = *rc::gen::element(0.65, 0.6, 0.5);
        return drawn;
    }

    RC_GTEST_PROP(StrippedTime, UndoesFinishTime, ())
    {
        const auto [state, distance] = drawnRunner();
        RC_PRE(std::abs(distance - 9410.5) >= 0.1);
        const double speed = *drawnInLogSteps(0.5, 12);
        const double time = finishTime(state, distance, speed, state.curve.fatigueCoef, state.curve.startDelay);
        RC_ASSERT(closeTo(strippedTime(state, time, distance), distance / speed));
    }

    RC_GTEST_PROP(FinishTime, UndoesStrippedTime, ())
    {
        const auto [state, distance] = drawnRunner();
        RC_PRE(std::abs(distance - 9410.5) >= 0.1);
        const double time = distance / *drawnInLogSteps(0.5, 9) + 4;
        const double stripped = strippedTime(state, time, distance);
        RC_ASSERT(closeTo(
            finishTime(state, distance, distance / stripped, state.curve.fatigueCoef, state.curve.startDelay), time));
    }

    RC_GTEST_PROP(RaceTimeAt, GrowsWithTheDistanceFromOneToNineKilometres, ())
    {
        const auto [state, ignored] = drawnRunner();
        double former = 0;
        for (double distance = 1000; distance <= 9000; distance *= 1.01)
        {
            const double time = raceTimeAt(state, distance);
            RC_ASSERT(time > former);
            former = time;
        }
    }

    RC_GTEST_PROP(TimeStep, AgreesWithRaceTimeAtToTheLastBit, ())
    {
        auto [state, distance] = drawnRunner();
        state.results.curDistance = distance;
        RC_ASSERT(timeStep(state).time == raceTimeAt(state, distance));
    }

    RC_GTEST_PROP(RecordTime, OfALevelHasThatLevel, ())
    {
        auto [state, ignored] = drawnRunner();
        const double distance = *drawnInLogSteps(100, 42195);
        const double target = *drawnInLogSteps(0.2, 0.99999);
        const double time = recordTime(state, state.runner.sex, RecordMode::timeOfLevel, distance, target);
        const double level = levelOf(state, distance, time);
        RC_ASSERT(std::abs(level - target) < 0.00002);
    }

    RC_GTEST_PROP(PerformanceLevel, GrowsWithTheRatio, ())
    {
        const double distance = *drawnInLogSteps(20, 200000);
        const double ratio = *drawnInLogSteps(0.2, 0.95);
        for (const char sex : {'m', 'f'})
        {
            RC_ASSERT(performanceLevel(ratio, distance, sex) < performanceLevel(ratio * 1.01, distance, sex));
            RC_ASSERT(performanceLevel(ratio, distance, sex) < 1);
        }
    }

    RC_GTEST_PROP(TopPercent, FallsWithTheLevelAndStaysBelowAHundred, ())
    {
        const double level = *drawnInLogSteps(0.01, 0.98);
        for (const char sex : {'m', 'f'})
        {
            RC_ASSERT(topPercent(level, sex) > topPercent(level * 1.01, sex));
            RC_ASSERT(topPercent(level, sex) < 100);
            RC_ASSERT(topPercent(level, sex) == indexFromLevel(level, sex));
        }
    }

    RC_GTEST_PROP(AgeFactor, IsAtLeastAboutOneForAnyRunner, ())
    {
        ModelState state;
        state.results.levelIndex = *rc::gen::inRange(0, 100);
        const double age = *rc::gen::inRange(500, 9500) / 100.0;
        const double distance = *drawnInLogSteps(100, 42195);
        for (const char sex : {'m', 'f'})
            RC_ASSERT(ageFactor(state, age, distance, 1, sex) > 0.99);
    }
}
