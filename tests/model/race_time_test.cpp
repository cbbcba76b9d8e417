#include "model/race_time.h"

#include <cmath>

#include <gtest/gtest.h>

#include "outcome.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/table_file.h"

namespace
{
    class RaceTimeAt : public testing::TestWithParam<TableRow>
    {};

    TEST_P(RaceTimeAt, GivesItsTime)
    {
        const TableRow& row = GetParam();
        ModelState state;
        state.runner.sex = row.letter("sex");
        state.curve.anaerobicExp = row.number("anaerobicExp");
        expectOutcome(row, "seconds", [&] {
            return raceTimeAt(state, row.number("anaerobicEnergy"), row.number("aerobicPower"),
                              row.number("refDistance"), row.number("distance"), row.number("fatigueCoef"),
                              row.number("startDelay"));
        });
    }

    INSTANTIATE_TEST_SUITE_P(InFile, RaceTimeAt, testing::ValuesIn(readTable("model/data/race_time_at.csv")), byName);

    class FinishTime : public testing::TestWithParam<TableRow>
    {};

    TEST_P(FinishTime, GivesItsTime)
    {
        const TableRow& row = GetParam();
        ModelState state;
        state.runner.sex = row.letter("sex");
        expectOutcome(row, "seconds", [&] {
            return finishTime(state, row.number("distance"), row.number("speed"), row.number("fatigueCoef"),
                              row.number("startDelay"));
        });
    }

    INSTANTIATE_TEST_SUITE_P(InFile, FinishTime, testing::ValuesIn(readTable("model/data/finish_time.csv")), byName);

    class EnduranceFactor : public testing::TestWithParam<TableRow>
    {};

    TEST_P(EnduranceFactor, GivesItsFactor)
    {
        const TableRow& row = GetParam();
        ModelState state;
        state.runner.sex = row.letter("sex");
        expectOutcome(row, "factor", [&] {
            return enduranceFactor(state, row.number("distance"), row.number("coefficient"),
                                   static_cast<int>(row.number("mode")));
        });
    }

    INSTANTIATE_TEST_SUITE_P(InFile, EnduranceFactor, testing::ValuesIn(readTable("model/data/endurance_factor.csv")),
                             byName);

    TEST(EnduranceFactor, TakesTheRunnersBranchForAnyModeButZero)
    {
        const ModelState state;
        EXPECT_EQ(enduranceFactor(state, 15000, 0.06, -3), enduranceFactor(state, 15000, 0.06, 1));
        EXPECT_NE(enduranceFactor(state, 15000, 0.06, 0), enduranceFactor(state, 15000, 0.06, 1));
    }

    /// A curve hung on 1500 m, as a fit leaves it.
    ModelState runnerOnCurve()
    {
        ModelState state;
        state.curve.aerobicPower = 870;
        state.curve.anaerobicEnergy = 338000;
        state.curve.refDistance = 1500;
        state.curve.fatigueCoef = fatigueCoefOf(30, false);
        return state;
    }

    TEST(RawSpeed, HoldsTheEnergyBalance)
    {
        const ModelState state = runnerOnCurve();
        for (const double d : {50.0, 400.0, 1500.0, 10000.0, 100000.0})
        {
            const double v = rawSpeed(state, 338000, 870, 1500, d);
            EXPECT_GT(v, 0);
            EXPECT_TRUE(closeTo(modelPower(v) * d / v, 870 * d / v + 338000 * std::pow(d / 1500, 0.65))) << d;
        }
    }

    TEST(RaceTimeAt, AtTheReferenceDistanceGivesTheStrippedTimeBack)
    {
        ModelState state = runnerOnCurve();
        const double strippedSeconds = 257;
        state.curve.anaerobicEnergy = (modelPower(1500 / strippedSeconds) - 870) * strippedSeconds;
        state.results.curDistance = 1500;
        EXPECT_TRUE(closeTo(timeStep(state).rawTime, 257));
        EXPECT_TRUE(closeTo(timeStep(state).time, 260));
    }

    TEST(RaceTimeAt, AtTwoKilometresIsRawTimeAndStartDelay)
    {
        ModelState state = runnerOnCurve();
        state.results.curDistance = 2000;
        EXPECT_EQ(timeStep(state).time, timeStep(state).rawTime + 3);
    }

    TEST(TimeStep, HasTheTimeAndThePacesThatFollow)
    {
        ModelState state = runnerOnCurve();
        for (const double d : {60.0, 250.0, 800.0, 5000.0, 9410.5, 21097.5, 50000.0})
        {
            state.results.curDistance = d;
            const TimeStep step = timeStep(state);
            EXPECT_EQ(step.time, raceTimeAt(state, d));
            EXPECT_EQ(step.time, raceTimeAt(state, 338000, 870, 1500, d, state.curve.fatigueCoef, 3));
            EXPECT_TRUE(closeTo(step.speed, d / step.time));
            EXPECT_TRUE(closeTo(step.perMile, step.time * 1609.344 / d));
            EXPECT_TRUE(closeTo(step.perKilometre, step.time * 1000 / d));
            EXPECT_TRUE(closeTo(step.per400, step.time * 400 / d));
        }
    }

