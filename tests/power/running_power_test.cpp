// Expected numbers: by hand where a line says how, else by a program of its own in another language.

#include "power/running_power.h"

#include <cmath>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "support/case_name.h"
#include "support/close_to.h"
#include "support/faults.h"
#include "support/table_file.h"

namespace
{
    class Efficiency : public testing::TestWithParam<TableRow>
    {};

    TEST_P(Efficiency, FollowsTheGrade)
    {
        EXPECT_TRUE(closeTo(runEfficiency(GetParam().number("grade")), GetParam().number("efficiency")));
    }

    INSTANTIATE_TEST_SUITE_P(InFile, Efficiency, testing::ValuesIn(readTable("power/data/run_efficiency.csv")), byName);

    class Powers : public testing::TestWithParam<TableRow>
    {};

    TEST_P(Powers, AreThoseOfTheSecondWay)
    {
        const TableRow& row = GetParam();
        ModelState state;
        state.runner.bodyDrag = row.number("bodyDrag");
        const double v = row.number("speed");
        const double w = row.number("weight");
        const double g = row.number("grade");
        const double a = row.number("airFactor");
        EXPECT_TRUE(closeTo(grossPower(state, v, w, g, a), row.number("gross")));
        EXPECT_TRUE(closeTo(powerOutput(state, v, w, g, a), row.number("output")));
        EXPECT_TRUE(closeTo(netPower(state, v, w, g, a, row.number("wind")), row.number("net")));
        EXPECT_EQ(state.incline.zeroPowerFlag, row.number("zeroPowerFlag"));
    }

    INSTANTIATE_TEST_SUITE_P(InFile, Powers, testing::ValuesIn(readTable("power/data/powers.csv")), byName);

    TEST(Efficiency, IsExactOnTheLevelAndBendsFrom0106)
    {
        EXPECT_EQ(runEfficiency(0), 0.21);
        EXPECT_EQ(runEfficiency(0.106), 0.21 + 0.46 * std::pow(0.106, 0.88));
        const double after = std::nextafter(0.106, 1);
        EXPECT_LT(runEfficiency(after), 0.21 + 0.46 * std::pow(after, 0.88));
        EXPECT_NEAR(runEfficiency(1), 0.204, 0.0005);
    }

    TEST(Efficiency, IsMostAtTheBendAndBackAtTheLevelsNearSeventyPercent)
    {
        const double most = runEfficiency(0.106);
        EXPECT_NEAR(most, 0.2738, 5e-5);
        for (double g = -0.5; g < 1.5; g += 0.05)
            EXPECT_LT(runEfficiency(g), most) << g;
        EXPECT_GT(runEfficiency(0.69), 0.21);
        EXPECT_LT(runEfficiency(0.7), 0.21);
    }

    TEST(Powers, AtFiveMetresASecond)
    {
        ModelState state;
        EXPECT_NEAR(netPower(state, 5, 68.2, 0, 0, 0), 1487, 0.5);   // running: 35 * 5 ^ 1.36 / 0.21
        EXPECT_NEAR(netPower(state, 5, 68.2, 0, 1, 0), 1573, 0.5);
        EXPECT_NEAR(netPower(state, 5, 68.2, 0, 1, 0) - netPower(state, 5, 68.2, 0, 0, 0), 86, 0.5);
        EXPECT_NEAR(grossPower(state, 5, 68.2, 0, 1), 1653, 0.5);
        EXPECT_NEAR(powerOutput(state, 5, 68.2, 0, 1), 335.5, 0.5);
    }

    TEST(Powers, GrossIsNetAndTheBaseRate)
    {
        ModelState state;
        for (const double w : {50.0, 68.2, 72.7, 110.0})
            for (const double g : {-0.2, 0.0, 0.07})
                EXPECT_NEAR(grossPower(state, 4, w, g, 1) - netPower(state, 4, w, g, 1, 0), 80 * (w / 68.2), 1e-9);
    }

