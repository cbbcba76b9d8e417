// Expected numbers: by hand where a line says how, else by a program of its own in another language.

#include "power/incline.h"

#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "model/text.h"
#include "model/units.h"
#include "power/running_power.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/faults.h"
#include "support/table_file.h"

namespace
{
    class Conversion : public testing::TestWithParam<TableRow>
    {};

    TEST_P(Conversion, IsThatOfTheSecondWay)
    {
        const TableRow& row = GetParam();
        ModelState state;
        state.runner.bodyDrag = row.number("bodyDrag");
        state.incline.indoorMode = static_cast<int>(row.number("indoorMode"));
        state.incline.windSpeed = row.number("windSpeed");
        state.incline.slopeDirection = static_cast<int>(row.number("startDirection"));
        const double g = row.number("grade");
        const double v = row.number("speed");
        EXPECT_TRUE(closeTo(levelSpeedForSlope(state, g, v), row.number("levelSpeed")));
        EXPECT_EQ(state.incline.slopeDirection, row.number("startDirection")) << "read, and not set";
        EXPECT_TRUE(closeTo(slopeSpeedForLevel(state, g, v), row.number("slopeSpeed")));
        EXPECT_EQ(state.incline.slopeDirection, row.number("slopeDirection"));
        EXPECT_EQ(state.incline.indoorMode, row.number("indoorMode"));
        EXPECT_EQ(state.incline.windSpeed, row.number("windSpeed"));
    }

    INSTANTIATE_TEST_SUITE_P(InFile, Conversion, testing::ValuesIn(readTable("power/data/conversions.csv")), byName);

    std::string pace(double metres, double speed)
    {
        return formatTime(metres / speed);
    }

    TEST(SlopeSpeed, OnSixPercent)
    {
        ModelState state;
        const double sevenAMile = metresPerMile / 420;
        const double fiveAKilometre = metresPerKilometre / 300;
        EXPECT_EQ(pace(metresPerMile, slopeSpeedForLevel(state, 0.06, sevenAMile)), "    9:00  ");
        EXPECT_EQ(pace(metresPerMile, slopeSpeedForLevel(state, -0.06, sevenAMile)), "    5:52  ");
        EXPECT_EQ(pace(metresPerKilometre, slopeSpeedForLevel(state, 0.06, fiveAKilometre)), "    6:34  ");
        EXPECT_EQ(pace(metresPerKilometre, slopeSpeedForLevel(state, -0.06, fiveAKilometre)), "    4:06  ");
    }

    struct OnTreadmill
    {
        const char* name;
        int indoorMode;
        const char *levelPace, *levelSpeed, *slopePace, *slopeSpeed;
    };

    class NineMilesAnHour : public testing::TestWithParam<OnTreadmill>
    {};

    TEST_P(NineMilesAnHour, OnThreePercent)
    {
        const OnTreadmill& row = GetParam();
        ModelState state;
        state.incline.indoorMode = row.indoorMode;
        const double g = gradeAlongSurface(0.03);
        const double v = 9 * metresPerMile / 3600;
        const auto milesAnHour = [](double speed) { return formatNumber(speed * 3600 / metresPerMile, 5, 2); };
        const double level = levelSpeedForSlope(state, g, v);
        const double slope = slopeSpeedForLevel(state, g, v);
        EXPECT_EQ(pace(metresPerMile, level), row.levelPace);
        EXPECT_EQ(milesAnHour(level), row.levelSpeed);
        EXPECT_EQ(pace(metresPerMile, slope), row.slopePace);
        EXPECT_EQ(milesAnHour(slope), row.slopeSpeed);
    }

    // 9.794 mph is 367.6 s a mile, which shows as 6:08
    INSTANTIATE_TEST_SUITE_P(
        Shown, NineMilesAnHour,
        testing::Values(OnTreadmill{"against_outdoors", 1, "    6:08  ", " 9.79", "    7:20  ", " 8.19"},
                        OnTreadmill{"against_the_treadmill", 2, "    5:56  ", "10.13", "    7:34  ", " 7.94"}),
        [](const auto& row) { return row.param.name; });

