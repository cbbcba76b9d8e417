#include "analysis/heart_rates.h"

#include <cmath>
#include <ostream>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "analysed_runner.h"
#include "analysis/training_analysis.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/draws.h"
#include "support/faults.h"
#include "support/table_file.h"

namespace
{
    class HrRow : public testing::TestWithParam<TableRow>
    {};

    TEST_P(HrRow, IsAsASecondComputationHasIt)
    {
        const TableRow& row = GetParam();
        const auto at = [&](const char* column) { return row.number(column); };
        EXPECT_TRUE(closeTo(hrAtSpeed(at("speed"), at("aerobicTrainSpeed"), at("thresholdSpeed"), at("vo2maxSpeed"),
                                      at("restHr"), at("aerobicHr"), at("thresholdHr"), at("maxHr")),
                            at("hr")));
    }

    INSTANTIATE_TEST_SUITE_P(InFile, HrRow, testing::ValuesIn(readTable("analysis/data/hr_at_speed.csv")), byName);

    struct HrCase
    {
        std::string name;
        double speed, expected;
    };

    std::ostream& operator<<(std::ostream& out, const HrCase& row)
    {
        return out << row.name;
    }

    class HrByHand : public testing::TestWithParam<HrCase>
    {};

    TEST_P(HrByHand, OfEvenSlopes)
    {
        EXPECT_TRUE(closeTo(hrAtSpeed(GetParam().speed, 3, 4, 5, 50, 130, 160, 190), GetParam().expected));
    }

    INSTANTIATE_TEST_SUITE_P(HrAtSpeed, HrByHand,
                             testing::Values(HrCase{"standstill", 0, 60}, HrCase{"half_of_aerobic", 1.5, 90},
                                             HrCase{"aerobic", 3, 130}, HrCase{"between", 3.5, 145},
                                             HrCase{"threshold", 4, 160}, HrCase{"bend", 4.5, 176.875},
                                             HrCase{"vo2max", 5, 190}, HrCase{"faster", 9, 190},
                                             HrCase{"backwards", -1, 0}),
                             byName);

    TEST(HrAtSpeed, IsHeldToTheMaximum)
    {
        EXPECT_EQ(hrAtSpeed(4.9, 3, 4, 5, 50, 130, 160, 165), 165);
        EXPECT_EQ(hrAtSpeed(-1, 3, 4, 5, 50, 130, 160, -5), -5);
        EXPECT_EQ(hrAtSpeed(0, 3, 4, 5, 50, 130, 160, 55), 55);
    }

    TEST(HrAtSpeed, WorksOutTheBendForEverySpeed)
    {
        EXPECT_EQ(faultOf([] { (void)hrAtSpeed(0, 3, 4, 5, 50, 130, 130, 190); }), "division by zero");
        EXPECT_EQ(faultOf([] { (void)hrAtSpeed(9, 3, 4, 4, 50, 130, 160, 190); }), "division by zero");
        EXPECT_EQ(faultOf([] { (void)hrAtSpeed(9, 4, 4, 5, 50, 130, 160, 190); }), "division by zero");
    }

    class ZoneRow : public testing::TestWithParam<TableRow>
    {};

    TEST_P(ZoneRow, HasTheRatesOfASecondComputation)
    {
        ModelState state;
        for (const char* given : {"maxHr", "restHr", "age", "weeklyMiles", "time5000", "time10k"})
            letState(state, given, GetParam().number(given));
        findHeartRateZones(state);
        for (const char* rate :
             {"aerobicHr", "aerobicHrLow", "aerobicHrHigh", "thresholdHr", "thresholdHrLow", "thresholdHrHigh"})
            EXPECT_TRUE(closeTo(numberOf(state, rate), GetParam().number(rate))) << rate;
        EXPECT_GE(state.training.thresholdHrLow - state.training.aerobicHrHigh, 2 - 1e-9);
        EXPECT_LE(state.training.thresholdHrHigh, 0.94 * state.runner.maxHr);
    }

    INSTANTIATE_TEST_SUITE_P(InFile, ZoneRow, testing::ValuesIn(readTable("analysis/data/zones.csv")), byName);

    struct OddRates
    {
        std::string name;
        double maxHr, restHr;
        const char* activity;
    };

    std::ostream& operator<<(std::ostream& out, const OddRates& row)
    {
        return out << row.name;
    }

    class OddHeartRates : public testing::TestWithParam<OddRates>
    {};