    TEST(NetPower, LosesAirInATailWindOfTheSpeedAndIsPushedByAStrongerOne)
    {
        ModelState state;
        const double inStillIndoors = netPower(state, 4, 72.7, 0, 0, 0);
        EXPECT_EQ(netPower(state, 4, 72.7, 0, 1, -4), inStillIndoors);
        EXPECT_LT(netPower(state, 4, 72.7, 0, 1, -5), inStillIndoors);
        EXPECT_GT(netPower(state, 4, 72.7, 0, 1, -3), inStillIndoors);
    }

    TEST(NetPower, FlagsAResultOfZeroUntilTheNextOne)
    {
        ModelState state;
        EXPECT_EQ(netPower(state, 0, 72.7, 0.1, 1, 3), 0);
        EXPECT_EQ(state.incline.zeroPowerFlag, 1);
        EXPECT_GT(netPower(state, 1, 72.7, 0.1, 1, 3), 0);
        EXPECT_EQ(state.incline.zeroPowerFlag, 0);
        EXPECT_EQ(netPower(state, -2, 72.7, 0, 1, 0), 0);
        EXPECT_EQ(state.incline.zeroPowerFlag, 1);
        EXPECT_EQ(netPower(state, 3, 0, 0, 1, 0), 0);   // a body without weight
        EXPECT_EQ(state.incline.zeroPowerFlag, 1);
    }

    TEST(Powers, GoBelowZeroOnASteepDownhill)
    {
        ModelState state;
        EXPECT_LT(netPower(state, 1, 72.7, -0.32, 1, 0), 0);
        EXPECT_LT(powerOutput(state, 3, 72.7, -0.6, 1), 0);
        EXPECT_LT(grossPower(state, 5, 72.7, -0.25, 1), grossPower(state, 5, 72.7, 0, 1));
    }

    TEST(GrossPower, FallsBelowItsBaseRateOnASteepDownhill)
    {
        ModelState state;
        // 80 + 35 / (0.21 * exp(-1)) - 668.36 * 0.25 / 0.275 = 80 + 453.05 - 607.6, and 0.69 of air
        EXPECT_TRUE(closeTo(grossPower(state, 1, 68.2, -0.25, 0), -74.55302859015899));
        EXPECT_TRUE(closeTo(grossPower(state, 1, 68.2, -0.25, 1), -73.8654154214347));
        const double gentler = grossPower(state, 1, 68.2, -0.2, 1);   // 80 + 370.93 - 486.08 + 0.69
        EXPECT_GT(gentler, -35);
        EXPECT_LT(gentler, -34);
        EXPECT_EQ(grossPower(state, 0, 68.2, -0.25, 1), 80) << "the base rate itself at rest";
    }

    TEST(Powers, OutputIsAboutAFifthOfNet)
    {
        ModelState state;
        for (double v = 2; v < 9; v += 0.5)
            EXPECT_NEAR(powerOutput(state, v, 72.7, 0, 1) / netPower(state, v, 72.7, 0, 1, 0), 0.214, 0.005) << v;
    }

    TEST(Powers, HaveNoValueForAbsurdArguments)
    {
        ModelState state;
        EXPECT_EQ(faultOf([&] { (void)grossPower(state, -1, 72.7, 0, 1); }), "a power without a real value");
        EXPECT_EQ(faultOf([&] { (void)netPower(state, 1e200, 72.7, 0, 1, 0); }), "an overflow");
        EXPECT_EQ(faultOf([&] { (void)netPower(state, 4, 72.7, -1000, 1, 0); }), "division by zero");
        EXPECT_EQ(faultOf([&] { (void)powerOutput(state, 4, 1e308, 9, 1); }), "an overflow");
        state.runner.bodyDrag = 0;
        EXPECT_EQ(faultOf([&] { (void)grossPower(state, 4, 72.7, 0, 1); }), "division by zero");
        EXPECT_EQ(faultOf([&] { (void)netPower(state, 4, 72.7, 0, 0, 0); }), "division by zero");
        EXPECT_EQ(faultOf([&] { (void)powerOutput(state, 4, 72.7, 0, 1); }), "division by zero");
        EXPECT_EQ(netPower(state, 0, 72.7, 0, 1, 0), 0);
    }
}