    /// Time at 4 m/s without delay, over distance / 4: what the corrections multiply.
    double correction(double distance, double startDelay = 0)
    {
        const ModelState state;
        return finishTime(state, distance, 4, 0.06, startDelay) / (distance / 4);
    }

    TEST(FinishTime, HasNoFadeAtNineKilometresAndOneBeyond)
    {
        EXPECT_EQ(correction(9000), 1);
        // The wave around 20750 m begins with the fade, at its trough, and so it takes some seconds off at once.
        EXPECT_TRUE(closeTo(correction(9000.01), 0.9989, 1e-3));
        EXPECT_LT(correction(9000.01), 1);
    }

    TEST(FinishTime, IsLongerBySqrTwoWithinATenthOf9410AndAHalf)
    {
        for (const double d : {9410.41, 9410.5, 9410.59})
            EXPECT_TRUE(closeTo(correction(d), std::sqrt(2) * correction(9410.3), 1e-5)) << d;
        for (const double d : {9410.3, 9410.39, 9410.4, 9410.6, 9410.61, 9410.7})
            EXPECT_TRUE(closeTo(correction(d), correction(9410.3), 1e-5)) << d;
    }

    TEST(FinishTime, PenalisesSprintsBelow300Metres)
    {
        const auto dip = [](double d) {
            return 1 - 0.02 * std::pow(std::cos(std::log(d / 360) * 3.1415926 / 1.15 / 2), 2);
        };
        EXPECT_TRUE(closeTo(correction(300), 1 / dip(300)));
        EXPECT_TRUE(closeTo(correction(299.99), correction(300), 1e-6));
        EXPECT_GT(correction(299.99) * dip(299.99), 1);
        EXPECT_TRUE(closeTo(correction(200) * dip(200), 1 / (1 - std::pow(100 / 1600.0, 1.35))));
        EXPECT_TRUE(closeTo(correction(110), 1 / (1 - std::pow(190 / 1600.0, 1.35))));
    }

    TEST(FinishTime, CreditsBelow100Metres)
    {
        EXPECT_TRUE(closeTo(correction(100), 1 / (1 - std::pow(200 / 1600.0, 1.35))));
        const double at50 = 1 / (1 - std::pow(250 / 1600.0, 1.35));
        EXPECT_TRUE(closeTo(correction(50) * 12.5, at50 * 12.5 - std::pow(0.5, 1.7)));
        EXPECT_TRUE(closeTo(std::pow(0.5, 1.7), 0.308, 1e-3));
    }

    TEST(FinishTime, DipsByTwoPercentAt360Metres)
    {
        EXPECT_TRUE(closeTo(correction(360), 1 / 0.98));
        EXPECT_EQ(correction(1137.1), 1);
        EXPECT_GT(correction(1136.9), 1);
        EXPECT_TRUE(closeTo(correction(1136.9), 1, 1e-6));
    }

    TEST(FinishTime, AddsTheStartDelayBeforeTheSprintAndTheDip)
    {
        EXPECT_TRUE(closeTo(correction(360, 3), (1 + 3 / 90.0) / 0.98));
        EXPECT_TRUE(closeTo(correction(2000, 3), 1 + 3 / 500.0));
    }

    TEST(FinishTime, FallsAwayBeyondTheMarathonWithoutAStep)
    {
        const ModelState state = runnerOnCurve();
        EXPECT_TRUE(closeTo(raceTimeAt(state, 42195.001), raceTimeAt(state, 42195), 1e-6));
        EXPECT_GT(raceTimeAt(state, 84390) / raceTimeAt(state, 42195), 2.2);
    }

    TEST(StrippedTime, TakesTheCorrectionsOffByHand)
    {
        ModelState state;
        state.curve.fatigueCoef = 0.06;
        EXPECT_EQ(strippedTime(state, 260, 1500), 257);
        EXPECT_TRUE(closeTo(strippedTime(state, 60, 360), 60 * 0.98 - 3));
        EXPECT_TRUE(closeTo(strippedTime(state, 16, 110), 16 * (1 - std::pow(190 / 1600.0, 1.35)) - 3));
        EXPECT_TRUE(
            closeTo(strippedTime(state, 9, 50), (9 + std::pow(0.5, 1.7)) * (1 - std::pow(250 / 1600.0, 1.35)) - 3));
        EXPECT_TRUE(closeTo(strippedTime(state, 3603, 15000), 3600 * enduranceFactor(state, 15000, 0.06, 1)));
    }

    TEST(StrippedTime, LeavesTheSpecialCaseAt9410AndAHalf)
    {
        ModelState state;
        state.curve.fatigueCoef = 0.06;
        EXPECT_TRUE(closeTo(strippedTime(state, 2403, 9410.5), 2400 * enduranceFactor(state, 9410.5, 0.06, 1)));
    }
}