    TEST_P(OddHeartRates, StopTheSearchForAZonesEnd)
    {
        ModelState state = stateOfRunner("tenK");
        state.runner.maxHr = GetParam().maxHr;
        state.runner.restHr = GetParam().restHr;
        EXPECT_EQ(faultOf([&] { (void)trainingAnalysis(state); }),
                  "a search that cannot end, because no speed reaches the heart rate");
        EXPECT_EQ(state.activity, GetParam().activity);
        EXPECT_GT(state.training.aerobicHr, 0);
    }

    INSTANTIATE_TEST_SUITE_P(
        Walks, OddHeartRates,
        testing::Values(OddRates{"maximum_18", 18, 60, "searching the fast end of the aerobic zone"},
                        OddRates{"maximum_50_rest_40", 50, 40, "searching the fast end of the aerobic zone"},
                        OddRates{"maximum_60_rest_60", 60, 60, "searching the fast end of the aerobic zone"},
                        OddRates{"maximum_1", 1, 60, "searching the fast end of the aerobic zone"}),
        byName);

    TEST(ZoneSpeeds, OfNegativeRatesStopDownwards)
    {
        ModelState state = stateOfRunner("tenK");
        (void)trainingAnalysis(state);
        state.training.aerobicHrLow = -3;
        EXPECT_EQ(faultOf([&] { findZoneSpeeds(state); }),
                  "a search that cannot end, because no speed reaches the heart rate");
        EXPECT_EQ(state.activity, "searching the slow end of the aerobic zone");
    }

    TEST(ZoneSpeeds, EndAHairBelowZeroIfNeedBe)
    {
        ModelState state = stateOfRunner("tenK");
        (void)trainingAnalysis(state);
        state.training.aerobicHrLow = 1;   // lower than at standstill
        findZoneSpeeds(state);
        EXPECT_LT(state.training.aerobicSpeedLow, 0);
        EXPECT_GT(state.training.aerobicSpeedLow, -0.001);
    }

    TEST(ZoneSpeeds, AreTheFirstTriedThatReachTheRate)
    {
        for (const nlohmann::json& runner : analysedRunners())
        {
            ModelState state = stateOf(runner);
            (void)trainingAnalysis(state);
            const Training& t = state.training;
            EXPECT_GT(hrAtSpeed(state, t.aerobicSpeedHigh), t.aerobicHrHigh);
            EXPECT_LT(hrAtSpeed(state, t.aerobicSpeedLow), t.aerobicHrLow);
            EXPECT_GT(hrAtSpeed(state, t.thresholdSpeedHigh), t.thresholdHrHigh);
            EXPECT_LT(hrAtSpeed(state, t.thresholdSpeedLow), t.thresholdHrLow);
            if (t.aerobicSpeedHigh > 1.05 * t.aerobicTrainSpeed + 0.0015)
            {
                EXPECT_LE(hrAtSpeed(state, t.aerobicSpeedHigh - 0.001), t.aerobicHrHigh);
            }
        }
    }

    RC_GTEST_PROP(Zones, StayApartAndBelowTheMaximum, ())
    {
        ModelState state;
        state.runner.maxHr = *drawnInLogSteps(1, 1000);
        state.runner.restHr = *drawnInLogSteps(1, 300);
        state.runner.age = *rc::gen::inRange(0, 121);
        state.runner.weeklyMiles = *rc::gen::inRange(0, 151);
        state.results.time5000 = *drawnInLogSteps(700, 6000);
        state.training.time10k = *drawnInLogSteps(1500, 14000);
        if (!faultOf([&] { findHeartRateZones(state); }).empty())
            return;
        const Training& t = state.training;
        RC_ASSERT(t.thresholdHrLow - t.aerobicHrHigh >= 2 - 1e-9);
        RC_ASSERT(t.thresholdHrHigh <= 0.94 * state.runner.maxHr);
        RC_ASSERT(t.aerobicHr / t.thresholdHr <= 0.86 + 1e-9);
    }

    RC_GTEST_PROP(HrAtSpeed, NeverPassesTheMaximum, ())
    {
        const double u1 = *drawnInLogSteps(1, 6);
        const double u2 = u1 * *drawnInLogSteps(1.01, 1.6);
        const double u3 = u2 * *drawnInLogSteps(1.01, 1.6);
        const double s = *drawnInLogSteps(0.001, 12);
        const double hr = hrAtSpeed(s, u1, u2, u3, 50, 130, 160, 190);
        RC_ASSERT(std::isfinite(hr));
        RC_ASSERT(hr <= 190);
        RC_ASSERT(s < u3 || hr == 190);
    }
}