    TEST(LevelSpeed, OnTheLevelIsTheSpeedItself)
    {
        ModelState state;
        for (double v = 0.5; v < 12; v += 0.37)
            EXPECT_TRUE(closeTo(levelSpeedForSlope(state, 0, v), v, 1e-15)) << v;   // but for the last bit
    }

    TEST(SlopeSpeed, OnTheLevelIsOneStepBelow)
    {
        ModelState state;
        for (const double L : {1.0, 2.5, 4.0, 7.0})
        {
            // L + 0.003, then 3/4 of it less 0.001: L + 0.00125, then L - 0.0000625
            EXPECT_NEAR(slopeSpeedForLevel(state, 0, L), L - 0.0000625, 1e-12) << L;
            EXPECT_EQ(state.incline.slopeDirection, 1) << "a tie counts as uphill";
        }
    }

    TEST(SlopeSpeed, IsBelowTheLevelSpeedUphillAndAboveItDownhill)
    {
        ModelState state;
        for (const double L : {1.5, 3.0, 6.0})
        {
            EXPECT_LT(slopeSpeedForLevel(state, 0.001, L), L);
            EXPECT_EQ(state.incline.slopeDirection, 1);
            EXPECT_GT(slopeSpeedForLevel(state, -0.05, L), L);
            EXPECT_EQ(state.incline.slopeDirection, -1);
        }
    }

    TEST(LevelSpeed, UphillAfterADownhillIsAStraightLineThroughTheFirstPair)
    {
        ModelState state;
        const double marched = levelSpeedForSlope(state, 0.05, 4);
        (void)slopeSpeedForLevel(state, -0.02, 4);
        ASSERT_EQ(state.incline.slopeDirection, -1);
        const double drawn = levelSpeedForSlope(state, 0.05, 4);
        const double p0 = netPower(state, 4, 72.7, 0, 1, 0);
        const double p1 = netPower(state, 4 - 0.05, 72.7, 0, 1, 0);
        const double target = netPower(state, 4, 72.7, 0.05, 1, 0);
        EXPECT_TRUE(closeTo(drawn, 4 + 0.05 * (target - p0) / (p0 - p1), 1e-12));
        EXPECT_GT(drawn, marched) << "power bends upwards";
    }

    TEST(SlopeSpeed, OnASmallInclineBetweenTreadmillsLeavesAfterOneRound)
    {
        // no air on the slope side, yet with air on the level side: it costs less, though it goes uphill
        ModelState state;
        state.incline.indoorMode = 2;
        const double s = slopeSpeedForLevel(state, 0.002, 4);
        EXPECT_EQ(state.incline.slopeDirection, -1);
        state.incline.slopeDirection = -1;
        const double e = levelSpeedForSlope(state, 0.002, 4.003);
        EXPECT_EQ(s, 4.003 - (e - 4) / 4 + 0.001);
    }

    TEST(LevelSpeed, IndoorsStartsHalfAMetreASecondBelow)
    {
        // level costs 4.5 % more outdoors: a level speed above v - 0.5 is marched to, one below it is drawn to
        ModelState state;
        state.incline.indoorMode = 1;
        const double p0 = netPower(state, 2.5, 72.7, 0, 1, 0);
        const double p1 = netPower(state, 2.5 + 0.05, 72.7, 0, 1, 0);
        const double target = netPower(state, 3, 72.7, -0.2, 0, 0);
        ASSERT_LT(target, p0);
        EXPECT_TRUE(closeTo(levelSpeedForSlope(state, -0.2, 3), 2.5 + 0.05 * (target - p0) / (p1 - p0), 1e-12));
    }

    TEST(LevelSpeed, DownwardsEndsAtOnceOnAnEffortOfZeroOrLess)
    {
        ModelState state;
        state.incline.slopeDirection = -1;
        const double target = netPower(state, 1, 72.7, -0.32, 1, 0);
        ASSERT_LT(target, 0);
        const double p0 = netPower(state, 1, 72.7, 0, 1, 0);
        const double p1 = netPower(state, 1 - 0.05, 72.7, 0, 1, 0);
        EXPECT_TRUE(closeTo(levelSpeedForSlope(state, -0.32, 1), 1 - 0.05 * (target - p0) / (p1 - p0), 1e-12));
        EXPECT_EQ(levelSpeedForSlope(state, 0, -1), -1 - 0.05) << "where both costs are 0 the trial stands";
        EXPECT_EQ(state.incline.zeroPowerFlag, 1);
    }

