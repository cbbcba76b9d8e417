#include "special/special_analysis.h"

#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "analysed_runner.h"
#include "model/race_time.h"
#include "model/record_curve.h"
#include "power/incline.h"
#include "support/case_name.h"
#include "support/close_to.h"

namespace
{
    struct Distance
    {
        std::string name;
        const char* number;
        SpecialUnit unit;
        double metres;

        friend std::ostream& operator<<(std::ostream& out, const Distance& row) { return out << row.name; }
    };

    class SpecialDistance : public testing::TestWithParam<Distance>
    {};

    TEST_P(SpecialDistance, IsTheLeadingNumberOfUnits)
    {
        SpecialEntries entries;
        entries.number = GetParam().number;
        entries.unit = GetParam().unit;
        EXPECT_EQ(specialDistance(entries), GetParam().metres);
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, SpecialDistance,
                             testing::Values(Distance{"miles", "3", SpecialUnit::miles, 3 * 1609.344},
                                             Distance{"yards", "1760", SpecialUnit::yards, 1609.344},
                                             Distance{"kilometers", "5", SpecialUnit::kilometers, 5000},
                                             Distance{"meters", " 400 m", SpecialUnit::meters, 400},
                                             Distance{"marathon", "7", SpecialUnit::marathon, 42195},
                                             Distance{"half", "x", SpecialUnit::halfMarathon, 21097.5},
                                             Distance{"text", "five", SpecialUnit::kilometers, 0},
                                             Distance{"no_unit", "5", SpecialUnit::none, 0}),
                             byName);

    struct BadDistance
    {
        std::string name;
        const char* number;
        SpecialUnit unit;
        const char* fault;   // empty: none
        bool tooFar = false;

        friend std::ostream& operator<<(std::ostream& out, const BadDistance& row) { return out << row.name; }
    };

    class Bad : public testing::TestWithParam<BadDistance>
    {};

    TEST_P(Bad, DistanceIsRefusedOrFaultsAndIsNotRemembered)
    {
        for (const char* mode : {"", "n", "c", "r"})
        {
            Analysis analysis;
            analysis.entries.number = GetParam().number;
            analysis.entries.unit = GetParam().unit;
            analysis.run(mode);
            EXPECT_EQ(analysis.fault, GetParam().fault);
            const Messages tooFar{
                {"Distance over 500 km (311 miles)!  Check your units as well as the entered number."}};
            EXPECT_EQ(analysis.said, GetParam().tooFar ? tooFar : Messages{});
            EXPECT_FALSE(analysis.state.special.stored);
            EXPECT_EQ(analysis.results.levelLine, "");
            EXPECT_EQ(analysis.state.special.analysisMode, mode);
        }
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, Bad,
        testing::Values(BadDistance{"zero", "0", SpecialUnit::meters, "division by zero"},
                        BadDistance{"text", "far", SpecialUnit::kilometers, "division by zero"},
                        BadDistance{"empty", "", SpecialUnit::miles, "division by zero"},
                        BadDistance{"negative", "-5", SpecialUnit::kilometers, "a power without a real value"},
                        BadDistance{"a_metre_too_far", "500001", SpecialUnit::meters, "", true},
                        BadDistance{"a_hair_too_far", "500.0000001", SpecialUnit::kilometers, "", true},
                        BadDistance{"312_miles", "312", SpecialUnit::miles, "", true},
                        BadDistance{"beyond_a_double", "1e999", SpecialUnit::meters,
                                    "an overflow (a number is too large)"}),
        byName);

    TEST(SpecialAnalysis, Takes500Kilometers)
    {
        Analysis analysis;
        analysis.entries.number = "500000";
        analysis.entries.unit = SpecialUnit::meters;
        for (const char* mode : {"", "n", "c", "r"})
        {
            analysis.run(mode);
            EXPECT_EQ(analysis.fault, "") << mode;
            EXPECT_TRUE(analysis.said.empty());
            EXPECT_NE(analysis.results.levelLine, "");
            EXPECT_EQ(analysis.results.hillLine.empty(), std::string(mode) != "c") << mode;
        }
    }

    TEST(SpecialAnalysis, RefusesBeforeItRemembersAndAfterItHasCleared)
    {
        Analysis analysis;
        analysis.run("n");
        ASSERT_FALSE(analysis.results.table.lines.empty());
        analysis.entries.number = "501";
        analysis.run("c");
        EXPECT_EQ(analysis.results.levelLine, "");
        EXPECT_TRUE(analysis.results.table.lines.empty());
        EXPECT_EQ(analysis.state.special.entries.number, "10");
        EXPECT_EQ(analysis.state.special.entries.mode, "n");
    }

    TEST(SpecialAnalysis, ForcesTheSlopeToZeroWhereItHasNoSay)
    {
        Analysis analysis;
        for (const char* mode : {"", "n"})
        {
            analysis.run(mode, "0.3");
            EXPECT_EQ(analysis.state.special.slope, 0) << mode;
        }
        for (const char* mode : {"c", "r"})
        {
            analysis.run(mode, "0.02 or so");
            EXPECT_EQ(analysis.state.special.slope, 0.02) << mode;
        }
        analysis.run("c", "steep");
        EXPECT_EQ(analysis.state.special.slope, 0);
    }

    TEST(SpecialAnalysis, WritesTheLevelAndItsLine)
    {
        Analysis analysis;
        analysis.run("");
        // 40:00 is 6:26 a mile, 4:00 a km and 1:36 a lap; the record is 26:21
        EXPECT_EQ(analysis.results.levelLine,
                  "     40:00       6:26         4:00           1:36          26:21          66           76");
        EXPECT_EQ(analysis.results.hillLine, "");
        const double level = levelOf(analysis.state, 10000, raceTimeAt(analysis.state, 10000));
        EXPECT_EQ(analysis.state.results.level, level);
        EXPECT_EQ(analysis.state.results.curDistance, 10000);
    }

    TEST(RawSpeedAt, LeadsToTheRaceTime)
    {
        const ModelState state = runnerOf40Minutes();
        for (const double d : {100.0, 800.0, 9410.5, 21097.5, 200000.0})
            EXPECT_EQ(finishTime(state, d, rawSpeedAt(state, d), state.curve.fatigueCoef, state.curve.startDelay),
                      raceTimeAt(state, d));
    }

    TEST(ConstantSlope, StillAndLevelIsTheLevelTimeWithinATenthOfAPercent)
    {
        ModelState state = runnerOf40Minutes();
        for (const double d : {1500.0, 10000.0, 42195.0})
            EXPECT_TRUE(closeTo(constantSlopeTime(state, d, 0), raceTimeAt(state, d), 0.001));
    }

    TEST(ConstantSlope, UphillIsSlowerAndDownhillFaster)
    {
        ModelState state = runnerOf40Minutes();
        double last = 0;
        for (const double slope : {-0.06, -0.03, 0.0, 0.03, 0.06, 0.1, 0.2, 0.3})
        {
            const double time = constantSlopeTime(state, 10000, slope);
            EXPECT_GT(time, last) << slope;
            last = time;
        }
        EXPECT_EQ(state.results.curDistance, 10000);
    }

    TEST(ConstantSlope, EndsWithTheLevelRaceOfEqualDuration)
    {
        ModelState state = runnerOf40Minutes();
        const double time = constantSlopeTime(state, 10000, 0.05);
        // by hand: halve the interval of level distances until the level race lasts as long
        double near = 10000;
        double far = 30000;
        while (far - near > 1e-6)
            (raceTimeAt(state, (near + far) / 2) < time ? near : far) = (near + far) / 2;
        const double speed = slopeSpeedForLevel(state, 0.05, rawSpeedAt(state, near));
        EXPECT_TRUE(closeTo(finishTime(state, 10000, speed, state.curve.fatigueCoef, 3), time, 0.002));
    }

    TEST(ConstantSlope, ThatGoesInACircleFaults)
    {
        ModelState state = runnerOf40Minutes();
        int questions = 0;
        state.goOn = [&] { return ++questions < 50; };
        // level distances of 1500 to 2200 km come back after 34 to 150 rounds
        for (const double slope : {0.871041674529766, 0.8927317731019251, 0.9660442846889346, 1.0923528493284353})
            EXPECT_EQ(faultOf([&] { (void)constantSlopeTime(state, 400000, slope); }),
                      "a search without an end (no level race lasts as long as this course)")
                << slope;
        EXPECT_EQ(questions, 0);
    }

    TEST(ConstantSlope, OfASlopeThatNobodyRunsEndsOrFaults)
    {
        for (const double slope : {-1.0, -0.9, 0.9, 1.0, 5.0})
        {
            ModelState state = runnerOf40Minutes();
            int questions = 0;
            state.goOn = [&] { return ++questions < 5000; };
            double time = 0;
            const std::string fault = faultOf([&] { time = constantSlopeTime(state, 10000, slope); });
            EXPECT_NE(fault.empty(), time == 0) << slope << ": " << fault;
            EXPECT_LT(questions, 5000) << slope;
        }
    }