    struct NoEnd
    {
        const char* name;
        double levelSpeed;
        const char* fault;
    };

    class SearchWithoutEnd : public testing::TestWithParam<NoEnd>
    {};

    TEST_P(SearchWithoutEnd, Faults)
    {
        ModelState state;
        EXPECT_EQ(faultOf([&] { (void)slopeSpeedForLevel(state, 0.1, GetParam().levelSpeed); }), GetParam().fault);
    }

    INSTANTIATE_TEST_SUITE_P(
        Speeds, SearchWithoutEnd,
        testing::Values(NoEnd{"one_step_below_nothing", -0.05, "a search without an end (the level speed is negative)"},
                        NoEnd{"backwards", -4, "a search without an end (the level speed is negative)"},
                        NoEnd{"beyond_the_steps", 1e30,
                              "a search without an end (the speed is too large for its steps)"},
                        NoEnd{"beyond_a_double", 1e150, "an overflow"}, NoEnd{"just_above", -0.049, ""},
                        NoEnd{"standstill", 0, ""}, NoEnd{"creeping", 1e-9, ""}),
        [](const auto& row) { return row.param.name; });

    TEST(SearchWithoutEnd, HasWrittenWhatItsStepsWriteBeforeIt)
    {
        for (const int mode : {0, 1, 2})
        {
            ModelState state;
            state.incline.indoorMode = mode;
            state.incline.slopeDirection = -1;
            EXPECT_EQ(faultOf([&] { (void)slopeSpeedForLevel(state, -0.1, -4); }),
                      "a search without an end (the level speed is negative)");
            EXPECT_EQ(state.incline.slopeDirection, 1) << "nothing costs as much as nothing";
            EXPECT_EQ(state.incline.zeroPowerFlag, 1);
        }
    }

    TEST(SlopeSpeed, OfALevelSpeedJustAboveOneStepBelowNothingAsksWhetherToGoOn)
    {
        for (const double L : {-0.04999, -0.049999})
        {
            ModelState state;
            int questions = 0;
            state.goOn = [&] { return ++questions < 2; };
            EXPECT_EQ(faultOf([&] { (void)slopeSpeedForLevel(state, 0.1, L); }),
                      "a search that was stopped because it took too long")
                << L;
            EXPECT_EQ(questions, 2) << L;
        }
    }

    TEST(LevelSpeed, UpwardsToAnEffortBelowZeroFromBelowSpeedZeroDivides)
    {
        ModelState state;
        // the cost of walking down is negative, and the indoor march starts and steps below speed 0
        state.incline.indoorMode = 1;
        EXPECT_EQ(faultOf([&] { (void)levelSpeedForSlope(state, -0.32, 0.4); }), "division by zero");
    }

    TEST(LevelSpeed, AsksWhetherToGoOnInALongMarch)
    {
        ModelState state;
        int questions = 0;
        state.goOn = [&] { return ++questions < 3; };
        EXPECT_EQ(faultOf([&] { (void)levelSpeedForSlope(state, 1e14, 4000); }),
                  "a search that was stopped because it took too long");
        EXPECT_EQ(questions, 3);
    }

    TEST(IndoorComparison, IsOverWhenItGoesByWhateverWay)
    {
        ModelState state;
        state.runner.bodyDrag = 0;
        const auto compare = [&] {
            const IndoorComparison indoors(state, 2);
            EXPECT_EQ(state.incline.indoorMode, 2);
            (void)slopeSpeedForLevel(state, 0.1, 4);
        };
        EXPECT_EQ(faultOf(compare), "division by zero");
        EXPECT_EQ(state.incline.indoorMode, 0);
    }

    TEST(Grade, AlongTheSurfaceIsTheSine)
    {
        for (const double g : {-2.0, -0.3, 0.0, 0.03, 0.1, 1.0})
            EXPECT_TRUE(closeTo(gradeAlongSurface(g), std::sin(std::atan(g)), 1e-14)) << g;
    }
}