    TEST(WindSpeed, IsSetAndClearedByAConstantWind)
    {
        Analysis analysis;
        analysis.state.special.windBase = 3;
        analysis.run("c");
        EXPECT_EQ(analysis.fault, "");
        EXPECT_EQ(analysis.state.incline.windSpeed, 0);
    }

    TEST(WindSpeed, StaysWhereAConstantWindIsRefusedOrFaults)
    {
        Analysis analysis;
        analysis.state.runner.heightCm = 160;
        analysis.state.special.windBase = 3;
        const double wind = 3 * std::pow(160.0 / 178, 0.3);
        analysis.entries.number = "501";
        analysis.run("c");
        EXPECT_TRUE(closeTo(analysis.state.incline.windSpeed, wind));
        analysis.entries.number = "10";
        analysis.run("n");
        EXPECT_EQ(analysis.state.incline.windSpeed, 0) << "the next special run clears it";
        analysis.entries.number = "0";
        analysis.run("c");
        EXPECT_NE(analysis.fault, "");
        EXPECT_TRUE(closeTo(analysis.state.incline.windSpeed, wind));
    }

    TEST(WindSpeed, StaysAtTheSecondHalfsAfterOutAndBack)
    {
        Analysis analysis;
        analysis.state.special.windBase = 2;
        analysis.run("r");
        EXPECT_EQ(analysis.state.incline.windSpeed, -2);
        analysis.run("");
        EXPECT_EQ(analysis.state.incline.windSpeed, -2) << "a level time alone touches no wind";
        analysis.run("n");
        EXPECT_EQ(analysis.state.incline.windSpeed, 0);
    }

    TEST(WindAtRunner, IsWhatItIsAtOneMetreForAStandardRunner)
    {
        ModelState state;
        EXPECT_EQ(windAtRunner(state, 5), 5);
        state.runner.heightCm = 200;
        EXPECT_TRUE(closeTo(windAtRunner(state, -5), -5 * std::pow(200.0 / 178, 0.3)));
        state.runner.heightCm = -178;
        EXPECT_EQ(faultOf([&] { (void)windAtRunner(state, 5); }), "a power without a real value");
    }

    TEST(WindEstimates, CoincideWithoutWindOnTheLevel)
    {
        ModelState state;
        state.results.curDistance = 5000;
        const WindEstimates winds = windEstimates(state, {2400, 2400});
        for (const double time : {winds.noWind, winds.headTailWind, winds.crossWind, winds.circle, winds.trackCrossWind,
                                  winds.trackParallel})
            EXPECT_TRUE(closeTo(time, 2400));
    }

    TEST(WindEstimates, AreBlendsOfTheTwoTimes)
    {
        ModelState state;
        state.results.curDistance = 5000;
        state.incline.windSpeed = -4;
        const WindEstimates winds = windEstimates(state, {2500, 2400});
        EXPECT_EQ(winds.noWind, 2400);
        EXPECT_EQ(winds.headTailWind, 2500);
        // circle: T = 0.7 * 2500 + 0.3 * 2400 = 2470, ratio 4 / (10000 / 2470) = 0.988
        const double g = 0.75 - 0.06363 * std::sin(3.141592 / 2 * std::pow(0.36, 0.988 / 1.272) / 0.36);
        EXPECT_TRUE(closeTo(winds.circle, g * 2500 + (1 - g) * 2400));
        // the track's cross wind: weights 0.56 and 0.42 make T = 2408, ratio 0.9632
        const double g2 = 0.75 - 0.06363 * std::sin(3.141592 / 2 * std::pow(0.36, 0.9632 / 1.272) / 0.36);
        EXPECT_TRUE(closeTo(winds.trackCrossWind, 0.8 * g2 * 2500 + (1 - 0.8 * g2) * 2400));
        EXPECT_LT(winds.crossWind, winds.circle);
    }

    TEST(WindEstimates, StandInZonesOfFourteen)
    {
        Analysis analysis;
        analysis.state.special.windBase = 5;
        analysis.run("r");
        const std::vector<std::string>& lines = analysis.results.winds.lines;
        ASSERT_EQ(lines.size(), 3U);
        EXPECT_EQ(lines[0], "   Best times for level races with wind for different wind directions:");
        EXPECT_EQ(lines[1], "   No wind   Head/tail wind  Cross wind     Circle   Track cross wind  Track parallel");
        EXPECT_EQ(lines[2].size(), 5U * 14 + 10);
        EXPECT_EQ(lines[2].substr(0, 12), "     40:00  ");
    }
}
